#include "support/VtkErrors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>

#include "ClusteringFixture.h"

namespace
{

class ClusteringLimits : public ClusteringFixture
{
};

TEST_F(ClusteringLimits, ListNoMoreThan4096CurvesForAFewRuns)
{
  setRuns({1, 2, 3, 3, 1, 2}, 3);
  for (const int clusters : {4095, 4096, 4097, std::numeric_limits<int>::max()})
  {
    EXPECT_EQ(cluster(clusters), (std::vector<int>{0, 1}));
    const int curves = std::min(clusters, 4096);
    ASSERT_EQ(means()->GetNumberOfColumns(), curves + 1);
    EXPECT_STREQ(means()->GetColumnName(curves - 1), std::to_string(curves - 1).c_str());
    EXPECT_STREQ(means()->GetColumnName(curves), "Time");
  }
}

TEST_F(ClusteringLimits, OneRunIsOneClusterInEveryMode)
{
  setRuns({1, 2, 4}, 3);
  for (const int mode : {0, 2, 3})
  {
    EXPECT_EQ(cluster(1, mode), std::vector<int>{0}) << mode;
    EXPECT_EQ(output, "1\n2  3\n") << mode;
    EXPECT_EQ(cluster(2, mode), std::vector<int>{0}) << mode;
  }
  // The transform of 1, 2, 4 is 7, -2 + i sqrt(3), -2 - i sqrt(3).
  cluster(1, 3);
  EXPECT_NEAR(mean(0)[0], 7.0, 1e-12);
  EXPECT_NEAR(mean(0)[1], std::sqrt(7.0), 1e-12);
  EXPECT_NEAR(mean(0)[2], std::sqrt(7.0), 1e-12);
}

TEST_F(ClusteringLimits, RunsOfOnePointAreOneClusterInEveryMode)
{
  setRuns({1, -2, 3}, 1);
  for (const int mode : {0, 2, 3})
  {
    EXPECT_EQ(cluster(1, mode), (std::vector<int>{0, 0, 0})) << mode;
    EXPECT_EQ(output, "3\n4  1\n") << mode;
    EXPECT_EQ(cluster(2, mode), (std::vector<int>{0, 0, 0})) << mode;
  }
  // The transform of a single value is the value: moduli 1, 2, 3 and phases 0, pi, 0.
  cluster(1, 3);
  EXPECT_NEAR(mean(0)[0], 2.0, 1e-12);
  cluster(1, 2);
  EXPECT_NEAR(mean(0)[0], std::acos(-1.0) / 3.0, 1e-12);
}

TEST_F(ClusteringLimits, SteadyRunsAreOneClusterWhateverTheirRoundingNoise)
{
  std::vector<double> values;
  for (int run = 0; run < 8; ++run)
  {
    for (int point = 0; point < 10; ++point)
      values.push_back((1.0 + 0.1 * run) * (1.0 + 1e-16 * ((7 * run + 3 * point) % 5)));
  }
  for (int point = 0; point < 10; ++point)
    values.push_back(point);
  setRuns(values, 10);
  const VtkErrors reports;
  EXPECT_EQ(cluster(3), (std::vector<int>{0, 0, 0, 0, 0, 0, 0, 0, 1}));
  EXPECT_EQ(reports.text(), "") << "there are no three shapes, which is nobody's fault";
}

TEST_F(ClusteringLimits, TakeATimeThatGrowsWithTheLengthOfTheRuns)
{
  constexpr int length = 64000;
  std::vector<double> values;
  for (int i = 0; i < 5 * length; ++i)
    values.push_back(std::sin(i % length * (i / length % 2 == 0 ? 0.001 : 0.002)));
  setRuns(values, length);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(cluster(2), (std::vector<int>{0, 1, 0, 1, 0}));
  // A column for each position, found by its name, took above a minute.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(ClusteringLimits, RemarksOnStandardOutputCanBeSwitchedOff)
{
  setRuns({1, 2, 3, 3, 1, 2}, 3);
  PlotOptions options = container.getOptions();
  EXPECT_TRUE(options.showsDiagnostics);
  options.showsDiagnostics = false;
  container.setOptions(options);
  EXPECT_EQ(cluster(2), (std::vector<int>{0, 1}));
  EXPECT_EQ(output, "");
  CapturedOutput standardOutput(std::cout);
  const PlotContainer copy(container);
  EXPECT_FALSE(copy.getOptions().showsDiagnostics);
}

} // namespace

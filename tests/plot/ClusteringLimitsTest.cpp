#include <gtest/gtest.h>

#include <algorithm>
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

} // namespace

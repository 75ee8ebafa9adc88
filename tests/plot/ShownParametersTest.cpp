#include "plot/ShownParameters.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using Talmesh::plot::shownParameters;
using Positions = std::vector<std::size_t>;

constexpr double pThreshold = 0.05;
constexpr double ksThreshold = 0.1;

/// Results of which only those at `significant` pass both thresholds.
std::vector<KsStatistics> results(std::size_t count, const Positions& significant)
{
  std::vector<KsStatistics> all(count, {0.5, 0.2});
  for (const std::size_t position : significant)
    all[position] = {0.001, 0.6};
  return all;
}

Positions shown(const std::vector<KsStatistics>& all, std::size_t parameters)
{
  return shownParameters(all, parameters, pThreshold, ksThreshold);
}

TEST(ShownParameters, AreTheFirstFourWithoutResults)
{
  EXPECT_EQ(shown({}, 6), (Positions{0, 1, 2, 3}));
  EXPECT_EQ(shown({}, 2), (Positions{0, 1}));
  EXPECT_EQ(shown({}, 0), Positions{});
}

TEST(ShownParameters, PutTheSignificantFirstAndFillTheRow)
{
  EXPECT_EQ(shown(results(10, {1, 3, 5, 7, 9}), 10), (Positions{1, 3, 5, 7, 9, 0, 2, 4}));
  EXPECT_EQ(shown(results(10, {9}), 10), (Positions{9, 0, 1, 2}));
  EXPECT_EQ(shown(results(4, {0, 1, 2, 3}), 4), (Positions{0, 1, 2, 3}));
}

TEST(ShownParameters, EndWithTheParameters)
{
  EXPECT_EQ(shown(results(2, {}), 2), (Positions{0, 1}));
  EXPECT_EQ(shown(results(5, {0, 1, 2, 3, 4}), 5), (Positions{0, 1, 2, 3, 4}));
}

TEST(ShownParameters, RepeatPositionsWhenResultsAreMissing)
{
  EXPECT_EQ(shown(results(2, {1}), 6), (Positions{1, 0, 0, 1}));
}

TEST(ShownParameters, LeaveOutResultsOfParametersThatAreGone)
{
  EXPECT_EQ(shown(results(6, {0, 5}), 3), (Positions{0, 1, 2}));
}

using Tests = std::vector<ParameterTest>;
const double untested = std::numeric_limits<double>::quiet_NaN();

Positions shown(const Tests& tests, std::size_t parameters)
{
  return shownParameters(tests, parameters, pThreshold, ksThreshold);
}

TEST(ShownParametersOfAClient, ComeInTheOrderOfRisingPThenOfFallingDistances)
{
  const Tests tests = {{0.04, 0.5, {}}, {0.5, 0.3, {}},  {0.001, 0.4, {}}, {0.04, 0.6, {}},
                       {0.3, 0.2, {}},  {0.04, 0.6, {}}, {0.9, 0.1, {}}};
  EXPECT_EQ(shown(tests, 7), (Positions{2, 3, 5, 0}));
  EXPECT_EQ(shown(tests, 3), (Positions{2, 0, 1}));
}

TEST(ShownParametersOfAClient, FillTheRowWithTheSmallestPThatMissAThreshold)
{
  const Tests tests = {{0.5, 0.3, {}},   {0.04, 0.2, {}}, {0.01, 0.05, {}},
                       {0.03, 0.2, {}},  {0.2, 0.9, {}},  {0.02, 0.2, {}},
                       {0.012, 0.2, {}}, {0.6, 0.9, {}},  {0.011, 0.2, {}}};
  // The third misses the threshold of D, although its p is the smallest.
  EXPECT_EQ(shown(tests, 9), (Positions{8, 6, 5, 3, 1, 2, 4, 0}));
}

TEST(ShownParametersOfAClient, PutThoseWithoutATestLastInTheirOrder)
{
  EXPECT_EQ(shown(Tests{{untested, 0.1, {}}, {0.9, 0.2, {}}, {untested, 0.9, {}}}, 4),
            (Positions{1, 0, 2, 3}));
  EXPECT_EQ(shown(Tests{}, 6), (Positions{0, 1, 2, 3}));
  EXPECT_EQ(shown(Tests{{0.01, 0.9, {}}, {0.02, 0.9, {}}}, 1), Positions{0});
  EXPECT_EQ(shown(Tests{{0.01, 0.9, {}}}, 0), Positions{});
}

TEST(ShownParameters, CountTheThresholdsThemselvesAsSignificant)
{
  EXPECT_TRUE(Talmesh::plot::isSignificant({0.05, 0.1}, pThreshold, ksThreshold));
  EXPECT_FALSE(Talmesh::plot::isSignificant({0.0501, 0.1}, pThreshold, ksThreshold));
  EXPECT_FALSE(Talmesh::plot::isSignificant({0.05, 0.0999}, pThreshold, ksThreshold));
  EXPECT_FALSE(Talmesh::plot::isSignificant({std::numeric_limits<double>::quiet_NaN(), 0.9},
                                            pThreshold, ksThreshold));
}

} // namespace

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

TEST(ShownParameters, CountTheThresholdsThemselvesAsSignificant)
{
  EXPECT_TRUE(Talmesh::plot::isSignificant({0.05, 0.1}, pThreshold, ksThreshold));
  EXPECT_FALSE(Talmesh::plot::isSignificant({0.0501, 0.1}, pThreshold, ksThreshold));
  EXPECT_FALSE(Talmesh::plot::isSignificant({0.05, 0.0999}, pThreshold, ksThreshold));
  EXPECT_FALSE(Talmesh::plot::isSignificant({std::numeric_limits<double>::quiet_NaN(), 0.9},
                                            pThreshold, ksThreshold));
}

} // namespace

#include "stats/GroupContrast.h"

#include "stats/TieBlockSamples.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::stats;

TEST(GroupContrast, NamesTheSideOfTheSelectedRuns)
{
  EXPECT_EQ(directionOf(ksDistance(overlappingRuns(20, 5, 20))), Direction::smaller);
  EXPECT_EQ(directionOf(ksDistance(swappedGroups(overlappingRuns(20, 5, 20)))), Direction::larger);
  EXPECT_EQ(directionOf(ksDistance({{3, 6}, {2, 4}})), Direction::none);
  EXPECT_EQ(directionOf(ksDistance({{3, 0}})), Direction::none);
}

TEST(GroupContrast, CallsBothWaysWhereTheLesserDistanceExceedsHalfOfTheGreater)
{
  // Selected between the others: 6 and 9 of 15 steps.
  EXPECT_EQ(directionOf(ksDistance({{0, 2}, {3, 0}, {0, 3}})), Direction::bothWays);
  // 3 and 6 of 9 steps: just half.
  EXPECT_EQ(directionOf(ksDistance({{0, 1}, {3, 0}, {0, 2}})), Direction::smaller);
  EXPECT_EQ(directionOf(ksDistance({{0, 2}, {3, 0}, {0, 1}})), Direction::larger);
}

TEST(GroupContrast, BoundsTheDistance)
{
  // R 4.2.2: sqrt(log(4 / .05) / (2 * 200)) + sqrt(log(4 / .05) / (2 * 300)): 0.1901262557746
  const KsDistance half = ksDistance({{100, 300}, {100, 0}});
  EXPECT_DOUBLE_EQ(half.distance(), 0.5);
  const Interval interval = distanceInterval(half);
  EXPECT_NEAR(interval.low, 0.5 - 0.1901262557746, 1e-12);
  EXPECT_NEAR(interval.high, 0.5 + 0.1901262557746, 1e-12);
  const Interval narrower = distanceInterval(half, 0.9);
  EXPECT_GT(narrower.low, interval.low);
  EXPECT_LT(narrower.high, interval.high);
}

TEST(GroupContrast, CutsTheIntervalToWhatADistanceCanBe)
{
  const Interval interval = distanceInterval(ksDistance({{2, 1}, {1, 2}}));
  EXPECT_EQ(interval.low, 0.0);
  EXPECT_EQ(interval.high, 1.0);
  EXPECT_TRUE(std::isnan(distanceInterval(ksDistance({{2, 0}})).low));
}

TEST(GroupContrast, CountsPairsThatTheSelectedRunsWin)
{
  EXPECT_EQ(probabilityOfSuperiority({{0, 5}, {4, 0}}), 1.0);
  EXPECT_EQ(probabilityOfSuperiority({{4, 0}, {0, 5}}), 0.0);
  EXPECT_EQ(probabilityOfSuperiority({{3, 8}}), 0.5);
  // R 4.2.2: x <- c(1,1,2,3); y <- c(2,3,3,3,4,4)
  // mean(outer(x, y, ">") + outer(x, y, "==") / 2): 0.125
  EXPECT_DOUBLE_EQ(probabilityOfSuperiority({{2, 0}, {1, 1}, {1, 3}, {0, 2}}), 0.125);
  // z <- pat(60, 1), the same: 0.5724281
  EXPECT_NEAR(probabilityOfSuperiority(patternedBlocks(60, 1)), 28061.5 / (149 * 329), 1e-15);
  EXPECT_TRUE(std::isnan(probabilityOfSuperiority({{0, 3}})));
}

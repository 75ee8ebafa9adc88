#include "stats/LevelCounts.h"

#include "stats/TieBlockSamples.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::stats;

TEST(LevelCounts, AgreeWithFishersTestInR)
{
  struct Reference
  {
    TieBlocks blocks;
    double p;
  };
  const Reference references[] = {
      // R 4.2.2: fisher.test(rbind(c(3, 1), c(1, 3)))$p.value and so on, a column per level
      {{{3, 1}, {1, 3}}, 0.48571428571428582},
      {{{8, 1}, {2, 5}}, 0.034965034965034975},
      {{{1, 19}, {4, 16}, {6, 14}, {12, 8}, {17, 3}}, 1.3802760793700878e-07},
      {{{2, 0}, {0, 3}, {1, 1}}, 0.14285714285714277},
      {{{10, 0}, {0, 12}}, 1.546441174924147e-06},
      {{{5, 6}, {9, 2}, {3, 8}, {7, 8}}, 0.082860040197664978},
      {{{0, 40}, {30, 0}, {0, 35}}, 6.0853664481242293e-27}};
  for (const Reference& reference : references)
  {
    const CountsTest test = levelCountsTest(reference.blocks);
    EXPECT_TRUE(test.exact);
    EXPECT_NEAR(test.p / reference.p, 1.0, 1e-11);
  }
}

TEST(LevelCounts, AgreeWithTheChiSquaredTestInR)
{
  // R 4.2.2: chisq.test(rbind(c(5,9,3,7), c(6,2,8,8)), correct=FALSE); the grid below likewise
  const CountsTest test = chiSquaredTest({{5, 6}, {9, 2}, {3, 8}, {7, 8}});
  EXPECT_NEAR(test.chiSquared, 6.8848484848484848, 1e-13);
  EXPECT_NEAR(test.p, 0.075660029737782825, 1e-14);
  const CountsTest grid = chiSquaredTest({{1, 19}, {4, 16}, {6, 14}, {12, 8}, {17, 3}});
  EXPECT_NEAR(grid.chiSquared, 34.583333333333336, 1e-12);
  EXPECT_NEAR(grid.p / 5.6568916732087061e-07, 1.0, 1e-11);
  EXPECT_NEAR(chiSquaredTest({{8, 1}, {2, 5}}).p, 0.013425424881491258, 1e-14);
}

TEST(LevelCounts, CountTheTablesOfTheSameSums)
{
  // 2 of the 3 + 3 + 3 runs selected: 6 ways to spread them over three levels.
  EXPECT_EQ(tablesWithSumsOf({{2, 1}, {0, 3}, {0, 3}}), 6.0);
  // No level has room for all of 4: 0..3 in the first, of which the second takes the rest.
  EXPECT_EQ(tablesWithSumsOf({{3, 0}, {1, 2}}), 3.0);
  EXPECT_EQ(tablesWithSumsOf(TieBlocks(mostLevels + 1, {1, 1})),
            std::numeric_limits<double>::infinity());
}

TEST(LevelCounts, TakeTheChiSquaredDistributionWhereTablesAreTooMany)
{
  const TieBlocks blocks(8, {9, 8});
  ASSERT_GT(tablesWithSumsOf(blocks), largestExactCounts);
  EXPECT_FALSE(levelCountsTest(blocks).exact);
  // R 4.2.2: chisq.test(rbind(rep(c(17, 9, 9, 9), 2), rep(c(0, 8, 8, 8), 2)), correct=FALSE)
  TieBlocks uneven(blocks);
  uneven[0] = {17, 0};
  uneven[4] = {17, 0};
  const CountsTest test = levelCountsTest(uneven);
  EXPECT_FALSE(test.exact);
  EXPECT_EQ(test.chiSquared, chiSquaredTest(uneven).chiSquared);
  EXPECT_NEAR(test.p, 0.000848048205625087, 1e-14);
}

TEST(LevelCounts, IgnoreTheOrderOfTheLevels)
{
  const double p = levelCountsTest({{5, 6}, {9, 2}, {3, 8}, {7, 8}}).p;
  EXPECT_NEAR(levelCountsTest({{3, 8}, {7, 8}, {9, 2}, {5, 6}}).p, p, 1e-14);
  EXPECT_NEAR(levelCountsTest({{6, 5}, {2, 9}, {8, 3}, {8, 7}}).p, p, 1e-14);
}

TEST(LevelCounts, HaveNoAnswerForWhatIsNoTable)
{
  EXPECT_TRUE(std::isnan(levelCountsTest({{3, 4}}).p));
  EXPECT_TRUE(std::isnan(levelCountsTest({{3, 0}, {4, 0}}).p));
  EXPECT_TRUE(std::isnan(levelCountsTest(TieBlocks(mostLevels + 1, {1, 1})).p));
  EXPECT_FALSE(std::isnan(levelCountsTest(TieBlocks(mostLevels, {1, 1})).p));
}

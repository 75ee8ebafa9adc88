#include "stats/MannWhitney.h"

#include "stats/TieBlockSamples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

using namespace Talmesh::stats;

namespace
{
TieBlocks blocksOf(int selected, double (*selectedAt)(int), int others, double (*otherAt)(int))
{
  std::vector<double> a, b;
  for (int i = 1; i <= selected; ++i)
    a.push_back(selectedAt(i));
  for (int i = 1; i <= others; ++i)
    b.push_back(otherAt(i));
  return tieBlocks(a, b);
}

const TieBlocks grid{{1, 19}, {4, 16}, {6, 14}, {12, 8}, {17, 3}};
} // namespace

TEST(MannWhitney, AgreesWithRWithoutTies)
{
  // R 4.2.2: wilcox.test(c(1.1,2.2,3.3,4.4), c(.5,2.5,5.5,6.5,7.5,8.5)); p is 9/35.
  const MannWhitneyTest small =
      mannWhitneyTest(tieBlocks({1.1, 2.2, 3.3, 4.4}, {0.5, 2.5, 5.5, 6.5, 7.5, 8.5}));
  EXPECT_EQ(small.pairs, 6.0);
  EXPECT_NEAR(small.p, 9.0 / 35.0, 1e-15);
  EXPECT_TRUE(small.exact);
  // R 4.2.2: wilcox.test(1:12 * 3, 1:40 + .5)
  const MannWhitneyTest middle = mannWhitneyTest(blocksOf(
      12, [](int i) { return 3.0 * i; }, 40, [](int i) { return i + 0.5; }));
  EXPECT_EQ(middle.pairs, 222.0);
  EXPECT_NEAR(middle.p, 0.7075234797335086, 1e-12);
  // R 4.2.2: wilcox.test((1:40)^2, 1:45 * 10 + .5)
  const MannWhitneyTest larger = mannWhitneyTest(blocksOf(
      40, [](int i) { return double(i) * i; }, 45, [](int i) { return i * 10 + 0.5; }));
  EXPECT_EQ(larger.pairs, 1175.0);
  EXPECT_NEAR(larger.p, 0.015116549043379363, 1e-12);
  EXPECT_TRUE(larger.exact);
}

TEST(MannWhitney, IsExactWithTies)
{
  // Python: ways of the doubled rank sums in whole numbers over all choices / math.comb(N, m)
  EXPECT_NEAR(mannWhitneyTest({{2, 0}, {1, 1}, {1, 3}, {0, 2}}).p, 1.0 / 14.0, 1e-15);
  EXPECT_NEAR(mannWhitneyTest({{0, 3}, {1, 3}, {2, 3}, {4, 1}, {5, 0}}).p, 236.0 / 323323.0, 1e-15);
  const MannWhitneyTest test = mannWhitneyTest(grid);
  EXPECT_TRUE(test.exact);
  EXPECT_EQ(test.pairs, 2000.0);
  EXPECT_NEAR(test.p, 2.0377226317140851e-09, 1e-20);
}

TEST(MannWhitney, CorrectsTheNormalDistributionForTiesAndContinuity)
{
  // R 4.2.2: wilcox.test(c(1,1,2,3), c(2,3,3,3,4,4), exact=FALSE)
  EXPECT_NEAR(normalMannWhitneyTest({{2, 0}, {1, 1}, {1, 3}, {0, 2}}).p, 0.059010909791356508,
              1e-14);
  // R 4.2.2: wilcox.test(rep(1:5, c(1,4,6,12,17)), rep(1:5, c(19,16,14,8,3)), exact=FALSE)
  EXPECT_NEAR(normalMannWhitneyTest(grid).p, 9.4134492490042993e-09, 1e-21);
}

TEST(MannWhitney, TakesTheNormalDistributionForLargeGroups)
{
  // R 4.2.2: do.call(wilcox.test, pat(60, 1)); pat(120, 5) likewise
  const MannWhitneyTest test = mannWhitneyTest(patternedBlocks(60, 1));
  EXPECT_FALSE(test.exact);
  EXPECT_NEAR(test.p, 0.011126327180402427, 1e-14);
  EXPECT_NEAR(mannWhitneyTest(patternedBlocks(120, 5)).p / 6.2983232889736596e-46, 1.0, 1e-11);
  // Sizes whose products exceed 64 bits.
  const MannWhitneyTest huge = mannWhitneyTest({{1U << 30U, 1U << 29U}, {1U << 29U, 1U << 30U}});
  EXPECT_FALSE(huge.exact);
  EXPECT_EQ(huge.p, 0.0);
}

TEST(MannWhitney, IsTheSameForExchangedGroups)
{
  const TieBlocks blocks = patternedBlocks(7, 1);
  const MannWhitneyTest test = mannWhitneyTest(blocks);
  const MannWhitneyTest swapped = mannWhitneyTest(swappedGroups(blocks));
  EXPECT_TRUE(test.exact);
  EXPECT_LT(test.p, 0.9);
  EXPECT_NEAR(swapped.p, test.p, 1e-14);
  const GroupSizes sizes = groupSizes(blocks);
  EXPECT_EQ(test.pairs + swapped.pairs, double(sizes.selected * sizes.others));
}

TEST(MannWhitney, HasNoAnswerWithoutTwoGroupsOrValues)
{
  EXPECT_TRUE(std::isnan(mannWhitneyTest({}).p));
  EXPECT_TRUE(std::isnan(mannWhitneyTest({{3, 0}, {2, 0}}).p));
  EXPECT_TRUE(std::isnan(mannWhitneyTest({{3, 5}}).p));
  EXPECT_EQ(mannWhitneyTest({{1, 1}, {1, 1}}).p, 1.0);
}

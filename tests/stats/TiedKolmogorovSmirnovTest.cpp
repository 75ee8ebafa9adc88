#include "stats/TiedKolmogorovSmirnov.h"

#include "stats/TieBlockSamples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

using namespace Talmesh::stats;

namespace
{
void expectRelative(double value, double expected, double tolerance)
{
  EXPECT_NEAR(value, expected, tolerance * expected);
}
} // namespace

TEST(TiedKolmogorovSmirnov, AgreesWithRWithTies)
{
  struct Reference
  {
    TieBlocks blocks;
    double d;
    double p;
  };
  const Reference references[] = {
      // R 4.2.2: ks.test(c(1,1,2,3), c(2,3,3,3,4,4), exact=TRUE); p is 4/21.
      {{{2, 0}, {1, 1}, {1, 3}, {0, 2}}, 7.0 / 12.0, 4.0 / 21.0},
      // R 4.2.2: ks.test(rep(1:5, c(0,1,2,4,5)), rep(1:5, c(3,3,3,1,0)), exact=TRUE); p is
      // 1366/323323.
      {{{0, 3}, {1, 3}, {2, 3}, {4, 1}, {5, 0}}, 0.65, 1366.0 / 323323.0},
      // R 4.2.2: ks.test(rep(1:5, c(1,4,6,12,17)), rep(1:5, c(19,16,14,8,3)), exact=TRUE)
      {{{1, 19}, {4, 16}, {6, 14}, {12, 8}, {17, 3}}, 13.0 / 24.0, 1.5986137147372403e-07},
      // R 4.2.2: do.call(ks.test, c(pat(20, 2), exact=TRUE)), and with pat(20, 0), pat(60, 1)
      {patternedBlocks(20, 2), 0.27512473271560939, 0.0018319820832060074},
      {patternedBlocks(20, 0), 0.12759948652118097, 0.50147999491735629},
      {patternedBlocks(60, 1), 0.15911548112033619, 0.0065148682475254516}};
  for (const Reference& reference : references)
  {
    const KsTest test = tiedKsTest(reference.blocks);
    EXPECT_TRUE(test.exact);
    EXPECT_NEAR(test.distance.distance(), reference.d, 1e-14);
    EXPECT_NEAR(test.p, reference.p, 1e-12);
  }
}

TEST(TiedKolmogorovSmirnov, AgreesWithRWithoutTies)
{
  // R 4.2.2: ks.test(1:10, c(6:14 + .5, 15:19), exact=TRUE); p is 371/163438.
  const TieBlocks blocks =
      tieBlocks({10, 9, 8, 7, 6, 5, 4, 3, 2, 1},
                {6.5, 7.5, 8.5, 9.5, 10.5, 11.5, 12.5, 13.5, 14.5, 15, 16, 17, 18, 19});
  EXPECT_NEAR(tiedKsTest(blocks).p, 371.0 / 163438.0, 1e-15);
  // R 4.2.2: ks.test((1:50)^2 / 70, 1:350 / 10, exact=TRUE)
  std::vector<double> selected, others;
  for (int i = 1; i <= 50; ++i)
    selected.push_back(i * i / 70.0);
  for (int i = 1; i <= 350; ++i)
    others.push_back(i / 10.0);
  EXPECT_NEAR(tiedKsTest(tieBlocks(selected, others)).p, 0.0086520961593135048, 1e-12);
}

TEST(TiedKolmogorovSmirnov, KeepsTheDigitsOfSmallProbabilities)
{
  // Python: the recursion in whole numbers, ways to reach the distance / math.comb(m + n, m):
  // row[j] = comb(i+j, i) if i+j in ends and abs(i*n-j*m) >= h else row[j] + row[j-1]
  expectRelative(tiedKsTest(patternedBlocks(120, 5)).p, 1.1034679044578097e-61, 1e-11);
  expectRelative(tiedKsTest(overlappingRuns(350, 250, 350)).p, 7.0853365461851899e-95, 1e-11);
  expectRelative(tiedKsTest(overlappingRuns(480, 20, 480)).p, 2.5120057766108251e-258, 1e-11);
  // Two ways of comb(850, 400).
  expectRelative(tiedKsTest(overlappingRuns(450, 0, 400)).p, 4.2336594155662898e-254, 1e-11);
}

TEST(TiedKolmogorovSmirnov, DoesNotRoundProbabilitiesToOne)
{
  // As above, of patternedBlocks(200, 0), for which R 4.2.2 gives 1.
  EXPECT_NEAR(tiedKsTest(patternedBlocks(200, 0)).p, 0.99999999018400421, 1e-12);
}

TEST(TiedKolmogorovSmirnov, FollowsClosedForms)
{
  // One selected run above 99 others: 1 of 100 places, and the lowest one at the same distance.
  const TieBlocks highest = swappedGroups(overlappingRuns(99, 0, 1));
  EXPECT_NEAR(tiedKsTest(highest).p, 0.02, 1e-15);
  EXPECT_DOUBLE_EQ(tiedKsTest(highest).distance.distance(), 1.0);
  // Two blocks of 2 and 2 runs: the selected pair is one of six; both pairs have D = 1.
  EXPECT_NEAR(tiedKsTest({{2, 0}, {0, 2}}).p, 1.0 / 3.0, 1e-15);
  // 3 and 2: only one choice of the lower three has D = 1.
  EXPECT_NEAR(tiedKsTest({{3, 0}, {0, 2}}).p, 0.1, 1e-15);
  EXPECT_EQ(tiedKsTest({{4, 7}}).p, 1.0);
  EXPECT_EQ(tiedKsTest({{2, 4}, {1, 2}, {3, 6}}).p, 1.0);
  EXPECT_EQ(tiedKsTest({{2, 4}, {1, 2}, {3, 6}}).distance.steps(), 0U);
}

TEST(TiedKolmogorovSmirnov, IsTheSameForExchangedGroupsAndReversedOrder)
{
  const TieBlocks blocks = patternedBlocks(17, 1);
  const KsTest test = tiedKsTest(blocks);
  const KsTest swapped = tiedKsTest(swappedGroups(blocks));
  const KsTest reversed = tiedKsTest({blocks.rbegin(), blocks.rend()});
  EXPECT_NE(test.distance.larger, test.distance.smaller);
  EXPECT_EQ(swapped.distance.larger, test.distance.smaller);
  EXPECT_EQ(reversed.distance.larger, test.distance.smaller);
  expectRelative(swapped.p, test.p, 1e-13);
  expectRelative(reversed.p, test.p, 1e-13);
}

TEST(TiedKolmogorovSmirnov, TellsTheSideOfTheDistance)
{
  const KsDistance distance = ksDistance({{0, 2}, {3, 0}, {0, 1}});
  EXPECT_EQ(distance.larger, 6U);
  EXPECT_EQ(distance.smaller, 3U);
  EXPECT_DOUBLE_EQ(distance.distance(), 2.0 / 3.0);
}

TEST(TiedKolmogorovSmirnov, TakesTheLimitAboveTheLargestExactSize)
{
  // R 4.2.2: ks.test(1:100, 1:120 + 9.5, exact=FALSE)
  EXPECT_NEAR(asymptoticKsTail({100, 120}, 0.25), 0.0021874153471430624, 1e-10);
  // R 4.2.2: k <- 1:200; z <- .425^2 * 100 * 120 / 220; 2 * sum((-1)^(k-1) * exp(-2 * k^2 * z))
  expectRelative(asymptoticKsTail({100, 120}, 0.425), 5.53929680922919e-09, 1e-12);
  // z = sqrt(1/2), R 4.2.2: 2 * sum((-1)^(k-1) * exp(-k^2)), and
  // 1 - sqrt(2 * pi) / sqrt(.5) * sum(exp(-(2*k-1)^2 * pi^2 / 4)) is the same
  EXPECT_NEAR(asymptoticKsTail({100, 100}, 0.1), 0.699374199131016, 1e-14);
  const KsTest exact = tiedKsTest(overlappingRuns(200, 4800, 200));
  EXPECT_TRUE(exact.exact);
  const KsTest limit = tiedKsTest(overlappingRuns(200, 4801, 200));
  EXPECT_FALSE(limit.exact);
  EXPECT_NEAR(limit.p, exact.p, 2e-4);
  EXPECT_GT(exact.p, 1e-4);
}

TEST(TiedKolmogorovSmirnov, CountsLargeGroupsInWholeNumbers)
{
  // Products of 1e16 that doubles would round.
  const std::uint64_t many = 100'000'001;
  const KsDistance distance = ksDistance({{many - 1, many - 1}, {1, 0}, {0, 1}});
  EXPECT_EQ(distance.sizes.others, many);
  EXPECT_EQ(distance.smaller, many);
  EXPECT_EQ(distance.larger, 0U);
  const std::uint64_t most = largestGroup;
  EXPECT_EQ(ksDistance({{most, 0}, {0, most}}).smaller, most * most);
  EXPECT_THROW(ksDistance({{most, 0}, {1, most}}), std::length_error);
  EXPECT_FALSE(tiedKsTest({{most, 0}, {0, most}}).exact);
}

TEST(TiedKolmogorovSmirnov, HasNoAnswerWithoutTwoGroups)
{
  EXPECT_TRUE(std::isnan(tiedKsTest({}).p));
  EXPECT_TRUE(std::isnan(tiedKsTest({{3, 0}, {1, 0}}).p));
  EXPECT_TRUE(std::isnan(tiedKsTest({{0, 3}}).distance.distance()));
  EXPECT_TRUE(std::isnan(asymptoticKsTail({0, 3}, 0.5)));
}

TEST(TieBlocks, JoinEqualValuesOfBothSamples)
{
  const double infinity = std::numeric_limits<double>::infinity();
  const TieBlocks blocks = tieBlocks({0.0, infinity, 3.0}, {-0.0, 3.0, -infinity, 3.0, 4.0});
  const std::pair<int, int> expected[] = {{0, 1}, {1, 1}, {1, 2}, {0, 1}, {1, 0}};
  ASSERT_EQ(blocks.size(), std::size(expected));
  for (std::size_t i = 0; i < blocks.size(); ++i)
  {
    EXPECT_EQ(blocks[i].selected, expected[i].first) << i;
    EXPECT_EQ(blocks[i].others, expected[i].second) << i;
  }
}

TEST(TieBlocks, RefuseNaN)
{
  EXPECT_THROW(tieBlocks({1.0}, {2.0, std::nan("")}), std::invalid_argument);
  EXPECT_THROW(tieBlocks({std::nan(""), 1.0}, {2.0}), std::invalid_argument);
}

#include "stats/SmallTails.h"

#include "stats/LevelCounts.h"
#include "stats/MannWhitney.h"
#include "stats/RunComparison.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numeric>

using namespace Talmesh::stats;

namespace
{
constexpr double smallestDouble = std::numeric_limits<double>::min();

double logChoose(double n, double k)
{
  return std::lgamma(n + 1.0) - std::lgamma(k + 1.0) - std::lgamma(n - k + 1.0);
}

/// The others have 0, 1, 2, ..., the selected runs what comes behind.
TieBlocks apart(std::uint64_t selected, std::uint64_t others)
{
  TieBlocks blocks(others, {0, 1});
  blocks.resize(others + selected, {1, 0});
  return blocks;
}
} // namespace

TEST(SmallTails, OfTheNormalDistribution)
{
  // R 4.2.2: log(2) + pnorm(-x * sqrt(2), log.p = TRUE)
  EXPECT_NEAR(logErfc(1.0), -1.849605509933248, 1e-14);
  EXPECT_NEAR(logErfc(26.0), -679.83119976319449, 1e-10);
  EXPECT_NEAR(logErfc(40.0), -1604.2615566532738, 1e-10);
  EXPECT_NEAR(logErfc(1000.0), -1000007.480120722, 1e-7);
  EXPECT_EQ(std::erfc(40.0), 0.0);
}

TEST(SmallTails, OfTheChiSquaredDistribution)
{
  // R 4.2.2: pchisq(2 * x, 2 * a, lower.tail = FALSE, log.p = TRUE)
  EXPECT_NEAR(logGammaQ(0.5, 1.0), -1.8496055099332522, 1e-14);
  EXPECT_NEAR(logGammaQ(24.5, 599.0), -501.86189529682343, 1e-10);
  EXPECT_NEAR(logGammaQ(24.5, 700.0), -599.20600995658924, 1e-10);
  EXPECT_NEAR(logGammaQ(1.5, 5000.0), -4995.6205211816523, 1e-9);
}

TEST(SmallTails, OfTheExactKolmogorovSmirnovTest)
{
  // Groups that do not overlap: two of the choices of the selected runs are as far apart.
  const KsTest test = tiedKsTest(apart(600, 600));
  EXPECT_EQ(test.p, 0.0);
  EXPECT_NEAR(test.logP, std::log(2.0) - logChoose(1200, 600), 1e-9);
  const KsTest largest = tiedKsTest(apart(5000, 5000));
  EXPECT_NEAR(largest.logP, std::log(2.0) - logChoose(10000, 5000), 1e-8);
  const KsTest usual = tiedKsTest(apart(6, 9));
  EXPECT_DOUBLE_EQ(usual.logP, std::log(usual.p));
}

TEST(SmallTails, OfTheLimitForLargeGroups)
{
  // D = 1: p = 2 exp(-2 m n / (m + n)) to all digits.
  const KsTest test = tiedKsTest(apart(6000, 6000));
  EXPECT_FALSE(test.exact);
  EXPECT_NEAR(test.logP, std::log(2.0) - 6000.0, 1e-9);
}

TEST(SmallTails, OfTheMannWhitneyTest)
{
  const MannWhitneyTest test = mannWhitneyTest(apart(900, 900));
  EXPECT_GT(test.p, 0.0);
  EXPECT_DOUBLE_EQ(test.logP, std::log(test.p));
  const MannWhitneyTest large = mannWhitneyTest(apart(2000, 2000));
  EXPECT_EQ(large.p, 0.0);
  // All pairs are won: the deviate is (m n / 2 - 1/2) / sqrt(m n (m + n + 1) / 12).
  const double deviate = (2e6 - 0.5) / std::sqrt(4e6 * 4001.0 / 12.0);
  EXPECT_NEAR(large.logP, logErfc(deviate / std::sqrt(2.0)), 1e-9);
}

TEST(SmallTails, OfCounts)
{
  // Two levels, each of one group only: the two tables with zeros on a diagonal.
  const CountsTest test = levelCountsTest({{600, 0}, {0, 600}});
  EXPECT_TRUE(test.exact);
  EXPECT_EQ(test.p, 0.0);
  EXPECT_NEAR(test.logP, std::log(2.0) - logChoose(1200, 600), 1e-8);
  const CountsTest large = chiSquaredTest({{600, 0}, {0, 600}, {100, 100}});
  EXPECT_NEAR(large.logP, logGammaQ(1.0, large.chiSquared / 2.0), 1e-12);
  EXPECT_NEAR(large.logP, -large.chiSquared / 2.0, 1e-9) << "two degrees of freedom";
}

TEST(SmallTails, LeaveABoundInTheTable)
{
  std::vector<double> rising(1200);
  std::iota(rising.begin(), rising.end(), 0.0);
  std::vector<char> selected(1200, 0);
  std::fill(selected.begin() + 600, selected.end(), 1);
  const ParameterComparison row = compareRuns({rising}, selected).parameters.front();
  EXPECT_EQ(row.p, smallestDouble);
  EXPECT_EQ(row.adjusted, smallestDouble);
  EXPECT_TRUE(row.isOnlyBounded());
  EXPECT_NEAR(row.logP, std::log(2.0) - logChoose(1200, 600), 1e-9);
}

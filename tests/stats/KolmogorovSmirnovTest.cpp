#include "stats/KolmogorovSmirnov.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <list>
#include <numeric>
#include <type_traits>
#include <utility>
#include <vector>

namespace
{
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
using Comparison = KolmogorovSmirnov<double*, double*>;

Comparison compare(std::vector<double> a, std::vector<double> b)
{
  return Comparison(a.data(), a.data() + a.size(), b.data(), b.data() + b.size());
}

/// The smallest distance d for which n d^2 reaches w.
double distanceReaching(double n, double w)
{
  double d = std::sqrt(w / n) * (1.0 - 1e-14);
  while (n * (d * d) < w)
  {
    d = std::nextafter(d, 1.0);
  }
  return d;
}
} // namespace

TEST(KolmogorovSmirnov, HasOnlyAVirtualDestructor)
{
  EXPECT_TRUE(std::has_virtual_destructor_v<Comparison>);
  EXPECT_FALSE(std::is_abstract_v<Comparison>);
}

TEST(KolmogorovSmirnov, FindsNoEvidenceInDisjointTriples)
{
  const Comparison test = compare({1, 2, 3}, {4, 5, 6});
  EXPECT_DOUBLE_EQ(test.statistic(), 1.0);
  EXPECT_EQ(test.effectiveSize(), 1u);
  EXPECT_EQ(test.pValue(), 1.0);
}

TEST(KolmogorovSmirnov, CountsTiesForTheSecondSampleFirst)
{
  const Comparison single = compare({1}, {1});
  EXPECT_EQ(single.statistic(), 1.0);
  EXPECT_EQ(single.effectiveSize(), 0u);
  EXPECT_EQ(single.pValue(), 1.0);
  // A = {1, 2}, B = {1, 1}: both values of B go first. Swapped, A = {1, 1} against {1, 2} gives
  // 1/2.
  EXPECT_EQ(compare({1, 2}, {1, 1}).statistic(), 1.0);
  EXPECT_EQ(compare({1, 1}, {1, 2}).statistic(), 0.5);
}

TEST(KolmogorovSmirnov, GivesIdenticalSamplesAPValueOfOne)
{
  for (std::size_t count : {1u, 2u, 5u, 64u, 1000u})
  {
    std::vector<double> values(count);
    std::iota(values.begin(), values.end(), 0.0);
    const Comparison test = compare(values, values);
    EXPECT_NEAR(test.statistic(), 1.0 / static_cast<double>(count), 1e-12);
    EXPECT_EQ(test.pValue(), 1.0);
  }
}

TEST(KolmogorovSmirnov, TreatsEmptySamplesAsNoEvidence)
{
  for (const Comparison& test : {compare({}, {}), compare({1, 2}, {}), compare({}, {1, 2})})
  {
    EXPECT_EQ(test.statistic(), 0.0);
    EXPECT_EQ(test.effectiveSize(), 0u);
    EXPECT_EQ(test.pValue(), 1.0);
  }
}

TEST(KolmogorovSmirnov, AdvancesTheSecondSampleOnNaN)
{
  EXPECT_EQ(compare({1, notANumber}, {2, 3}).statistic(), 0.5);
  EXPECT_EQ(compare({notANumber}, {1, 2, 3, 4}).statistic(), 1.0);
  EXPECT_EQ(compare({1, 2}, {notANumber, notANumber}).statistic(), 1.0);
}

TEST(KolmogorovSmirnov, LimitsAccumulatedRoundingToOne)
{
  const std::vector<double> low(100, 0.0);
  const std::vector<double> high(100, 1.0);
  double sum = 0.0;
  for (int i = 0; i < 100; ++i)
  {
    sum += 1.0 / 100.0;
  }
  ASSERT_GT(sum, 1.0);
  EXPECT_EQ(compare(low, high).statistic(), 1.0);
}

TEST(KolmogorovSmirnov, AgreesWithTheStatisticOfUntiedSamples)
{
  // R 4.2.2: ks.test(c(0.1,0.4,0.7,1.3,2.2), c(0.5,0.9,1.8,2.5,2.9,3.1,4))$statistic
  const Comparison test = compare({0.1, 0.4, 0.7, 1.3, 2.2}, {0.5, 0.9, 1.8, 2.5, 2.9, 3.1, 4});
  EXPECT_NEAR(test.statistic(), 0.5714285714285714, 1e-15);
  EXPECT_EQ(test.effectiveSize(), 2u);
}

TEST(KolmogorovSmirnov, WorksOnAnyForwardIterators)
{
  const std::list<double> a{1, 2, 3, 4};
  const std::vector<float> b{2.5f, 6.0f};
  const KolmogorovSmirnov<std::list<double>::const_iterator, std::vector<float>::const_iterator>
      test(a.begin(), a.end(), b.begin(), b.end());
  EXPECT_EQ(test.statistic(), 0.5);
}

TEST(KolmogorovSmirnovPValue, IsOneUpToTwiceTheReciprocalOfTheSize)
{
  EXPECT_EQ(Comparison::pValue(0.5, 4), 1.0);
  EXPECT_LT(Comparison::pValue(std::nextafter(0.5, 1.0), 4), 1.0);
  EXPECT_EQ(Comparison::pValue(1.0, 2), 1.0);
  EXPECT_EQ(Comparison::pValue(1.0, 0), 1.0);
  EXPECT_EQ(Comparison::pValue(0.0, 100000), 1.0);
  EXPECT_EQ(Comparison::pValue(1e-12, 1000000000), 1.0);
}

TEST(KolmogorovSmirnovPValue, HasAClosedFormNearOne)
{
  EXPECT_DOUBLE_EQ(Comparison::pValue(0.9375, 10), 2.0 * std::pow(2.0, -40));
  EXPECT_NEAR(Comparison::pValue(0.95, 10), 2.0 * std::pow(0.05, 10), 1e-26);
  EXPECT_DOUBLE_EQ(Comparison::pValue(0.999, 200), 2.0 * std::pow(1.0 - 0.999, 200));
  // At 1 - 1/N itself, and at 1, the size and n d^2 decide.
  EXPECT_EQ(Comparison::pValue(0.75, 4), 1.0 - Comparison::durbin(0.75, 4));
  EXPECT_EQ(Comparison::pValue(1.0, 3), 1.0 - Comparison::durbin(1.0, 3));
  EXPECT_EQ(Comparison::pValue(1.0, 10), 0.0);
}

TEST(KolmogorovSmirnovPValue, SwitchesFromDurbinToMillerAtFour)
{
  // 64 / 16 is 4 exactly; for 140 the nearest distances lie just below and just above.
  const double reaching = distanceReaching(140.0, 4.0);
  const double below = std::nextafter(reaching, 0.0);
  for (const auto& [d, n] : {std::make_pair(reaching, 140UL), std::make_pair(0.25, 64UL)})
  {
    EXPECT_EQ(Comparison::pValue(d, n), Comparison::miller(d, n));
    EXPECT_NE(Comparison::pValue(d, n), 1.0 - Comparison::durbin(d, n));
  }
  EXPECT_EQ(Comparison::pValue(below, 140), 1.0 - Comparison::durbin(below, 140));
  EXPECT_NE(Comparison::pValue(below, 140), Comparison::miller(below, 140));
}

TEST(KolmogorovSmirnovPValue, UsesTheSeriesForLargeSamplesUpTo2Point2)
{
  const double at = distanceReaching(141.0, 2.2);
  ASSERT_EQ(141.0 * (at * at), 2.2);
  EXPECT_EQ(Comparison::pValue(at, 141), 1.0 - Comparison::pelzGood(at, 141));
  EXPECT_NE(Comparison::pValue(at, 141), Comparison::miller(at, 141));
  const double above = std::nextafter(at, 1.0);
  EXPECT_EQ(Comparison::pValue(above, 141), Comparison::miller(above, 141));
  // One less in size, and the exact distribution is used.
  EXPECT_EQ(Comparison::pValue(at, 140), 1.0 - Comparison::durbin(at, 140));
}

TEST(KolmogorovSmirnovPValue, IsZeroAbove370)
{
  EXPECT_EQ(Comparison::pValue(0.7, 1000), 0.0);
  const double inside = std::sqrt(365.0 / 10000.0);
  EXPECT_EQ(Comparison::pValue(inside, 10000), Comparison::miller(inside, 10000));
  EXPECT_GT(Comparison::pValue(inside, 10000), 0.0);
  // Next to 370 the tail is too small for a double, but where its last base is rounded to below
  // zero it is NaN, which tells whether it was asked: N d^2 is 369.9972 and 370.0027 here.
  const double below = 1091.0 / 3217.0;
  const double above = 738.0 / 1472.0;
  ASSERT_TRUE(std::isnan(Comparison::miller(below, 3217)));
  ASSERT_TRUE(std::isnan(Comparison::miller(above, 1472)));
  EXPECT_TRUE(std::isnan(Comparison::pValue(below, 3217)));
  EXPECT_EQ(Comparison::pValue(above, 1472), 0.0);
}

TEST(KolmogorovSmirnovPValue, LetsNaNOfTheTailThrough)
{
  // N d^2 = 4.08 selects `miller`, whose last base is rounded to below zero.
  EXPECT_TRUE(std::isnan(Comparison::pValue(7.0 / 12.0, 12)));
  EXPECT_TRUE(std::isnan(Comparison::pValue(notANumber, 12)));
}

TEST(KolmogorovSmirnovPValue, IsOneForVerySmallDistancesOfLargeSamples)
{
  // Above 2/N all terms of the series underflow; the quotients must not become 0/0.
  EXPECT_EQ(Comparison::pValue(3e-9, 1000000000), 1.0);
  EXPECT_EQ(Comparison::pValue(3e-6, 1000000), 1.0);
}

TEST(KolmogorovSmirnovPValue, StaysAProbabilityOnAGridOfSizesAndDistances)
{
  int undefined = 0;
  for (unsigned long n = 1; n <= 400; n += n < 20 ? 1 : 17)
  {
    for (int i = 0; i <= 60; ++i)
    {
      const double p = Comparison::pValue(i / 60.0, n);
      undefined += std::isnan(p) ? 1 : 0;
      EXPECT_TRUE(std::isnan(p) || (p >= 0.0 && p <= 1.0)) << "N = " << n << ", D = " << i << "/60";
    }
  }
  EXPECT_LT(undefined, 60);
}

#include "stats/KolmogorovSmirnovFormulas.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>

using namespace Talmesh::stats;

namespace
{
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

struct TailReference
{
  unsigned long n;
  double d;
  double probability;
};

/// Both series with two hundred terms on each side, whatever their size.
double naivePelzGood(double d, double n)
{
  const double pi = 3.14159265358979323846;
  const double z = d * std::sqrt(n);
  double odd = 0.0;
  double half = 0.0;
  for (int k = -200; k < 200; ++k)
  {
    const double u = k + 0.5;
    odd += std::exp(-pi * pi * u * u / (2.0 * z * z));
    half += (pi * pi * u * u - z * z) * std::exp(-pi * pi * u * u / (2.0 * z * z));
  }
  return std::sqrt(2.0 * pi) / z * odd / 2.0 +
         std::sqrt(pi / 2.0) * half / (6.0 * std::pow(z, 4) * std::sqrt(n));
}
} // namespace

TEST(Miller, IsTwiceTheOneSidedTailWithoutItsFirstTerm)
{
  // SciPy 1.10.1: 2 * (ksone.sf(d, n) - (1 - d)**n)
  const TailReference references[] = {
      {3, 0.5, 0.0833333333333333},      {10, 0.35, 0.107047701442773},
      {16, 0.5, 0.000288065528954606},   {64, 0.25, 0.00051945565886251},
      {100, 0.21, 0.000239473336338363}, {140, 0.3, 1.13702517103254e-11},
      {141, 0.13, 0.0154493403758607},   {200, 0.17, 1.59906854840557e-05},
      {1000, 0.06, 0.00142859788795289}, {1000, 0.5, 1.06451729155778e-231},
      {5000, 0.05, 2.65230523287112e-11}};
  for (const TailReference& reference : references)
  {
    EXPECT_NEAR(miller(reference.d, reference.n), reference.probability,
                1e-9 * reference.probability)
        << "n = " << reference.n << ", d = " << reference.d;
  }
}

TEST(Miller, FollowsClosedForms)
{
  // n = 3, d = 1/2: only j = 1, 2 d * 3 * (1/6)^2. n = 2, d = 1/2: the base of j = 1 is exactly 0.
  EXPECT_NEAR(miller(0.5, 3), 1.0 / 12.0, 1e-15);
  EXPECT_EQ(miller(0.5, 2), 0.0);
  // d > 1 - 1/n leaves the term of j = 0 alone, which counts as 0.
  EXPECT_EQ(miller(0.95, 10), 0.0);
  EXPECT_EQ(miller(1.0, 10), 0.0);
}

TEST(Miller, IsNotANumberWhereRoundingMakesTheLastBaseNegative)
{
  // 1 - 7/12 - 5/12 is rounded to -5.6e-17, and its logarithm is undefined.
  ASSERT_LT(1.0 - 7.0 / 12.0 - 5.0 / 12.0, 0.0);
  EXPECT_TRUE(std::isnan(miller(7.0 / 12.0, 12)));
  // 1 - 3/4 - 1/4 is exactly 0, and the term with it.
  EXPECT_NEAR(miller(0.75, 4), 0.0, 0.0);
}

TEST(Miller, IsZeroForNoDistanceByItsFactor)
{
  for (const unsigned long n : {1UL, 2UL, 10UL, 1000UL})
    EXPECT_EQ(miller(0.0, n), 0.0) << n;
}

TEST(Miller, AnswersOutsideItsDomain)
{
  EXPECT_EQ(miller(-0.5, 10), 1.0);
  EXPECT_EQ(miller(1.5, 10), 0.0);
  EXPECT_EQ(miller(infinity, 10), 0.0);
  EXPECT_TRUE(std::isnan(miller(notANumber, 10)));
  EXPECT_TRUE(std::isnan(miller(0.5, 0)));
}

TEST(PelzGood, AgreesWithTheFullySummedSeries)
{
  for (double n : {141.0, 500.0, 10000.0})
  {
    for (double z : {0.2, 0.4, 0.7, 1.0, 1.3, 1.48, 2.0})
    {
      const double d = z / std::sqrt(n);
      const double expected = naivePelzGood(d, n);
      EXPECT_NEAR(pelzGood(d, static_cast<unsigned long>(n)), expected, 2e-5 * expected)
          << "n = " << n << ", z = " << z;
    }
  }
}

TEST(PelzGood, ApproachesTheExactDistributionWithTheReciprocalOfTheSize)
{
  // SciPy 1.10.1: kstwo.cdf(d, n)
  const TailReference references[] = {
      {141, 0.02, 2.55438712104911e-08}, {141, 0.05, 0.145154306990337},
      {141, 0.08, 0.689158291207359},    {200, 0.06, 0.549841558619781},
      {500, 0.04, 0.609749130395025},    {1000, 0.03, 0.677309785608536},
      {1000, 0.045, 0.966216959854539},  {5000, 0.012, 0.536008783330981},
      {5000, 0.02, 0.963860586046744},   {100000, 0.003, 0.671543667227304}};
  for (const TailReference& reference : references)
  {
    EXPECT_NEAR(pelzGood(reference.d, reference.n), reference.probability,
                0.15 / static_cast<double>(reference.n) + 2e-5)
        << "n = " << reference.n << ", d = " << reference.d;
  }
}

TEST(PelzGood, IsZeroWhereAllTermsUnderflow)
{
  EXPECT_EQ(pelzGood(0.0, 200), 0.0);
  EXPECT_EQ(pelzGood(1e-300, 200), 0.0);
  EXPECT_EQ(pelzGood(1e-4, 200), 0.0);
  EXPECT_EQ(pelzGood(0.5, 0), 0.0);
  EXPECT_EQ(pelzGood(-0.5, 200), 0.0);
}

TEST(PelzGood, IsCertainBeyondTheLargestDistance)
{
  EXPECT_EQ(pelzGood(infinity, 150), 1.0);
  EXPECT_EQ(pelzGood(1.5, 150), 1.0);
  EXPECT_EQ(pelzGood(1e200, 1), 1.0);
  EXPECT_EQ(pelzGood(-infinity, 150), 0.0);
}

TEST(PelzGood, EndsForEveryInput)
{
  const auto start = std::chrono::steady_clock::now();
  for (double d = 1e-320; d < 1e308; d *= 7.3)
  {
    pelzGood(d, 1);
    pelzGood(d, 150);
  }
  for (double d : {notANumber, infinity, -infinity, -0.0, 1.0})
  {
    pelzGood(d, 0);
    pelzGood(d, 150);
    pelzGood(d, std::numeric_limits<unsigned long>::max());
  }
  // z = pi / 2 lets the first summand of the second series vanish or nearly so.
  pelzGood(1.5707963267948966, 1);
  EXPECT_TRUE(std::isnan(pelzGood(notANumber, 150)));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

TEST(EffectiveSampleSize, IsTheRoundedDownHarmonicHalf)
{
  EXPECT_EQ(effectiveSampleSize(3, 3), 1u);
  EXPECT_EQ(effectiveSampleSize(1, 1), 0u);
  EXPECT_EQ(effectiveSampleSize(10, 40), 8u);
  EXPECT_EQ(effectiveSampleSize(0, 5), 0u);
  EXPECT_EQ(effectiveSampleSize(0, 0), 0u);
  EXPECT_EQ(effectiveSampleSize(282, 282), 141u);
}

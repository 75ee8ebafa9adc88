#include "stats/DurbinReference.h"
#include "stats/KolmogorovSmirnovFormulas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <new>
#include <vector>

using namespace Talmesh::stats;

namespace
{
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

using Matrix = std::vector<std::vector<long double>>;

Matrix product(const Matrix& a, const Matrix& b)
{
  Matrix result(a.size(), std::vector<long double>(a.size(), 0.0L));
  for (std::size_t i = 0; i < a.size(); ++i)
  {
    for (std::size_t k = 0; k < a.size(); ++k)
    {
      for (std::size_t j = 0; j < a.size(); ++j)
      {
        result[i][j] += a[i][k] * b[k][j];
      }
    }
  }
  return result;
}

/// Durbin's matrix, filled entry by entry, and its power by repeated products in extended
/// precision. `corner` is the addition to the lower left entry for h > 1/2.
double naiveDurbin(double d, unsigned long n, long double (*corner)(long double h, long double m))
{
  const long double nd = static_cast<long double>(n) * d;
  const auto k = static_cast<std::size_t>(nd + 1.0L);
  const long double h = static_cast<long double>(k) - nd;
  const std::size_t m = 2 * k - 1;
  Matrix base(m, std::vector<long double>(m, 0.0L));
  for (std::size_t i = 0; i < m; ++i)
  {
    for (std::size_t j = 0; j < m && j <= i + 1; ++j)
    {
      long double numerator = 1.0L;
      numerator -= j == 0 ? std::pow(h, static_cast<long double>(i + 1)) : 0.0L;
      numerator -= i == m - 1 ? std::pow(h, static_cast<long double>(m - j)) : 0.0L;
      if (i == m - 1 && j == 0 && h > 0.5L)
      {
        numerator += corner(h, static_cast<long double>(m));
      }
      base[i][j] = numerator / std::tgamma(static_cast<long double>(i + 2 - j));
    }
  }
  Matrix power = base;
  long double factor = 1.0L / static_cast<long double>(n);
  for (unsigned long i = 2; i <= n; ++i)
  {
    power = product(power, base);
    factor *= static_cast<long double>(i) / static_cast<long double>(n);
  }
  return static_cast<double>(power[k - 1][k - 1] * factor);
}

long double plainCorner(long double h, long double)
{
  return 2.0L * h - 1.0L;
}

long double textbookCorner(long double h, long double m)
{
  return std::pow(2.0L * h - 1.0L, m);
}
} // namespace

TEST(Durbin, AgreesWithTheExactDistributionForEverySizeUpTo140)
{
  for (const DurbinReference& reference : durbinReferences)
  {
    EXPECT_NEAR(durbin(reference.d, reference.n), reference.probability,
                1e-10 * reference.probability)
        << "n = " << reference.n << ", d = " << reference.d;
  }
}

TEST(Durbin, FollowsTheClosedFormsOfSmallSamples)
{
  for (double d : {0.5, 0.6, 0.75, 0.9})
  {
    EXPECT_NEAR(durbin(d, 1), 2.0 * d - 1.0, 1e-15);
  }
  // n = 2, 1/4 <= d < 1/2: 2 (2d - 1/2)^2; 1/2 <= d <= 1: 1 - 2 (1 - d)^2. The corner has no part
  // in it.
  for (double d : {0.25, 0.3, 0.45})
  {
    EXPECT_NEAR(durbin(d, 2), 2.0 * (2.0 * d - 0.5) * (2.0 * d - 0.5), 1e-15) << d;
  }
  for (double d : {0.5, 0.6, 0.7, 0.99})
  {
    EXPECT_NEAR(durbin(d, 2), 1.0 - 2.0 * (1.0 - d) * (1.0 - d), 1e-15) << d;
  }
  EXPECT_NEAR(durbin(1.0, 3), 1.0, 1e-14);
}

TEST(Durbin, IsZeroUpToHalfAStepOfTheDistributionFunction)
{
  EXPECT_EQ(durbin(0.0, 7), 0.0);
  EXPECT_NEAR(durbin(0.25, 1), 0.0, 1e-15);
  EXPECT_NEAR(durbin(0.04, 10), 0.0, 1e-15);
  EXPECT_NEAR(durbin(0.05, 10), 0.0, 1e-15);
}

TEST(Durbin, AddsThePlainCornerTermToMatricesOfOrderThreeAndMore)
{
  // The textbook adds the m-th power of 2h - 1; values differ from it where h > 1/2 (n d has a
  // fraction below 1/2), m > 1 (n d >= 1) and n > 2. R 4.2.2, .Call(stats:::C_pKolmogorov2x, d, n):
  const DurbinReference textbook[] = {
      {3, 0.4, 0.405333333333333}, {10, 0.12, 0.00514331602373837}, {10, 0.31, 0.762597197931187}};
  for (const DurbinReference& reference : textbook)
  {
    const double expected = naiveDurbin(reference.d, reference.n, plainCorner);
    EXPECT_NEAR(durbin(reference.d, reference.n), expected, 1e-12 * expected);
    EXPECT_NEAR(naiveDurbin(reference.d, reference.n, textbookCorner), reference.probability,
                1e-12);
    EXPECT_GT(durbin(reference.d, reference.n), reference.probability * (1.0 + 1e-9));
  }
  // n = 3, d = 0.4: h = 0.8, so the corner is larger by (0.6 - 0.6^3) / 3! and Q by as much; times
  // 3!/3^3.
  EXPECT_NEAR(durbin(0.4, 3), 0.405333333333333 + (0.6 - 0.216) / 27.0, 1e-14);
}

TEST(Durbin, AgreesWithRepeatedProductsOnBothSidesOfOneHalf)
{
  for (unsigned long n : {3UL, 8UL, 20UL, 41UL, 99UL})
  {
    for (double nd : {1.1, 1.5, 1.9, 2.3, 4.2, 4.8})
    {
      const double d = nd / static_cast<double>(n);
      if (d < 1.0)
      {
        const double expected = naiveDurbin(d, n, plainCorner);
        EXPECT_NEAR(durbin(d, n), expected, 1e-10 * expected) << "n = " << n << ", n d = " << nd;
      }
    }
  }
}

TEST(Durbin, TakesTheClosedFormOnlyAboveBothOfItsThresholds)
{
  const double d = std::sqrt(3.77 / 100.0);
  const double s = d * d * 100.0;
  EXPECT_DOUBLE_EQ(durbin(d, 100), 1.0 - 2.0 * std::exp(-(2.000071 + 0.0331 + 0.01409) * s));
  const double atThreshold = std::sqrt(3.75 / 100.0);
  EXPECT_NEAR(durbin(atThreshold, 100), naiveDurbin(atThreshold, 100, plainCorner), 1e-10);
  // n = 99 stays with the matrix however large n d^2 is; there is no further shortcut.
  const double large = std::sqrt(7.5 / 99.0);
  EXPECT_NEAR(durbin(large, 99), naiveDurbin(large, 99, plainCorner), 1e-10);
}

TEST(Durbin, AnswersOutsideItsDomain)
{
  EXPECT_EQ(durbin(-0.5, 10), 0.0);
  EXPECT_EQ(durbin(-infinity, 10), 0.0);
  EXPECT_EQ(durbin(1.5, 10), 1.0);
  EXPECT_EQ(durbin(infinity, 10), 1.0);
  EXPECT_TRUE(std::isnan(durbin(notANumber, 10)));
  EXPECT_EQ(durbin(0.5, 0), 1.0);
}

TEST(Durbin, ThrowsWhenItsMatrixDoesNotFitIntoMemory)
{
  EXPECT_THROW(durbin(1e-9, 1000000000000000000UL), std::bad_alloc);
}

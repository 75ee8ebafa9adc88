#include "stats/KolmogorovSmirnov.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace
{
using Comparison = KolmogorovSmirnov<const double*, const double*>;
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Sorted samples of many sizes and kinds: continuous, shifted, tied, constant, with infinities or
/// NaN.
class SampleSource
{
public:
  std::vector<double> next()
  {
    std::vector<double> sample(size());
    const int kind = pick(6);
    const double shift = pick(3) == 0 ? 0.7 * pick(4) : 0.0;
    for (double& value : sample)
    {
      value = draw(kind) + shift;
    }
    std::sort(sample.begin(), sample.end(),
              [](double a, double b) { return std::isnan(b) ? !std::isnan(a) : a < b; });
    return sample;
  }

private:
  int pick(int choices) { return static_cast<int>(generator() % static_cast<unsigned>(choices)); }

  std::size_t size()
  {
    const int range[] = {3, 12, 60, 60, 150, 700};
    return static_cast<std::size_t>(pick(range[pick(6)]));
  }

  double draw(int kind)
  {
    switch (kind)
    {
    case 0:
      return pick(5);
    case 1:
      return 2.0;
    case 2:
      return pick(8) == 0 ? (pick(2) == 0 ? infinity : -infinity) : normal(generator);
    case 3:
      return pick(8) == 0 ? notANumber : normal(generator);
    default:
      return normal(generator);
    }
  }

  std::mt19937 generator{20240917};
  std::normal_distribution<double> normal;
};

double fraction(const std::vector<double>& sample, std::vector<double>::const_iterator end)
{
  return static_cast<double>(end - sample.begin()) / static_cast<double>(sample.size());
}

/// Largest distance of the two empirical distribution functions, looked up by bisection at every
/// value, before and after the first sample has counted it.
double naiveDistance(const std::vector<double>& a, const std::vector<double>& b)
{
  if (a.empty() || b.empty())
  {
    return 0.0;
  }
  std::vector<double> all(a);
  all.insert(all.end(), b.begin(), b.end());
  double largest = 0.0;
  for (double x : all)
  {
    const double ofB = fraction(b, std::upper_bound(b.begin(), b.end(), x));
    const double before = fraction(a, std::lower_bound(a.begin(), a.end(), x));
    const double after = fraction(a, std::upper_bound(a.begin(), a.end(), x));
    largest = std::max({largest, std::abs(before - ofB), std::abs(after - ofB)});
  }
  return largest;
}

bool hasNaN(const std::vector<double>& sample)
{
  return !sample.empty() && std::isnan(sample.back());
}
} // namespace

TEST(KolmogorovSmirnovRandom, StaysDefinedForTenThousandPairsOfSamples)
{
  SampleSource source;
  int compared = 0;
  int large = 0;
  for (int pair = 0; pair < 10000; ++pair)
  {
    const std::vector<double> a = source.next();
    const std::vector<double> b = source.next();
    const Comparison test(a.data(), a.data() + a.size(), b.data(), b.data() + b.size());
    const double d = test.statistic();
    const double p = test.pValue();
    ASSERT_TRUE(d >= 0.0 && d <= 1.0) << "pair " << pair;
    if (std::isnan(p))
    {
      ASSERT_TRUE(std::isnan(Comparison::miller(d, test.effectiveSize()))) << "pair " << pair;
    }
    else
    {
      ASSERT_TRUE(p >= 0.0 && p <= 1.0) << "pair " << pair << ": p = " << p;
    }
    large += test.effectiveSize() > 140 ? 1 : 0;
    if (!hasNaN(a) && !hasNaN(b))
    {
      ++compared;
      ASSERT_NEAR(d, naiveDistance(a, b), 1e-9) << "pair " << pair;
    }
  }
  // The pairs must have reached what they are meant to reach.
  EXPECT_GT(compared, 5000);
  EXPECT_GT(large, 50);
}

TEST(KolmogorovSmirnovRandom, RejectsOneTrueHypothesisInTwentyAtMost)
{
  // Samples of one continuous distribution: the zone of no evidence makes the test conservative.
  std::mt19937 generator(7);
  std::uniform_real_distribution<double> uniform;
  int rejected = 0;
  const int trials = 2000;
  for (int trial = 0; trial < trials; ++trial)
  {
    std::vector<double> a(60);
    std::vector<double> b(90);
    std::generate(a.begin(), a.end(), [&] { return uniform(generator); });
    std::generate(b.begin(), b.end(), [&] { return uniform(generator); });
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    const Comparison test(a.data(), a.data() + a.size(), b.data(), b.data() + b.size());
    rejected += test.pValue() < 0.05 ? 1 : 0;
  }
  EXPECT_LT(rejected, trials * 7 / 100);
  EXPECT_GT(rejected, trials / 100);
}

#include "stats/SobolIndices.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

namespace
{

using Talmesh::stats::estimateSobolIndices;
using Talmesh::stats::SobolIndices;

constexpr double pi = 3.14159265358979323846;
constexpr std::uint32_t seed = 20;

/// T. Ishigami and T. Homma, An importance quantification technique in uncertainty analysis for
/// computer models, 1990: sin x1 + a sin^2 x2 + b x3^4 sin x1 on [-pi, pi]^3.
constexpr double a = 7.0;
constexpr double b = 0.1;

double ishigami(const std::vector<double>& u)
{
  const auto x = [&](std::size_t i) { return pi * (2.0 * u[i] - 1.0); };
  return std::sin(x(0)) + a * std::pow(std::sin(x(1)), 2) + b * std::pow(x(2), 4) * std::sin(x(0));
}

TEST(SobolIndices, AgreeWithTheClosedFormOfTheIshigamiFunction)
{
  // V1 = (1 + b pi^4 / 5)^2 / 2, V2 = a^2 / 8, V3 = 0, V13 = 8 b^2 pi^8 / 225.
  const double v1 = 0.5 * std::pow(1.0 + b * std::pow(pi, 4) / 5.0, 2);
  const double v2 = a * a / 8.0;
  const double v13 = 8.0 * b * b * std::pow(pi, 8) / 225.0;
  const double v = v1 + v2 + v13;
  const SobolIndices indices = estimateSobolIndices([](const std::vector<double>& u)
                                                    { return std::vector<double>{ishigami(u)}; },
                                                    3, 16384, seed);
  // Points of a Sobol sequence; as many independent points err by about 0.01.
  constexpr double tolerance = 0.002;
  EXPECT_NEAR(indices.firstOrder[0][0], v1 / v, tolerance);
  EXPECT_NEAR(indices.firstOrder[0][1], v2 / v, tolerance);
  EXPECT_NEAR(indices.firstOrder[0][2], 0.0, tolerance);
  EXPECT_NEAR(indices.total[0][0], (v1 + v13) / v, tolerance);
  EXPECT_NEAR(indices.total[0][1], v2 / v, tolerance);
  EXPECT_NEAR(indices.total[0][2], v13 / v, tolerance);
}

TEST(SobolIndices, AreThoseOfTheTermsOfAnAdditiveModelForEveryOutput)
{
  // Var(c u) = c^2 / 12, so that the shares are 1 : 9 and 16 : 0.
  const auto model = [](const std::vector<double>& u) {
    return std::vector<double>{u[0] + 3.0 * u[1], 4.0 * u[0]};
  };
  const SobolIndices indices = estimateSobolIndices(model, 2, 20000, seed);
  EXPECT_NEAR(indices.firstOrder[0][0], 0.1, 0.02);
  EXPECT_NEAR(indices.firstOrder[0][1], 0.9, 0.02);
  EXPECT_NEAR(indices.total[0][0], 0.1, 0.02);
  EXPECT_NEAR(indices.firstOrder[1][0], 1.0, 0.03);
  EXPECT_DOUBLE_EQ(indices.total[1][1], 0.0);
}

TEST(SobolIndices, AreTheSameEveryTime)
{
  const auto model = [](const std::vector<double>& u) { return std::vector<double>{u[0] * u[1]}; };
  const SobolIndices first = estimateSobolIndices(model, 2, 50, seed);
  EXPECT_EQ(first.total, estimateSobolIndices(model, 2, 50, seed).total);
  EXPECT_NE(first.total, estimateSobolIndices(model, 2, 50, seed + 1).total);
}

TEST(SobolIndices, EvaluateTheModelOncePerPoint)
{
  int calls = 0;
  estimateSobolIndices(
      [&](const std::vector<double>&)
      {
        ++calls;
        return std::vector<double>{1.0 * calls};
      },
      3, 10, seed);
  EXPECT_EQ(calls, 10 * (3 + 2));
}

TEST(SobolIndices, AreEmptyWhenTheModelGivesUp)
{
  // A sample of three inputs takes five points.
  for (int last = 0; last < 6; ++last)
  {
    int calls = 0;
    const auto model = [&](const std::vector<double>& u)
    { return calls++ < last ? u : std::vector<double>(); };
    EXPECT_TRUE(estimateSobolIndices(model, 3, 10, seed).total.empty()) << last;
    EXPECT_EQ(calls, last + 1) << "is not asked again";
  }
}

TEST(SobolIndices, AreNoNumbersForAnOutputThatDoesNotVary)
{
  // Only the first of these is exact in binary.
  for (const double value : {2.0, 0.1, 0.3, 1.0 / 3.0, 0.7, -1e8})
  {
    for (const std::size_t samples : {8U, 100U, 512U})
    {
      const SobolIndices indices = estimateSobolIndices([value](const std::vector<double>&)
                                                        { return std::vector<double>{value}; },
                                                        1, samples, seed);
      EXPECT_TRUE(std::isnan(indices.firstOrder[0][0])) << value << ' ' << samples;
      EXPECT_TRUE(std::isnan(indices.total[0][0])) << value << ' ' << samples;
    }
  }
}

TEST(SobolIndices, DoNotDependOnTheMeanOfAnOutput)
{
  for (const double mean : {1e6, 1e8, -1e10})
  {
    const auto model = [mean](const std::vector<double>& u)
    {
      const double value = u[0] + 3.0 * u[1];
      return std::vector<double>{value, mean + value};
    };
    const SobolIndices indices = estimateSobolIndices(model, 2, 1000, seed);
    for (const std::size_t input : {0U, 1U})
    {
      // At 1e10 an output is rounded to 2e-6.
      EXPECT_NEAR(indices.firstOrder[0][input], indices.firstOrder[1][input], 1e-5) << mean;
      EXPECT_NEAR(indices.total[0][input], indices.total[1][input], 1e-5) << mean;
    }
  }
}

TEST(SobolIndices, AreRefusedForMoreInputsThanTheSequenceHasDimensionsFor)
{
  // Two coordinates per input, of 3667 in all.
  const auto model = [](const std::vector<double>& u) { return std::vector<double>{u[0]}; };
  EXPECT_NO_THROW(estimateSobolIndices(model, 1833, 1, seed));
  EXPECT_THROW(estimateSobolIndices(model, 1834, 1, seed), std::invalid_argument);
}

TEST(SobolIndices, AreEmptyWithoutInputsOrSamples)
{
  EXPECT_TRUE(estimateSobolIndices([](const std::vector<double>& u) { return u; }, 0, 10, seed)
                  .total.empty());
  EXPECT_TRUE(estimateSobolIndices([](const std::vector<double>& u) { return u; }, 2, 0, seed)
                  .total.empty());
}

} // namespace

#include "external/Distribution.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace
{

const double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double largest = std::numeric_limits<double>::max();

using Range = std::pair<double, double>;

// Midpoint rule over the drawn range.
double mass(const Distribution& distribution)
{
  constexpr int steps = 100000;
  const Range range = distribution.range(3);
  const double step = (range.second - range.first) / steps;
  double sum = 0.0;
  for (int i = 0; i < steps; ++i)
    sum += distribution.density(range.first + (i + 0.5) * step);
  return sum * step;
}

} // namespace

TEST(UniformDistribution, IsConstantWithinItsBounds)
{
  const UniformDistribution distribution(1.0, 5.0);
  EXPECT_EQ(distribution.density(1.0), 0.25);
  EXPECT_EQ(distribution.density(2.0), 0.25);
  EXPECT_EQ(distribution.density(5.0), 0.25);
  EXPECT_EQ(distribution.range(1), Range(1.0, 5.0));
  EXPECT_EQ(distribution.range(9), Range(1.0, 5.0));
  EXPECT_NE(distribution.kind(), 5);
}

TEST(UniformDistribution, IsZeroOutside)
{
  const UniformDistribution distribution(1.0, 5.0);
  EXPECT_EQ(distribution.density(0.999), 0.0);
  EXPECT_EQ(distribution.density(5.001), 0.0);
  EXPECT_EQ(distribution.density(-infinity), 0.0);
  EXPECT_EQ(distribution.density(infinity), 0.0);
}

TEST(UniformDistribution, RefusesBoundsThatSpanNoFiniteInterval)
{
  EXPECT_THROW(UniformDistribution(1.0, 1.0), std::invalid_argument);
  EXPECT_THROW(UniformDistribution(2.0, 1.0), std::invalid_argument);
  EXPECT_THROW(UniformDistribution(notANumber, 1.0), std::invalid_argument);
  EXPECT_THROW(UniformDistribution(0.0, notANumber), std::invalid_argument);
  EXPECT_THROW(UniformDistribution(0.0, infinity), std::invalid_argument);
  EXPECT_THROW(UniformDistribution(-infinity, 0.0), std::invalid_argument);
  EXPECT_THROW(UniformDistribution(-largest, largest), std::invalid_argument);
}

TEST(LogUniformDistribution, FallsAsTheReciprocal)
{
  const LogUniformDistribution distribution(0.5, 20.0);
  // scipy.stats.loguniform.pdf(3, 0.5, 20)
  EXPECT_NEAR(distribution.density(3.0), 0.09036167689393892, 1e-15);
  EXPECT_NEAR(distribution.density(0.5), 1.0 / (0.5 * std::log(40.0)), 1e-14);
  EXPECT_NEAR(distribution.density(20.0), 1.0 / (20.0 * std::log(40.0)), 1e-14);
  EXPECT_EQ(distribution.range(1), Range(0.5, 20.0));
  EXPECT_NE(distribution.kind(), 5);
}

TEST(LogUniformDistribution, IsZeroOutside)
{
  const LogUniformDistribution distribution(0.5, 20.0);
  for (double x : {-infinity, -1.0, 0.0, 0.499, 20.001, infinity})
    EXPECT_EQ(distribution.density(x), 0.0) << x;
}

TEST(LogUniformDistribution, RefusesBoundsWithoutALogarithm)
{
  EXPECT_THROW(LogUniformDistribution(0.0, 1.0), std::invalid_argument);
  EXPECT_THROW(LogUniformDistribution(-1.0, 1.0), std::invalid_argument);
  EXPECT_THROW(LogUniformDistribution(1.0, 1.0), std::invalid_argument);
  EXPECT_THROW(LogUniformDistribution(2.0, 1.0), std::invalid_argument);
  EXPECT_THROW(LogUniformDistribution(1.0, infinity), std::invalid_argument);
  EXPECT_THROW(LogUniformDistribution(notANumber, 1.0), std::invalid_argument);
  EXPECT_THROW(LogUniformDistribution(1.0, notANumber), std::invalid_argument);
}

TEST(LogUniformDistribution, RefusesBoundsWithTheSameLogarithm)
{
  EXPECT_THROW(LogUniformDistribution(1e300, std::nextafter(1e300, infinity)),
               std::invalid_argument);
}

TEST(LogUniformDistribution, SpansAllFinitePositiveNumbers)
{
  const LogUniformDistribution distribution(1e-300, 1e300);
  EXPECT_NEAR(distribution.density(1.0) * 600.0 * std::log(10.0), 1.0, 1e-14);
}

TEST(NormalDistribution, IsTheBellCurve)
{
  const NormalDistribution distribution(2.0, 0.5);
  // scipy.stats.norm.pdf(1.3, 2, 0.5)
  EXPECT_NEAR(distribution.density(1.3), 0.2994549312714898, 1e-15);
  EXPECT_EQ(distribution.density(infinity), 0.0);
  EXPECT_EQ(distribution.density(-infinity), 0.0);
  EXPECT_NE(distribution.kind(), 5);
}

TEST(NormalDistribution, RangeGrowsByThreeDeviationsPerUnitOfExtent)
{
  const NormalDistribution distribution(2.0, 0.5);
  EXPECT_EQ(distribution.range(1), Range(0.5, 3.5));
  EXPECT_EQ(distribution.range(2), Range(-1.0, 5.0));
  EXPECT_EQ(distribution.range(0), Range(0.5, 3.5));
  EXPECT_EQ(distribution.range(-7), Range(0.5, 3.5));
}

TEST(NormalDistribution, RefusesParametersWithoutADensity)
{
  EXPECT_THROW(NormalDistribution(0.0, 0.0), std::invalid_argument);
  EXPECT_THROW(NormalDistribution(0.0, -1.0), std::invalid_argument);
  EXPECT_THROW(NormalDistribution(0.0, infinity), std::invalid_argument);
  EXPECT_THROW(NormalDistribution(0.0, notANumber), std::invalid_argument);
  EXPECT_THROW(NormalDistribution(infinity, 1.0), std::invalid_argument);
  EXPECT_THROW(NormalDistribution(notANumber, 1.0), std::invalid_argument);
}

TEST(PointMassDistribution, HasAllItsMassOnTheValue)
{
  const PointMassDistribution distribution(4.0);
  EXPECT_EQ(distribution.kind(), 5);
  EXPECT_EQ(distribution.range(1), Range(4.0, 4.0));
  EXPECT_EQ(distribution.density(4.0), infinity);
  EXPECT_EQ(distribution.density(4.0001), 0.0);
  EXPECT_EQ(distribution.density(infinity), 0.0);
}

TEST(PointMassDistribution, RefusesAValueThatIsNotFinite)
{
  EXPECT_THROW(PointMassDistribution{notANumber}, std::invalid_argument);
  EXPECT_THROW(PointMassDistribution{-infinity}, std::invalid_argument);
}

TEST(Distributions, AnswerNaNWithNaN)
{
  EXPECT_TRUE(std::isnan(UniformDistribution(0.0, 1.0).density(notANumber)));
  EXPECT_TRUE(std::isnan(LogUniformDistribution(1.0, 2.0).density(notANumber)));
  EXPECT_TRUE(std::isnan(NormalDistribution(0.0, 1.0).density(notANumber)));
  EXPECT_TRUE(std::isnan(PointMassDistribution(0.0).density(notANumber)));
}

TEST(Distributions, HaveUnitMass)
{
  EXPECT_NEAR(mass(UniformDistribution(-3.0, 4.0)), 1.0, 1e-9);
  EXPECT_NEAR(mass(LogUniformDistribution(0.5, 20.0)), 1.0, 1e-6);
  EXPECT_NEAR(mass(NormalDistribution(2.0, 0.5)), 1.0, 1e-9);
}

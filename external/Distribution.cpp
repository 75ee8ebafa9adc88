#include "external/Distribution.h"

#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/uniform.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace
{

// A NaN argument is answered with a NaN instead of an exception.
using Quiet = boost::math::policies::policy<
    boost::math::policies::domain_error<boost::math::policies::ignore_error>>;
using Uniform = boost::math::uniform_distribution<double, Quiet>;
using Normal = boost::math::normal_distribution<double, Quiet>;

} // namespace

Distribution::~Distribution() = default;

UniformDistribution::UniformDistribution(double lo, double hi)
    : lower(lo)
    , upper(hi)
{
  // An infinite bound or a NaN makes the distance non-finite as well.
  if (!(lo < hi) || !std::isfinite(hi - lo))
    throw std::invalid_argument("UniformDistribution: the bounds must be finite and increasing");
}

double UniformDistribution::density(double x) const
{
  return std::isinf(x) ? 0.0 : pdf(::Uniform(lower, upper), x);
}

std::pair<double, double> UniformDistribution::range(int) const
{
  return {lower, upper};
}

LogUniformDistribution::LogUniformDistribution(double lo, double hi)
    : lower(lo)
    , upper(hi)
{
  if (!(lo > 0.0) || !std::isfinite(hi) || !(std::log(lo) < std::log(hi)))
    throw std::invalid_argument(
        "LogUniformDistribution: the logarithms of the bounds must be finite and increasing");
}

double LogUniformDistribution::density(double x) const
{
  if (x < lower || x > upper)
    return 0.0;
  return pdf(::Uniform(std::log(lower), std::log(upper)), std::log(x)) / x;
}

std::pair<double, double> LogUniformDistribution::range(int) const
{
  return {lower, upper};
}

NormalDistribution::NormalDistribution(double meanValue, double standardDeviation)
    : mean(meanValue)
    , sd(standardDeviation)
{
  if (!std::isfinite(mean) || !std::isfinite(sd) || !(sd > 0.0))
    throw std::invalid_argument(
        "NormalDistribution: the mean must be finite, the standard deviation finite and positive");
}

double NormalDistribution::density(double x) const
{
  return pdf(::Normal(mean, sd), x);
}

std::pair<double, double> NormalDistribution::range(int extent) const
{
  const double halfWidth = 3.0 * sd * std::max(extent, 1);
  return {mean - halfWidth, mean + halfWidth};
}

PointMassDistribution::PointMassDistribution(double fixedValue)
    : value(fixedValue)
{
  if (!std::isfinite(value))
    throw std::invalid_argument("PointMassDistribution: the value must be finite");
}

double PointMassDistribution::density(double x) const
{
  if (std::isnan(x))
    return x;
  return x == value ? std::numeric_limits<double>::infinity() : 0.0;
}

std::pair<double, double> PointMassDistribution::range(int) const
{
  return {value, value};
}

#include "external/UnivariateDensityDerivative.h"

#include <boost/math/constants/constants.hpp>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace
{

/// Bandwidths in front of a target where the terms become too small to matter for most sums.
constexpr double reach = 11.0;

/// Makes a term a bound of all those farther away: far more than rounding can change.
constexpr double margin = 1.0000001;

/// Adding up to this part of a sum is rounded off: half of the sum's last bit is no smaller.
constexpr double roundedOff = 0x1p-54;

bool isAscending(const double* values, int count)
{
  for (int i = 0; i < count; ++i)
  {
    if (!std::isfinite(values[i]) || (i > 0 && values[i] < values[i - 1]))
      return false;
  }
  return true;
}

} // namespace

UnivariateDensityDerivative::UnivariateDensityDerivative(int sourceCountIn, int targetCountIn,
                                                         double* sourcesIn, double* targetsIn,
                                                         double bandwidthIn, int order, double,
                                                         double* outputIn)
    : sourceCount(sourceCountIn)
    , targetCount(targetCountIn)
    , sources(sourcesIn)
    , targets(targetsIn)
    , bandwidth(bandwidthIn)
    , output(outputIn)
{
  if (order != 0)
    throw std::invalid_argument("UnivariateDensityDerivative: only order 0 is provided");
  if (sourceCount < 0 || targetCount < 0)
    throw std::invalid_argument("UnivariateDensityDerivative: negative count");
  if (bandwidth <= 0.0)
    throw std::invalid_argument("UnivariateDensityDerivative: the bandwidth must be positive");
}

void UnivariateDensityDerivative::Evaluate()
{
  const bool ascending = isAscending(sources, sourceCount);
  const double scale = sourceCount * bandwidth * boost::math::constants::root_two_pi<double>();
  for (int i = 0; i < targetCount; ++i)
  {
    const double target = targets[i];
    const bool bounded = ascending && std::isfinite(target);
    output[i] = (bounded ? sumOfAscending(target) : sumOfAll(target)) / scale;
  }
}

double UnivariateDensityDerivative::term(double target, int source) const
{
  const double distance = (target - sources[source]) / bandwidth;
  return std::exp(-0.5 * distance * distance);
}

double UnivariateDensityDerivative::sumOfAll(double target) const
{
  double sum = 0.0;
  for (int i = 0; i < sourceCount; ++i)
    sum += term(target, i);
  return sum;
}

/// Of the sources far in front of the target only a bound of their sum is known, so the sum is
/// carried along twice, from 0 and from that bound. Adding a term and rounding keeps the order of
/// the two, and the true sum between them: once they are equal, both are it. Mostly the first large
/// terms make them so. Behind the target the sum ends where the terms are rounded off.
double UnivariateDensityDerivative::sumOfAscending(double target) const
{
  const double* near = std::lower_bound(sources, sources + sourceCount, target - reach * bandwidth);
  const int skipped = static_cast<int>(near - sources);
  double low = 0.0;
  double high = skipped > 0 ? skipped * margin * term(target, skipped - 1) : 0.0;
  for (int i = skipped; i < sourceCount; ++i)
  {
    const double next = term(target, i);
    if (sources[i] > target && margin * next <= roundedOff * low)
      break;
    low += next;
    high += next;
  }
  return low == high ? low : sumOfAll(target);
}

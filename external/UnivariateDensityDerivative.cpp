#include "external/UnivariateDensityDerivative.h"

#include <boost/math/constants/constants.hpp>

#include <algorithm>
#include <cmath>
#include <stdexcept>

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
  std::transform(targets, targets + targetCount, output,
                 [this](double target) { return densityAt(target); });
}

double UnivariateDensityDerivative::densityAt(double target) const
{
  double sum = 0.0;
  for (int i = 0; i < sourceCount; ++i)
  {
    const double distance = (target - sources[i]) / bandwidth;
    sum += std::exp(-0.5 * distance * distance);
  }
  return sum / (sourceCount * bandwidth * boost::math::constants::root_two_pi<double>());
}

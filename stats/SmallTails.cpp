#include "stats/SmallTails.h"

#include <boost/math/special_functions/gamma.hpp>

#include <cmath>

namespace Talmesh::stats
{
namespace
{
/// Gamma(a, x) exp(x) x^-a for x well above a, by Legendre's continued fraction 1 / (x + 1 - a - 1
/// (1 - a) / (x + 3 - a - ...)) from the inside out.
double scaledGamma(double a, double x)
{
  double fraction = 0.0;
  for (int k = 60; k > 0; --k)
    fraction = k * (k - a) / (x + 2.0 * k + 1.0 - a - fraction);
  return 1.0 / (x + 1.0 - a - fraction);
}
} // namespace

double logErfc(double x)
{
  const double p = std::erfc(x);
  // erfc(x) = Q(1/2, x^2) for positive x.
  return p > smallestSafeP ? std::log(p) : logGammaQ(0.5, x * x);
}

double logGammaQ(double a, double x)
{
  if (x < 600.0)
    return std::log(boost::math::gamma_q(a, x));
  return a * std::log(x) - x + std::log(scaledGamma(a, x)) - boost::math::lgamma(a);
}
} // namespace Talmesh::stats

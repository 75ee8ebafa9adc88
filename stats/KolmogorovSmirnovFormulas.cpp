#include "stats/KolmogorovSmirnovFormulas.h"

#include <Eigen/Dense>
#include <boost/math/special_functions/gamma.hpp>

#include <cmath>
#include <unsupported/Eigen/MatrixFunctions>

namespace Talmesh::stats
{
namespace
{
constexpr double piSquared = 9.869604401089358;
constexpr double sqrtTwoPi = 2.5066282746310007;
constexpr double sqrtHalfPi = 1.2533141373155003;
constexpr double seriesTolerance = 1e-5;

Eigen::MatrixXd durbinMatrix(Eigen::Index order, double h)
{
  Eigen::MatrixXd matrix(order, order);
  for (Eigen::Index i = 0; i < order; ++i)
  {
    for (Eigen::Index j = 0; j < order; ++j)
      matrix(i, j) = j <= i + 1 ? 1.0 : 0.0;
  }
  for (Eigen::Index i = 0; i < order; ++i)
  {
    matrix(i, 0) -= std::pow(h, static_cast<double>(i + 1));
    matrix(order - 1, i) -= std::pow(h, static_cast<double>(order - i));
  }
  if (2.0 * h - 1.0 > 0.0)
    matrix(order - 1, 0) += 2.0 * h - 1.0;
  for (Eigen::Index i = 0; i < order; ++i)
  {
    for (Eigen::Index j = 0; j <= i; ++j)
    {
      for (Eigen::Index divisor = 1; divisor <= i - j + 1; ++divisor)
        matrix(i, j) /= static_cast<double>(divisor);
    }
  }
  return matrix;
}

double logGamma(unsigned long integerBelow)
{
  return static_cast<double>(boost::math::lgamma(static_cast<long double>(integerBelow) + 1.0L));
}

/// Sum over k = 1, 3, 5, ... of exp(-pi^2 k^2 / (8 z^2)).
double oddSeries(double z)
{
  double sum = 0.0;
  for (double k = 1.0;; k += 2.0)
  {
    const double term = std::exp(-piSquared * k * k / (8.0 * z * z));
    sum += term;
    // A vanished or undefined term cannot pass the relative test when the sum is 0 or NaN as well.
    if (term == 0.0 || !std::isfinite(term) || term / sum <= seriesTolerance)
      return sum;
  }
}

/// Sum over all half-integers u of (pi^2 u^2 - z^2) exp(-pi^2 u^2 / (2 z^2)).
double halfIntegerSeries(double z)
{
  const auto summand = [z](double u)
  {
    const double square = piSquared * u * u;
    return (square - z * z) * std::exp(-square / (2.0 * z * z));
  };
  double sum = summand(0.5);
  for (double k = 1.0;; k += 1.0)
  {
    const double above = summand(k + 0.5);
    const double below = summand(0.5 - k);
    sum += above;
    sum += below;
    const bool vanished = above == 0.0 && below == 0.0;
    const bool converged =
        std::abs(below / sum) <= seriesTolerance && std::abs(above / sum) <= seriesTolerance;
    if (vanished || converged || !std::isfinite(sum))
      return sum;
  }
}

double unclampedPValue(double d, unsigned long n)
{
  const double size = static_cast<double>(n);
  const double scaledSquare = size * (d * d);
  if (d > 1.0 - 1.0 / size && d < 1.0)
    return 2.0 * std::pow(1.0 - d, size);
  if (n <= 140)
    return scaledSquare < 4.0 ? 1.0 - durbin(d, n) : miller(d, n);
  if (scaledSquare > 370.0)
    return 0.0;
  return scaledSquare > 2.2 ? miller(d, n) : 1.0 - pelzGood(d, n);
}
} // namespace

double durbin(double d, unsigned long n)
{
  if (!(d >= 0.0 && d <= 1.0))
    return std::isnan(d) ? d : (d < 0.0 ? 0.0 : 1.0);
  const double size = static_cast<double>(n);
  const double s = d * d * size;
  if (s > 3.76 && n > 99)
    return 1.0 - 2.0 * std::exp(-(2.000071 + 0.331 / std::sqrt(size) + 1.409 / size) * s);
  const auto k = static_cast<Eigen::Index>(std::floor(size * d + 1.0));
  const double h = static_cast<double>(k) - size * d;
  // The power is taken through the call operator, which sizes its result also for a 1 x 1 matrix.
  const Eigen::MatrixXd base = durbinMatrix(2 * k - 1, h);
  Eigen::MatrixPower<Eigen::MatrixXd> power(base);
  const Eigen::MatrixXd result = power(size);
  double probability = result(k - 1, k - 1);
  for (unsigned long i = 1; i <= n; ++i)
    probability *= static_cast<double>(i) / size;
  return probability;
}

double miller(double d, unsigned long n)
{
  if (!(d >= 0.0 && d <= 1.0))
    return std::isnan(d) ? d : (d < 0.0 ? 1.0 : 0.0);
  const double size = static_cast<double>(n);
  const double lastTerm = std::floor(size * (1.0 - d));
  const unsigned long last = lastTerm < size ? static_cast<unsigned long>(lastTerm) : n;
  const double logFactorial = logGamma(n);
  double sum = 0.0;
  for (unsigned long j = 0;; ++j)
  {
    const double logChoose = logFactorial - logGamma(n - j) - logGamma(j);
    const double fraction = static_cast<double>(j) / size;
    const double base = 1.0 - d - fraction;
    // For j = 0 the unsigned factor wraps to 2^64 - 1, which removes that term from the sum. A base
    // of 0 gives no term; for d = 0 its exponent is 0 as well, and the logarithm would make it NaN.
    if (base != 0.0)
      sum += std::exp(logChoose + static_cast<double>(j - 1) * std::log(d + fraction) +
                      static_cast<double>(n - j) * std::log(base));
    if (j == last)
      return 2.0 * d * sum;
  }
}

double pelzGood(double d, unsigned long n)
{
  if (d < 0.0 || d > 1.0)
    return d < 0.0 ? 0.0 : 1.0;
  const double z = d * std::sqrt(static_cast<double>(n));
  const double odd = oddSeries(z);
  if (odd == 0.0)
  {
    // Both series underflow together; the quotients by powers of z would be 0/0.
    return 0.0;
  }
  const double leading = odd * sqrtTwoPi / z;
  const double correction = halfIntegerSeries(z);
  return leading +
         sqrtHalfPi * correction / (6.0 * z * z * z * z * std::sqrt(static_cast<double>(n)));
}

double kolmogorovSmirnovPValue(double d, unsigned long n)
{
  if (std::isnan(d))
    return d;
  if (d <= 2.0 / static_cast<double>(n))
    return 1.0;
  const double p = unclampedPValue(d, n);
  return p > 1.0 ? 1.0 : p;
}

unsigned long effectiveSampleSize(double countA, double countB)
{
  const double total = countA + countB;
  return total > 0.0 ? static_cast<unsigned long>(std::floor(countA * countB / total)) : 0;
}
} // namespace Talmesh::stats

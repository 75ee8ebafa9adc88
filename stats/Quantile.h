#ifndef Quantile_h
#define Quantile_h

#include <array>
#include <cstddef>
#include <vector>

namespace Talmesh::stats
{
/// Quantile of ascending values by the inverse of the empirical distribution function with
/// averaging: where n p is a whole number k, the mean of the k-th and (k+1)-th value, else the
/// ceil(n p)-th. p <= 0 gives the smallest and p >= 1 the largest value; no values, or p = NaN,
/// give NaN.
double averagedQuantile(const std::vector<double>& sorted, double p);

/// Minimum, lower quartile, median, upper quartile, maximum.
using FiveNumbers = std::array<double, 5>;

/// The quartiles of values in any order, as averagedQuantile() has them. NaN is left out; without
/// another value all are NaN. `values` is reordered and loses its NaN.
FiveNumbers fiveNumbers(std::vector<double>& values);

/// The five numbers of each of `positions` positions over `count` runs that are stored one after
/// another.
std::vector<FiveNumbers> fiveNumbersOfPositions(const double* runs, std::size_t count,
                                                std::size_t positions);
} // namespace Talmesh::stats

#endif

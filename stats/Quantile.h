#ifndef Quantile_h
#define Quantile_h

#include <vector>

namespace Talmesh::stats
{
/// Quantile of ascending values by the inverse of the empirical distribution function with
/// averaging: where n p is a whole number k, the mean of the k-th and (k+1)-th value, else the
/// ceil(n p)-th. p <= 0 gives the smallest and p >= 1 the largest value; no values, or p = NaN,
/// give NaN.
double averagedQuantile(const std::vector<double>& sorted, double p);
} // namespace Talmesh::stats

#endif

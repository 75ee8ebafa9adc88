#ifndef FamilyWiseError_h
#define FamilyWiseError_h

#include <vector>

namespace Talmesh::stats
{
/// Adjusted p-values that bound the probability of any false rejection (S. Holm, A simple
/// sequentially rejective multiple test procedure, Scandinavian Journal of Statistics 6, 1979,
/// 65-70): for the i-th smallest of n p-values the maximum over all k <= i of (n - k + 1) p_k, at
/// most 1. Same order and length as the argument. NaN stays NaN and does not count as a test.
std::vector<double> holm(const std::vector<double>& pValues);
} // namespace Talmesh::stats

#endif

#ifndef FalseDiscovery_h
#define FalseDiscovery_h

#include <vector>

namespace Talmesh::stats
{
/// Adjusted p-values that control the false discovery rate (Benjamini and Hochberg 1995, J. R.
/// Stat. Soc. B 57): for the i-th smallest of n p-values the minimum over all k >= i of p_k n / k,
/// at most 1. Same order and length as the argument. NaN stays NaN and does not count as a test.
std::vector<double> benjaminiHochberg(const std::vector<double>& pValues);
} // namespace Talmesh::stats

#endif

#ifndef AdjustedPValues_h
#define AdjustedPValues_h

#include <vector>

/// P-values adjusted for the number of tests, in the order and length of the argument. NaN stays
/// NaN and does not count as a test.
namespace Talmesh::stats
{
/// Controls the false discovery rate (Benjamini and Hochberg 1995, J. R. Stat. Soc. B 57): for the
/// i-th smallest of n p-values the minimum over all k >= i of p_k n / k, at most 1.
std::vector<double> benjaminiHochberg(const std::vector<double>& pValues);

/// Bounds the probability of any false rejection (S. Holm, A simple sequentially rejective multiple
/// test procedure, Scandinavian Journal of Statistics 6, 1979, 65-70): for the i-th smallest of n
/// p-values the maximum over all k <= i of (n - k + 1) p_k, at most 1.
std::vector<double> holm(const std::vector<double>& pValues);
} // namespace Talmesh::stats

#endif

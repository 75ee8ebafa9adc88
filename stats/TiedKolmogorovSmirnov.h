#ifndef TiedKolmogorovSmirnov_h
#define TiedKolmogorovSmirnov_h

#include "stats/TieBlocks.h"

#include <cstdint>

/// Two-sample Kolmogorov-Smirnov test that counts ties as they are: the distribution functions are
/// compared behind each block of equal values only, and p is conditional on the blocks.
/// `stats/KolmogorovSmirnov.h` is the test of distinct values that the charts' titles follow.
namespace Talmesh::stats
{
/// Largest differences of the two empirical distribution functions, in steps of 1 / (m n) for m
/// selected runs and n others.
struct KsDistance
{
  GroupSizes sizes;
  /// By which the others' function lies above that of the selected runs, at most: they have larger
  /// values.
  std::uint64_t larger = 0;
  /// The same the other way round: the selected runs have smaller values.
  std::uint64_t smaller = 0;

  std::uint64_t steps() const { return larger > smaller ? larger : smaller; }
  /// D, in [0, 1]; NaN without runs in one of the groups.
  double distance() const;
};

/// O(blocks). @throws std::length_error as groupSizes() does
KsDistance ksDistance(const TieBlocks& blocks);

/// Up to this many products of the groups' sizes p is exact: 5,000 by 5,000 runs, below 0.1 s.
constexpr std::uint64_t largestExactKs = 25'000'000;

/// P(D >= d) for two samples of the sizes and ties of `blocks`, d = steps / (m n), if every choice
/// of the selected ones among all runs is equally likely.
///
/// Exact up to rounding, by the recursion along the antidiagonals of the lattice of (i selected, j
/// others): C(i, j) = 1 where i + j ends a block and |i n - j m| >= steps, else [i C(i - 1, j) + j
/// C(i, j - 1)] / (i + j) (G. Schröer, D. Trenkler, Exact and randomization distributions of
/// Kolmogorov-Smirnov tests two or three samples, Computational Statistics & Data Analysis 20,
/// 1995, 185-202; T. Viehmann, Numerically more stable computation of the p-values for the
/// two-sample Kolmogorov-Smirnov test, arXiv:2102.08037, 2021). All terms are positive: the
/// relative error is below 4 (m + n) 2^-53 for p above 1e-300; smaller ones lose digits, below
/// 1e-323 p is 0. O(m n) time, O(min(m, n) + blocks) memory, whatever the
/// size: the caller looks at `largestExactKs`.
/// @return in [0, 1]; NaN without runs in one of the groups
/// @throws std::length_error as groupSizes() does
double exactKsTail(const TieBlocks& blocks, std::uint64_t steps);

/// P(D >= d) by the limit for large samples without ties, 2 sum (-1)^(k-1) exp(-2 k^2 z^2), z = d
/// sqrt(m n / (m + n)) (A. N. Kolmogorov 1933, N. V. Smirnov 1939). With ties it is too large.
/// @return in [0, 1]; NaN without runs in one of the groups
double asymptoticKsTail(const GroupSizes& sizes, double distance);

struct KsTest
{
  KsDistance distance;
  double p = 0.0;
  /// Natural logarithm of p, also where that is below what doubles hold; where long doubles reach
  /// no further, as with some compilers, not below that of the smallest double.
  double logP = 0.0;
  /// False above `largestExactKs`, where p is the asymptotic one.
  bool exact = true;
};

/// NaN as p and its logarithm without runs in one of the groups. @throws std::length_error as
/// groupSizes() does
KsTest tiedKsTest(const TieBlocks& blocks);
} // namespace Talmesh::stats

#endif

#ifndef LevelCounts_h
#define LevelCounts_h

#include "stats/TieBlocks.h"

#include <cstddef>

/// Tests of a table of counts: how many selected runs and others have each level of a parameter.
/// The order of the levels does not count.
namespace Talmesh::stats
{
/// Levels that a table is made of at most; a parameter with more is no matter of counts.
constexpr std::size_t mostLevels = 50;
/// Fisher's test is exact up to this many tables with the sums of the given one; below 0.1 s.
constexpr double largestExactCounts = 1'000'000.0;

struct CountsTest
{
  /// Pearson's sum of (observed - expected)^2 / expected over both columns of the table.
  double chiSquared = 0.0;
  double p = 0.0;
  /// Natural logarithm of p, also where that is below what doubles hold.
  double logP = 0.0;
  /// Fisher's exact test; else by the chi-squared distribution with (levels - 1) degrees of
  /// freedom, which is poor where counts below 5 are expected.
  bool exact = true;
};

/// Number of tables of counts that have the sums of the given one, rounded above 2^53; infinite for
/// more than `mostLevels` levels. O(levels min(m, n)).
double tablesWithSumsOf(const TieBlocks& blocks);

/// Fisher's exact test of an r x 2 table in the form of Freeman and Halton (Biometrika 38, 1951,
/// 141-149): the probability of all tables with the same sums that are not more probable than the
/// given one, to 1e-7 of its probability; by enumeration.
/// @return p in [0, 1]; NaN without runs in one of the groups, for a single level, and for more
///   than `mostLevels`. Relative rounding errors grow with the numbers of runs, to 1e-10 for 1e5.
/// @throws std::length_error as groupSizes() does
CountsTest levelCountsTest(const TieBlocks& blocks);

/// sqrt(chi-squared / runs), in [0, 1]: 0 for equal shares of all levels in both groups, 1 where no
/// level is in both (H. Cramer, Mathematical Methods of Statistics, 1946, section 21.9, for tables
/// of two columns).
/// @return NaN as chiSquaredTest()
double cramersV(const TieBlocks& blocks);

/// Smallest count that is expected in any cell of the table where the groups do not differ.
double leastExpectedCount(const TieBlocks& blocks);
/// Below it the chi-squared distribution is a poor approximation (W. G. Cochran, Some methods for
/// strengthening the common chi-squared tests, Biometrics 10, 1954, 417-451).
constexpr double fewExpected = 5.0;
/// Whether levelCountsTest() has nothing better than that. False without a table to test.
bool isPoorlyApproximated(const TieBlocks& blocks);

/// The chi-squared distribution's answer, whatever the number of tables; no continuity correction.
CountsTest chiSquaredTest(const TieBlocks& blocks);
} // namespace Talmesh::stats

#endif

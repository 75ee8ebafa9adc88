#ifndef GroupContrast_h
#define GroupContrast_h

#include "stats/ParameterComparison.h"
#include "stats/TieBlocks.h"
#include "stats/TiedKolmogorovSmirnov.h"

/// How two groups of runs differ, apart from any test.
namespace Talmesh::stats
{
Direction directionOf(const KsDistance& distance);

/// Interval that holds the distance of the two distributions with at least the given probability,
/// for independent runs: D -+ [sqrt(ln(4 / a) / (2 m)) + sqrt(ln(4 / a) / (2 n))], a = 1 -
/// confidence, cut to [0, 1]. Each term bounds the error of one empirical distribution function
/// with probability 1 - a / 2 (P. Massart, The tight constant in the
/// Dvoretzky-Kiefer-Wolfowitz inequality, Annals of Probability 18, 1990, 1269-1283).
/// @param confidence above 0, below 1
/// @return NaN without runs in one of the groups
Interval distanceInterval(const KsDistance& distance, double confidence = 0.95);

/// P(value of a selected run > that of another) + P(both are equal) / 2 over all pairs; in [0, 1],
/// NaN without runs in one of the groups. O(blocks).
/// @throws std::length_error as groupSizes() does
double probabilityOfSuperiority(const TieBlocks& blocks);
} // namespace Talmesh::stats

#endif

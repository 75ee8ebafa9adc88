#ifndef MannWhitney_h
#define MannWhitney_h

#include "stats/TieBlocks.h"

#include <cstdint>

/// Mann-Whitney's test (Wilcoxon's rank sum test) of two groups, with ties by mean ranks.
namespace Talmesh::stats
{
/// The exact distribution is computed where N min(m, n) S does not exceed this number, for N = m +
/// n runs and S the sum of the min(m, n) largest ranks, each counted twice if any are tied: with
/// ties 50 by 60 runs, 10 by 420 or 4 by 1,200, without them more; below 0.1 s.
constexpr std::uint64_t largestExactMannWhitney = 50'000'000;

struct MannWhitneyTest
{
  /// Number of pairs in which the selected run's value is the larger one, ties count half.
  double pairs = 0.0;
  double p = 0.0;
  /// Natural logarithm of p, also where that is below what doubles hold.
  double logP = 0.0;
  bool exact = true;
};

/// Two-sided test. Exact: the probability, if every choice of the selected runs is equally likely,
/// that the rank sum is at least as far from its mean as it is; conditional on the ties, with
/// relative rounding errors below 1e-12 (C. Streitberg, J. Röhmel, Exact distributions for
/// permutation and rank tests, Statistical Software Newsletter 12, 1986, 10-17). Otherwise by the
/// normal distribution with the variance for ties and a continuity correction of 1/2 (E. L.
/// Lehmann, Nonparametrics, 1975).
/// @return p in [0, 1]; NaN without runs in one of the groups, and where all values are equal
/// @throws std::length_error as groupSizes() does
MannWhitneyTest mannWhitneyTest(const TieBlocks& blocks);

/// The normal distribution's answer, whatever the sizes.
MannWhitneyTest normalMannWhitneyTest(const TieBlocks& blocks);
} // namespace Talmesh::stats

#endif

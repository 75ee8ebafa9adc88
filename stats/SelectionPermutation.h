#ifndef SelectionPermutation_h
#define SelectionPermutation_h

#include "stats/RankStatistic.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

/// Tests by permuting a selection among the independent units of a study.
namespace Talmesh::stats
{
struct PermutationPlan
{
  ComparedBy comparedBy = ComparedBy::distribution;
  std::size_t permutations = 9'999;
  std::uint64_t seed = 1;
  /// Told the part done, from 0 to 1, now and then; returning false cancels. Never called by two
  /// threads at once, but by several in turn. Empty to hear nothing.
  std::function<bool(double)> progress;
};

/// How often permuted selections reached what was observed.
struct PermutationCounts
{
  /// Permutations made; 0 when cancelled, and the lists are empty then.
  std::size_t permutations = 0;
  /// Of each parameter: permutations in which its statistic is at least the observed one.
  std::vector<std::uint64_t> reached;
  /// Of each parameter: permutations in which the largest statistic of this parameter and of those
  /// behind it, in descending order of the observed statistics, is at least its observed one.
  std::vector<std::uint64_t> reachedByLargest;
};

/// Runs of each cell that are marked. @param selected one entry per run, 0 for the others
std::vector<std::uint32_t> selectedOfCells(const ExchangeUnits& units,
                                           const std::vector<char>& selected);

/// Permutes which unit has which selected and which other runs, within the classes of units, each
/// arrangement equally likely; all parameters see the same permutations. Statistics count as
/// reached from 1e-10 below. The result depends on the plan's statistic, permutations and seed
/// only, on no machine and no number of threads; that of one parameter does not depend on which
/// others there are.
///
/// O(permutations parameters cells) time on all cores.
PermutationCounts permuteSelection(const ExchangeUnits& units,
                                   const std::vector<RankedCells>& parameters,
                                   const CellGroups& groups, const PermutationPlan& plan);

/// (reached + 1) / (permutations + 1): the observed selection counts as one of them (B. Phipson, G.
/// K. Smyth, Permutation p-values should never be zero, Statistical Applications in Genetics and
/// Molecular Biology 9, 2010, 39). In the order of the parameters.
std::vector<double> permutationP(const PermutationCounts& counts);

/// Adjusted p that bound the probability of any false rejection, by the step-down maxT procedure
/// (P. H. Westfall, S. S. Young, Resampling-Based Multiple Testing, 1993, algorithm 4.1).
/// @param observed the statistics, in the order of the parameters
std::vector<double> maxTAdjusted(const PermutationCounts& counts,
                                 const std::vector<double>& observed);
} // namespace Talmesh::stats

#endif

#ifndef RunComparison_h
#define RunComparison_h

#include "../export/TalmeshPlotExport.h"
#include "../stats/ParameterComparison.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace Talmesh::stats
{
struct ComparisonPlan
{
  ComparedBy comparedBy = ComparedBy::distribution;
  Adjustment adjustment = Adjustment::benjaminiHochberg;
  double confidence = 0.95;
  /// At least 9,999 are made.
  std::size_t permutations = 9999;
  std::uint64_t seed = 1;
  KnownDesign design{};
  /// Parameters by which the selection was made, by position.
  std::vector<std::size_t> chosenBy;
  /// Parameters whose values are names without an order, by position: their counts per value are
  /// compared, whatever is compared of the others.
  std::vector<std::size_t> unordered;
  /// Parameters that are described but not tested, by position.
  std::vector<std::size_t> untested;
  /// Runs that are in neither group, an entry per run, 0 for the others; empty for none. Units of
  /// the study's design keep them: what is permuted is which unit has how many runs of each group.
  /// Units of such runs alone take no part.
  std::vector<char> leftOut;
  /// As in `PermutationPlan`. Heard before the first parameter, too.
  std::function<bool(double)> progress;
};

/// What is independent among the runs that are compared, in a few numbers.
struct UnitSummary
{
  IndependentUnit kind = IndependentUnit::run;
  std::size_t units = 0;
  /// Runs of the smallest and of the largest unit: "12 sets of 10 runs".
  std::size_t fewestRuns = 0;
  std::size_t mostRuns = 0;
  /// They are not what somebody has said of their design, which their number rules out.
  bool contradictsDesign = false;
};

struct RunComparison
{
  UnitSummary units;
  /// In the order of the columns.
  std::vector<ParameterComparison> parameters;
  /// Seed and number of the permutations, if any were made.
  std::uint64_t seed = 0;
  std::size_t permutations = 0;
  bool cancelled = false;
};

/// Compares the selected runs with the others, or with those of the others that the plan does not
/// leave out, parameter by parameter.
///
/// Independent are single runs, sets of runs with equal parameters, the base samples of a Saltelli
/// design, or groups of runs that share values (stats/ExchangeUnits.h). Single runs are tested
/// exactly where that is feasible, otherwise whole units are permuted; so are single runs where
/// counts per value are neither few enough for an exact test nor large enough for chi-squared. Runs
/// without a value of a parameter are left out of its row.
///
/// O(parameters N log N), and what the tests take: see their headers. Runs parameters and
/// permutations on all cores.
/// @param columns a vector per parameter, a value per run
/// @param selected an entry per run, 0 for the others
/// @throws std::invalid_argument for columns, selections and runs left out of different lengths;
///   std::length_error as runsIn() does
TALMESHPLOT_EXPORT RunComparison compareRuns(const ParameterColumns& columns,
                                             const std::vector<char>& selected,
                                             const ComparisonPlan& plan = {});

/// Whether that takes longer than a user waits without a word: with permutations, and for exact
/// tests of large groups. O(parameters N log N). @throws as compareRuns()
TALMESHPLOT_EXPORT bool takesTimeToCompare(const ParameterColumns& columns,
                                           const std::vector<char>& selected,
                                           const ComparisonPlan& plan = {});
} // namespace Talmesh::stats

#endif

#ifndef HalfComparison_h
#define HalfComparison_h

#include "../export/TalmeshPlotExport.h"
#include "../stats/RunComparison.h"

#include <functional>

namespace Talmesh::stats
{
/// A selection looked at in one half of a study and tested in the other.
struct HalfComparison
{
  /// In the half by which parameters are chosen.
  RunComparison explored;
  /// In the other half. What does not differ in the first one is `leftUntested`, so that p is
  /// adjusted for the chosen parameters only.
  RunComparison tested;
  /// Whether a run is in that other half; an entry per run.
  std::vector<char> isTested;
};

/// Compares in both halves. The independent units are split at random, those of each class in two
/// halves as equal as possible; the runs of a unit stay together. Equal seeds of the plan split
/// equally on every machine.
/// @param differs whether a parameter is chosen by its row in the first half
/// @throws as compareRuns()
TALMESHPLOT_EXPORT HalfComparison compareHalves(
    const ParameterColumns& columns, const std::vector<char>& selected, const ComparisonPlan& plan,
    const std::function<bool(const ParameterComparison&)>& differs);
} // namespace Talmesh::stats

#endif

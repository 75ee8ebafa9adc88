#ifndef RankedTables_h
#define RankedTables_h

#include <vtkSmartPointer.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class vtkTable;

namespace Talmesh::plot
{

struct PlotState;

/// Ranks the settings' parameter columns of `source` and estimates their densities.
///
/// Slot `tableIndex` of the derived tables gets, per parameter, "Rank of " + label (cumulative
/// fractions) and "Sorted " + label, all of the length of the longest parameter; slot
/// `tableIndex` + 1 gets "Density of " + label (in units of 1 / parameter) and "Locations of " +
/// label, 200 values each. The label is that of the typed item at the parameter's position, for
/// example "Parameter: k1". The list of derived tables grows as needed. The table in a slot is
/// reused if it holds nothing but such columns and is replaced otherwise.
///
/// Slot 0 is for the runs of the plot table: it takes one row per stride and keeps duplicates. All
/// other slots take every row, each value once. `stats/RankedParameter.h` has the arithmetic.
///
/// A parameter without a column or without a typed item, or with a column that is not numeric, is
/// skipped. If the numbers of parameters and of bounds differ, standard error says so once and the
/// extents of the values stand in; a parameter shorter than the longest one is reported on standard
/// output unless the options keep remarks to themselves. Ranking the plot table sets the settings'
/// flag `rankedDataCurrent`.
/// @param source null counts as a table without columns
void generateRankedParameters(PlotState& state, vtkSmartPointer<vtkTable> source,
                              std::size_t tableIndex);

/// A kernel density estimate, as `stats::KernelDensity`: on a grid where that is exact enough.
void estimateKernelDensity(std::vector<double>& sources, std::vector<double>& targets,
                           double bandwidth, std::vector<double>& density);

/// How many values of the parameter with this label were ranked into `ranks`, before its columns
/// were filled up to those of the longest parameter; nothing for one that was skipped.
std::optional<std::size_t> rankedValueCount(vtkTable* ranks, const std::string& label);

/// Whether slots 0 and 1 hold a rank and a density table, rather than nothing or additional data
/// that came before any ranking. Tables without columns count: no parameter could be ranked.
bool hasOwnRanks(const PlotState& state);

/// Clears the settings' flag `rankedDataCurrent` if stride, parameter list or bounds, which anyone
/// may write, are no longer those that the plot table was ranked with.
void dropOutdatedRanks(PlotState& state);

} // namespace Talmesh::plot

#endif

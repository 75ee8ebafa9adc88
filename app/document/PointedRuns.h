#ifndef PointedRuns_h
#define PointedRuns_h

#include "app/document/GestureSelection.h"
#include "vtk/SelectionGesture.h"

#include <optional>
#include <string>

namespace Talmesh::app
{

class TableRuns;

/// What the mouse points at in charts that draw one point or line per run, of a table with a row
/// for each.
///
/// As `meantByGesture` and `nearestRun`, of such charts alone, and of those that name rows or are
/// brushed: the words of a rectangle or of brushes are comparisons, where its columns are called by
/// words that filters read, otherwise the numbers of the runs. A line crosses no runs.
std::optional<PointedAt> meantByPoints(const TableRuns& runs, const SelectionGesture& gesture,
                                       double reach);
std::optional<std::string> nearestPoint(const TableRuns& runs, const SelectionGesture& place,
                                        double reach);

} // namespace Talmesh::app

#endif

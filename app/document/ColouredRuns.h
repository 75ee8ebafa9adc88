#ifndef ColouredRuns_h
#define ColouredRuns_h

#include "app/document/GroupedPlots.h"
#include "app/session/SessionSelections.h"

#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <cstddef>
#include <vector>

class PlotContainer;

/// Colours of runs in charts that draw each as one point or line.
namespace Talmesh::app
{

/// The kept selections as groups of so many runs, in their colours and with their names, of which
/// the last one counts for a run that several have; the other runs are a group of their own, in
/// grey. None without selections.
RunGroups groupsOfKept(const std::vector<KeptSelection>& kept, std::size_t runs);
/// The group of these others.
constexpr int othersOfKept = 0;

/// The name of the column of a summary that has the group of each run.
const char* groupColumnName();

/// Colours the runs of the scatter-plot matrix and of parallel coordinates, by the column of that
/// name; beside them stands which colour means what. Does nothing where a container's drawing shows
/// another chart. Without groups what was there goes.
void colourCharts(PlotContainer& container, const RunGroups& groups);

/// Colours the large chart of the scatter-plot matrix again, which shows another pair.
void colourPair(PlotContainer& container, const RunGroups& groups);

} // namespace Talmesh::app

#endif

#ifndef RunSplit_h
#define RunSplit_h

#include "export/ViewerExport.h"

#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <cstddef>

class vtkAnnotationLink;

namespace Talmesh::plot
{

struct PlotState;

/// The plot table parted by a selection.
struct RunSplit
{
  /// Selected rows of the runs that are selected at every selected time; never null.
  vtkSmartPointer<vtkTable> selected;
  /// The rows to compare them with; null if there is no such table.
  vtkSmartPointer<vtkTable> remaining;
  /// How many runs the two have rows of.
  std::size_t selectedRuns = 0;
  std::size_t remainingRuns = 0;
};

/// Position of the column that holds the time of each row: the first with "Value", "Time" or
/// "Period" in its name; without one, two places in front of the first parameter column, which may
/// be no column.
TALMESHPLOT_VIEWER_EXPORT int timeColumnOf(const PlotState& state);

/// Parts the plot table by the selection and annotations of `link`, and marks its rows in the
/// columns that vtkCombinedFilterAndSelectedRows writes. A table without a time column gives an
/// empty table and none to compare with; nothing is reported.
RunSplit splitRuns(PlotState& state, vtkAnnotationLink* link);

} // namespace Talmesh::plot

#endif

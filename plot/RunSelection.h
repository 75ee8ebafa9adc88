#ifndef RunSelection_h
#define RunSelection_h

#include "export/ViewerExport.h"
#include "external/ParameterSelection.h"

#include <vtkSmartPointer.h>
#include <vtkTable.h>
#include <vtkType.h>

#include <memory>
#include <set>
#include <vector>

/// Between runs, which users think in, and table rows, which charts select.
///
/// Run indices are the values of the table's run-index column: a vtkDoubleArray that holds the run
/// of every row. To make a selection it is the first column with "Index" in its name; to read one
/// it is the column ": Run Index".
namespace Talmesh::plot
{

struct PlotState;

/// Makes one row of each of `runs` the annotation link's selection, which the link announces: the
/// row at position `offset` within the run, counted round if the run is shorter.
///
/// Without a column named for an index, column 0 is taken. Runs that the table does not have are
/// skipped; so are runs that stand in the table above a smaller one, as the walk goes down the
/// table once. Does nothing if the column is not a vtkDoubleArray or the settings' stride is below
/// 1.
void selectRuns(PlotState& state, const std::set<int>& runs, int offset);

/// A run and where it stands in the table.
struct PlacedRun
{
  int index;
  vtkIdType firstRow;
};

/// The whole runs of the plot table in row order; one whose index is no int is left out. Empty
/// without a column ": Run Index" and with a stride below 1.
TALMESHPLOT_VIEWER_EXPORT std::vector<PlacedRun> wholeRuns(const PlotState& state);

/// The runs of the selected rows, with the source named by the settings. In the selection CDF plot
/// these are the runs that the last split accepted, otherwise all with a selected row.
/// @return null if the run-index column is missing or the selection cannot be told
std::unique_ptr<ParameterSelection> selectedRuns(const PlotState& state);

/// A new table with the columns of the plot table and the first row of each of `runs`.
///
/// Without a column named for an index, the one in front of the first parameter column is taken.
/// The first run that the table does not have ends the search, as it goes down the table once.
/// @return null if the column is not a vtkDoubleArray or the settings' stride is below 1
vtkSmartPointer<vtkTable> tableOfRuns(const PlotState& state, const std::set<int>& runs);

} // namespace Talmesh::plot

#endif

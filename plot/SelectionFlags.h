#ifndef SelectionFlags_h
#define SelectionFlags_h

#include "export/ViewerExport.h"
#include "vtk/SelectionColumns.h"

#include <vtkIntArray.h>
#include <vtkSmartPointer.h>

#include <string>
#include <vector>

namespace Talmesh::plot
{

struct PlotState;

/// Name of the column that keeps a selection with its table.
inline constexpr char selectionFlagColumn[] = "selected points";

/// Whether a column of that name is one in which rows are marked for the selection of the moment.
inline bool isSelectionMark(const std::string& name)
{
  return name == selectionFlagColumn || name == ComplementSelectionColumn ||
         name == ReducedSelectionColumn || name == RemainderSelectionColumn ||
         name == OriginalRowIdsColumn;
}

/// The columns that a style shows which shows all of them.
std::vector<int> columnsOfAll(const PlotState& state);

/// One flag per table row: 1 where the annotation link's selection or one of its contributing
/// annotations names the row, 0 elsewhere. Neither selection nor annotations are changed.
/// @return null when the link holds neither layers nor a selection, or when VTK cannot say which
///   rows the selection names
TALMESHPLOT_VIEWER_EXPORT vtkSmartPointer<vtkIntArray> selectionFlags(const PlotState& state);

/// Makes the rows whose entry is exactly 1 in the table's last column the link's selection, which
/// the link announces. Does nothing if that column is not a vtkIntArray.
void selectFlaggedRows(PlotState& state);

} // namespace Talmesh::plot

#endif

#ifndef PlotTable_h
#define PlotTable_h

#include "export/ViewerExport.h"

#include <vtkSmartPointer.h>

class vtkTable;

namespace Talmesh::plot
{

struct PlotState;

/// Makes `table`, which is shared and must not be null, the plot table and calls tableChanged().
void replaceTable(PlotState& state, vtkSmartPointer<vtkTable> table);

/// A copy of every column of `table` with its name, also of columns of one name.
vtkSmartPointer<vtkTable> deepCopyOf(vtkTable* table);

/// To be called after every change of the plot table's values or columns: what was derived from
/// them is out of date.
TALMESHPLOT_VIEWER_EXPORT void tableChanged(PlotState& state);

} // namespace Talmesh::plot

#endif

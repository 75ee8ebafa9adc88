#ifndef RunTables_h
#define RunTables_h

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>

class vtkTable;

namespace Talmesh::plot
{

struct PlotState;

/// The first y column regrouped by run: one row per whole run, one double column per position
/// within a run, named by its position with padding zeros. Without a whole run, or when the column
/// is missing, unnamed or not numeric, there are neither rows nor columns.
vtkSmartPointer<vtkTable> runsByRow(const PlotState& state);

/// `table`, whose columns are all doubles, with rows and columns exchanged. The columns are doubles
/// named by their position with padding zeros.
vtkSmartPointer<vtkTable> transposed(vtkTable* table);

/// A column "Time" with a copy of the first `count` values of the first x column. Where that has no
/// number, the position within the run stands in.
vtkSmartPointer<vtkDoubleArray> copiedTime(const PlotState& state, vtkIdType count);

} // namespace Talmesh::plot

#endif

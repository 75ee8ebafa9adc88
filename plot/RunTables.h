#ifndef RunTables_h
#define RunTables_h

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>

class vtkTable;

namespace Talmesh::plot
{

struct PlotState;

/// Whole runs of one quantity, one after another, `positions` values each.
struct RunMatrix
{
  /// Null without a run.
  vtkSmartPointer<vtkDoubleArray> values;
  vtkIdType runs = 0;
  int positions = 0;

  const double* run(vtkIdType index) const { return values->GetPointer(index * positions); }
};

/// The first y column as runs: the column itself where it is a vtkDoubleArray of one component,
/// else a copy of its first component. No run where there is no whole one, and when the column is
/// missing, unnamed or not numeric.
RunMatrix runsOf(const PlotState& state);

/// Runs from a table with a double column for each.
RunMatrix runsOfColumns(vtkTable* table);

/// A table with a double column for each run, named by its number with padding zeros.
vtkSmartPointer<vtkTable> columnsOfRuns(const RunMatrix& runs);

/// A column "Time" with a copy of the first `count` values of the first x column. Where that has no
/// number, the position within the run stands in.
vtkSmartPointer<vtkDoubleArray> copiedTime(const PlotState& state, vtkIdType count);

} // namespace Talmesh::plot

#endif

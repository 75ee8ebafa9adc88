#ifndef RunLayout_h
#define RunLayout_h

#include <vtkDoubleArray.h>

#include <algorithm>

namespace Talmesh::plot
{

/// Where runs lie in a run-stacked table: run k is the `stride` rows from row k * stride on.
struct RunLayout
{
  vtkIdType rows = 0;   ///< rows of the table
  vtkIdType stride = 1; ///< rows per run; below 1 there is no whole run

  /// Number of whole runs; a partial last run does not count.
  vtkIdType runs() const { return stride < 1 ? 0 : rows / stride; }
  /// First row of run `run`.
  vtkIdType firstRow(vtkIdType run) const { return run * stride; }
};

/// Walks forward over the first rows of the runs of a table. Never moves back, so that one cursor
/// finds ascending run indices in one pass, and misses those that do not ascend in the table.
class RunCursor
{
public:
  /// @param runIndex the run index of each row, which must outlive the cursor
  /// @param tableRows rows of the table; none beyond the column's own count
  /// @param rowsPerRun at least 1
  RunCursor(vtkDoubleArray* runIndex, vtkIdType tableRows, vtkIdType rowsPerRun)
      : values(runIndex)
      , rows(std::min(tableRows, runIndex->GetNumberOfTuples()))
      , stride(rowsPerRun)
  {
  }

  bool atEnd() const { return current >= rows; }
  /// The first row of the present run.
  vtkIdType row() const { return current; }
  /// Run index of the row; the cursor must not be at its end.
  double run() const { return values->GetTypedComponent(current, 0); }
  void toNextRun() { current += stride; }

private:
  vtkDoubleArray* values;
  vtkIdType rows;
  vtkIdType stride;
  vtkIdType current = 0;
};

} // namespace Talmesh::plot

#endif

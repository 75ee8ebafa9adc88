#ifndef RunLayout_h
#define RunLayout_h

#include <vtkType.h>

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

} // namespace Talmesh::plot

#endif

#ifndef SummaryTable_h
#define SummaryTable_h

#include <vtkSmartPointer.h>
#include <vtkTable.h>
#include <vtkType.h>

#include <vector>

/// A table that charts draw in place of a container's own, see PlotSeams::setSummary(): each of
/// its rows stands for several rows of that one, such as those of a run.
struct SummaryTable
{
  /// Shared; null for none.
  vtkSmartPointer<vtkTable> table;
  /// Row k stands for as many rows of the container's table, from row k * rowsEach on.
  vtkIdType rowsEach = 1;
  /// Columns of `table` in place of the first ones that the settings name; -1 for none.
  int x = -1;
  int y = -1;
  int z = -1;
  /// Those that the scatter-plot matrix and parallel coordinates show, in this order.
  std::vector<int> columns;
};

#endif

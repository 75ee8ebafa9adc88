#include "vtk/SelectionColumns.h"
#include "vtk/vtkCombinedFilterAndSelectedRows.h"

#include <gtest/gtest.h>

#include "SelectionBuilders.h"
#include "VtkTestSupport.h"

namespace
{
using Rows = std::vector<vtkIdType>;

constexpr vtkIdType stride = 7;
/// More than one thread divides at once, and the last run lacks rows.
constexpr vtkIdType rowCount = 40000 * stride + 4;

bool isWhole(vtkIdType run)
{
  return run % 3 == 0 && run != rowCount / stride;
}

/// All rows of some runs, and some rows of others.
bool isSelected(vtkIdType row)
{
  const vtkIdType run = row / stride;
  return isWhole(run) || (run % 5 == 1 && row % stride > 2);
}
} // namespace

TEST(ManyRunsFilter, DividesRowsAsItDoesThoseOfFew)
{
  std::vector<double> times;
  std::vector<double> numbersOfRows;
  Rows selected;
  Rows expected[2];
  Rows complement(rowCount, 0);
  Rows reduced(rowCount, 0);
  Rows remainder(rowCount, 0);
  for (vtkIdType row = 0; row < rowCount; ++row)
  {
    const auto i = static_cast<std::size_t>(row);
    times.push_back(0.5 * static_cast<double>(row % stride));
    numbersOfRows.push_back(static_cast<double>(row));
    const bool whole = isWhole(row / stride);
    expected[whole ? 0 : 1].push_back(row);
    if (isSelected(row))
      selected.push_back(row);
    (whole ? remainder : isSelected(row) ? reduced : complement)[i] = 1;
  }
  const auto table = makeTable({{"Time", times}, {"row", numbersOfRows}});
  vtkNew<vtkSelection> selection;
  selection->AddNode(makeRowNode(selected, false));
  vtkNew<vtkCombinedFilterAndSelectedRows> filter;
  filter->SetInputData(0, table);
  filter->SetInputData(1, selection);
  filter->SetTimeColumnIndex(0);
  filter->SetParaCount(0);
  filter->SetStride(stride);
  filter->AddOriginalRowIdsArrayOn();
  filter->Update();
  for (int port = 0; port < 2; ++port)
  {
    const std::vector<double> rows = numbers(filter->GetOutput(port), "row");
    EXPECT_EQ(Rows(rows.begin(), rows.end()), expected[port]);
    EXPECT_EQ(idColumn(filter->GetOutput(port), Talmesh::OriginalRowIdsColumn), expected[port]);
  }
  EXPECT_EQ(idColumn(table, Talmesh::ComplementSelectionColumn), complement);
  EXPECT_EQ(idColumn(table, Talmesh::ReducedSelectionColumn), reduced);
  EXPECT_EQ(idColumn(table, Talmesh::RemainderSelectionColumn), remainder);
}

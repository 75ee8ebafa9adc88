#include "plot/RunTables.h"

#include "external/ColumnNames.h"
#include "external/PaddedName.h"
#include "external/PlotMetaData.h"
#include "plot/ColumnList.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"

#include <algorithm>

namespace Talmesh::plot
{

namespace
{

vtkSmartPointer<vtkDoubleArray> firstComponents(vtkDataArray* column)
{
  auto values = vtkSmartPointer<vtkDoubleArray>::New();
  values->SetNumberOfValues(column->GetNumberOfTuples());
  for (vtkIdType row = 0; row < column->GetNumberOfTuples(); ++row)
    values->SetValue(row, column->GetComponent(row, 0));
  return values;
}

} // namespace

RunMatrix runsOf(const PlotState& state)
{
  vtkDataArray* column = plottableColumn(state.table, firstOf(state.metaData->yColumns));
  const int stride = state.metaData->getStride();
  if (!column || stride < 1 || column->GetNumberOfTuples() < stride)
    return {};
  auto* doubles = vtkDoubleArray::SafeDownCast(column);
  const bool usable = doubles && doubles->GetNumberOfComponents() == 1;
  return {usable ? vtkSmartPointer<vtkDoubleArray>(doubles) : firstComponents(column),
          column->GetNumberOfTuples() / stride, stride};
}

RunMatrix runsOfColumns(vtkTable* table)
{
  RunMatrix matrix;
  matrix.runs = table->GetNumberOfColumns();
  matrix.positions = static_cast<int>(table->GetNumberOfRows());
  matrix.values = vtkSmartPointer<vtkDoubleArray>::New();
  matrix.values->SetNumberOfValues(matrix.runs * matrix.positions);
  for (int run = 0; run < matrix.runs; ++run)
  {
    const double* values = doubleColumn(table, run)->GetPointer(0);
    std::copy(values, values + matrix.positions,
              matrix.values->GetPointer(vtkIdType(run) * matrix.positions));
  }
  return matrix;
}

vtkSmartPointer<vtkTable> columnsOfRuns(const RunMatrix& runs)
{
  ColumnList columns;
  for (vtkIdType run = 0; run < runs.runs; ++run)
  {
    auto column = vtkSmartPointer<vtkDoubleArray>::New();
    column->SetNumberOfValues(runs.positions);
    std::copy(runs.run(run), runs.run(run) + runs.positions, column->GetPointer(0));
    columns.add(paddedName(run, runs.runs), column);
  }
  return columns.makeTable();
}

vtkSmartPointer<vtkDoubleArray> copiedTime(const PlotState& state, vtkIdType count)
{
  auto* source =
      vtkDataArray::SafeDownCast(columnAt(state.table, firstOf(state.metaData->xColumns)));
  auto time = vtkSmartPointer<vtkDoubleArray>::New();
  time->SetName(derivedTimeName);
  time->SetNumberOfValues(count);
  for (vtkIdType i = 0; i < count; ++i)
  {
    const bool known = source && i < source->GetNumberOfTuples();
    time->SetValue(i, known ? source->GetComponent(i, 0) : static_cast<double>(i));
  }
  return time;
}

} // namespace Talmesh::plot

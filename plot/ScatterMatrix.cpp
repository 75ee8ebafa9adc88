#include "plot/ScatterMatrix.h"

#include "external/PlotMetaData.h"
#include "plot/ChartLifetime.h"
#include "plot/DrawnRows.h"
#include "plot/FiniteTable.h"
#include "plot/Margins.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"
#include "vtk/vtkSelectableScatterPlotMatrix.h"

#include <algorithm>

namespace Talmesh::plot
{

namespace
{

std::vector<int> columnsToShow(const PlotState& state)
{
  if (drawsSummary(state))
    return state.summary.columns;
  if (state.metaData->getLimitColumVisibility())
  {
    std::vector<int> columns = {firstOf(state.metaData->xColumns),
                                firstOf(state.metaData->yColumns)};
    columns.insert(columns.end(), state.metaData->parameterColumns.begin(),
                   state.metaData->parameterColumns.end());
    return columns;
  }
  return columnsOfAll(state);
}

void showColumns(vtkScatterPlotMatrix* matrix, vtkStringArray* names)
{
  // The matrix sizes itself to a new input, not to a new choice of columns.
  matrix->SetSize(vtkVector2i(0, 0));
  matrix->SetVisibleColumns(names);
  const int count = static_cast<int>(names->GetNumberOfValues());
  matrix->SetSize(vtkVector2i(count, count));
  matrix->Modified();
}

/// A matrix takes no table of no rows and then cannot show columns, though where the first, which
/// counts as the table's, holds no value, later ones may.
void showColumns(PlotState& state, const std::vector<int>& columns)
{
  vtkNew<vtkStringArray> names;
  vtkTable* table = drawnRows(state).table;
  const bool taken = table->GetNumberOfRows() > 0;
  for (const int column : columns)
  {
    const std::string name = columnName(table, column);
    double range[2];
    if (taken && finiteRange(plottableColumn(table, column), range) && names->LookupValue(name) < 0)
      names->InsertNextValue(name);
  }
  showColumns(state.scatterPlotMatrix, names);
}

/// The matrix names a plot by its cell: column counted from the left, row from the bottom, where
/// the rows run through the columns backwards. Only cells below the diagonal hold plots.
void activatePair(PlotState& state)
{
  const DrawnRows drawn = drawnRows(state);
  vtkScatterPlotMatrix* matrix = state.scatterPlotMatrix;
  vtkStringArray* names = matrix->GetVisibleColumns();
  const vtkIdType x = names->LookupValue(columnName(drawn.table, drawn.x));
  const vtkIdType y = names->LookupValue(columnName(drawn.table, drawn.y));
  if (x < 0 || y < 0 || x == y)
    return;
  const vtkIdType last = names->GetNumberOfValues() - 1;
  const vtkIdType left = std::min(x, y);
  const vtkIdType right = std::max(x, y);
  matrix->Update();
  matrix->SetActivePlot(vtkVector2i(static_cast<int>(left), static_cast<int>(last - right)));
}

bool sameNames(vtkStringArray* a, vtkStringArray* b)
{
  bool same = a->GetNumberOfValues() == b->GetNumberOfValues();
  for (vtkIdType i = 0; same && i < a->GetNumberOfValues(); ++i)
    same = a->GetValue(i) == b->GetValue(i);
  return same;
}

/// A matrix that was never laid out since its last change of columns has no active pair.
void activateAgain(vtkScatterPlotMatrix* matrix, const vtkVector2i& pair)
{
  matrix->Update();
  if (pair.GetY() >= 0)
    matrix->SetActivePlot(pair);
}

bool hasColumns(vtkTable* table, vtkStringArray* names)
{
  for (vtkIdType i = 0; i < names->GetNumberOfValues(); ++i)
  {
    if (!columnNamed(table, names->GetValue(i)))
      return false;
  }
  return true;
}

} // namespace

void drawScatterMatrix(PlotState& state, vtkContextScene* scene)
{
  const bool shown = state.currentChart == state.scatterPlotMatrix;
  vtkNew<vtkStringArray> namesBefore;
  namesBefore->DeepCopy(state.scatterPlotMatrix->GetVisibleColumns());
  const vtkVector2i pairBefore = state.scatterPlotMatrix->GetActivePlot();
  showChart(state, state.scatterPlotMatrix, scene);
  const ChartCells dropped = cellsOf(state.scatterPlotMatrix);
  // The matrix ignores an empty table and would go on showing the one before.
  state.scatterPlotMatrix->SetInput(nullptr);
  vtkTable* table = drawnRows(state).table;
  if (table->GetNumberOfRows() > 0)
    state.scatterPlotMatrix->SetInput(withoutInfinities(table));
  releaseChartXY(state);
  // The matrix does not notice either that the table is another one.
  showSelectionInSummary(state);
  state.matrixSelection.show(drawnRows(state).link->GetCurrentSelection());

  showColumns(state, columnsToShow(state));
  retireCells(dropped, scene);
  const bool limited = drawsSummary(state) || state.metaData->getLimitColumVisibility();
  const bool mayKeepPair = shown && (state.options.keepsScatterPair || !limited);
  if (mayKeepPair && sameNames(namesBefore, state.scatterPlotMatrix->GetVisibleColumns()))
    activateAgain(state.scatterPlotMatrix, pairBefore);
  else if (limited)
    activatePair(state);

  applyTurnedBorders(state, state.scatterPlotMatrix);
}

void feedScatterMatrixFrom(PlotState& state, vtkTable* copy)
{
  vtkScatterPlotMatrix* matrix = state.scatterPlotMatrix;
  vtkNew<vtkStringArray> names;
  names->DeepCopy(matrix->GetVisibleColumns());
  if (state.currentChart != matrix || !hasColumns(copy, names))
    return;
  const vtkVector2i active = matrix->GetActivePlot();
  const ChartCells dropped = cellsOf(matrix);
  matrix->SetInput(withoutInfinities(copy));
  showColumns(matrix, names);
  retireCells(dropped, matrix->GetScene());
  activateAgain(matrix, active);
}

void renewMatrixCopies(PlotState& state)
{
  if (state.currentChart != state.scatterPlotMatrix)
    return;
  const auto* matrix = vtkSelectableScatterPlotMatrix::SafeDownCast(state.scatterPlotMatrix);
  vtkTable* table = drawnRows(state).table;
  const vtkSmartPointer<vtkTable> finite = withoutInfinities(table);
  if (finite != table || (matrix && matrix->GetShownTable() != table))
    feedScatterMatrixFrom(state, finite);
}

} // namespace Talmesh::plot

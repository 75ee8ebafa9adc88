#include "plot/PlotFeed.h"

#include "plot/TableColumns.h"

#include <vtkDataArray.h>
#include <vtkPlotPoints.h>
#include <vtkTable.h>

#include <cmath>

namespace Talmesh::plot
{

namespace
{

bool holdsFiniteValue(vtkDataArray* column)
{
  for (vtkIdType i = 0; i < column->GetNumberOfTuples(); ++i)
  {
    if (std::isfinite(column->GetComponent(i, 0)))
      return true;
  }
  return false;
}

} // namespace

bool feedPlot(vtkPlot* plot, vtkTable* table, int xColumn, int yColumn)
{
  vtkDataArray* y = plottableColumn(table, yColumn);
  if (!y || !plottableColumn(table, xColumn))
    return false;
  if (plot->GetUseIndexForXSeries() && !holdsFiniteValue(y))
    return false;
  plot->SetInputData(table, columnName(table, xColumn), columnName(table, yColumn));
  return true;
}

bool feedPlotByIndex(vtkPlot* plot, vtkTable* table, int yColumn)
{
  plot->SetUseIndexForXSeries(true);
  return feedPlot(plot, table, yColumn, yColumn);
}

bool colorPoints(vtkPlotPoints* plot, const std::string& column, vtkScalarsToColors* colors)
{
  const int index = columnIndex(plot->GetInput(), column);
  if (!plottableColumn(plot->GetInput(), index))
    return false;
  plot->ScalarVisibilityOn();
  plot->SetLookupTable(colors);
  // By index: the search by name reads every name on its way and crashes on a column without one.
  plot->SelectColorArray(static_cast<vtkIdType>(index));
  return true;
}

void makeUnselectable(vtkPlot* plot)
{
  plot->SelectableOff();
}

} // namespace Talmesh::plot

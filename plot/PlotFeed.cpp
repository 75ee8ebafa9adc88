#include "plot/PlotFeed.h"

#include "plot/TableColumns.h"

#include <vtkDataArray.h>
#include <vtkPlot.h>
#include <vtkTable.h>

namespace Talmesh::plot
{

bool feedPlot(vtkPlot* plot, vtkTable* table, int xColumn, int yColumn)
{
  if (!plottableColumn(table, xColumn) || !plottableColumn(table, yColumn))
    return false;
  plot->SetInputData(table, columnName(table, xColumn), columnName(table, yColumn));
  return true;
}

bool feedPlotByIndex(vtkPlot* plot, vtkTable* table, int yColumn)
{
  plot->SetUseIndexForXSeries(true);
  return feedPlot(plot, table, yColumn, yColumn);
}

void makeUnselectable(vtkPlot* plot)
{
  plot->SelectableOff();
}

} // namespace Talmesh::plot

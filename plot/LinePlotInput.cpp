#include "plot/LinePlotInput.h"

#include "external/LinePlotData.h"
#include "external/PlotMetaData.h"
#include "plot/AppliedLook.h"
#include "plot/ColumnList.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/PlotTexts.h"
#include "plot/SettingsSignals.h"
#include "plot/TableColumns.h"

#include <vtkColorSeries.h>
#include <vtkPlot.h>

namespace Talmesh::plot
{

namespace
{

vtkSmartPointer<vtkTable> tableOf(const LinePlotData& data)
{
  const std::vector<double> x = data.xValues ? *data.xValues : std::vector<double>();
  ColumnList columns;
  columns.add(data.xName, makeColumn(data.xName, x));
  for (const auto& [item, values] : data.series)
  {
    const std::string label = Talmesh::selectionPairToString(item);
    if (values && values->size() == x.size())
      columns.add(label, makeColumn(label, *values));
  }
  return columns.makeTable();
}

} // namespace

void setLinePlotData(PlotState& state, const LinePlotData& data)
{
  const SettingsSilence silence(state);
  setPlotTitle(state, "");
  replaceTable(state, tableOf(data));
  setFirst(state.metaData->xColumns, 0);
  setXLabel(state, data.xName);
  setYLabel(state, data.yName);
  for (const auto& series : data.series)
    state.columnItems.push_back(series.first);
}

void addLinePlotData(PlotState& state, const LinePlotData& data)
{
  state.derivedTables.push_back(tableOf(data));
}

void drawLinePlotItems(PlotState& state, const std::vector<Talmesh::TypedConcentrationName>& items)
{
  if (!state.chartXY)
    return;
  state.chartXY->ClearPlots();
  const vtkSmartPointer<vtkColorSeries> colors = seriesColors(state.options.look);
  const int x =
      columnIndex(state.table, columnName(state.table, firstOf(state.metaData->xColumns)));
  for (std::size_t i = 0; i < items.size(); ++i)
  {
    const int y = columnIndex(state.table, Talmesh::selectionPairToString(items[i]));
    vtkPlot* plot = state.chartXY->AddPlot(vtkChart::LINE);
    feedPlot(plot, state.table, x, y);
    const vtkColor3ub color = colors->GetColorRepeating(static_cast<int>(i));
    plot->SetColor(color[0], color[1], color[2], 255);
  }
  state.chartXY->RecalculateBounds();
}

} // namespace Talmesh::plot

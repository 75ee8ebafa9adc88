#include "plot/MultiPlotPage.h"

#include "external/PlotMetaData.h"
#include "plot/AppliedLook.h"
#include "plot/AxisWindows.h"
#include "plot/ChartLifetime.h"
#include "plot/DrawnRows.h"
#include "plot/Margins.h"
#include "plot/ParameterCells.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/PlotTexts.h"
#include "plot/TableColumns.h"

#include <vtkAxis.h>
#include <vtkPlot.h>

#include <cmath>

namespace Talmesh::plot
{

namespace
{

using Titles = std::vector<std::string>;

void addPoints(const PlotLook& look, vtkChart* chart, vtkTable* table, int xColumn, int yColumn)
{
  vtkPlot* plot = chart->AddPlot(vtkChart::POINTS);
  setColor(plot, look.foreground);
  feedPlot(plot, table, xColumn, yColumn);
}

void drawPair(PlotState& state, const Titles& titles, const ParameterPair& pair)
{
  const std::vector<int>& columns = state.metaData->parameterColumns;
  vtkChart* chart = pairCell(state, pair);
  addPoints(state.options.look, chart, state.table, columns[pair.x], columns[pair.y]);
  dressPairAxes(state, chart, pair, titles);
}

/// The axis stays automatic, so that the range ends at the first paint. Limits that are not finite
/// would keep VTK from painting it.
void padRange(vtkAxis* axis, const double range[2])
{
  const double padding = rangePadding * (range[1] - range[0]);
  const double minimum = range[0] - padding;
  const double maximum = range[1] + padding;
  if (!std::isfinite(minimum) || !std::isfinite(maximum))
    return;
  axis->SetMinimum(minimum);
  axis->SetMaximum(maximum);
}

void dressMainChart(PlotState& state)
{
  const PlotMetaData& settings = *state.metaData;
  vtkAxis* bottom = state.chartXY->GetAxis(vtkAxis::BOTTOM);
  bottom->SetTitle(settings.xLabel);
  const DrawnRows drawn = drawnRows(state);
  double range[2];
  if (finiteRange(doubleColumn(drawn.table, drawn.x), range))
    padRange(bottom, range);
  applyTickLabelsByIndex(state, bottom);
  state.chartXY->GetAxis(vtkAxis::LEFT)->SetTitle(settings.yLabel);
  state.chartXY->SetTitle(settings.title);
}

void drawMainChart(PlotState& state, int parameters)
{
  const vtkVector2i cell(parameters / 2, parameters / 2);
  const int span = (parameters + 1) / 2;
  adoptCell(state, cell.GetX(), cell.GetY());
  enableSelection(state, state.chartXY);
  showSelectionInSummary(state);
  const DrawnRows drawn = drawnRows(state);
  state.chartXY->SetAnnotationLink(drawn.link);
  state.chartMatrix->SetChartSpan(cell, vtkVector2i(span, span));
  addPoints(state.options.look, state.chartXY, drawn.table, drawn.x, drawn.y);
  dressMainChart(state);
}

} // namespace

void drawMultiPlotPage(PlotState& state, vtkContextScene* scene)
{
  const int n = static_cast<int>(state.metaData->parameterColumns.size());
  const Titles titles = n > 1 ? parameterTitles(state) : Titles{};
  showChart(state, state.chartMatrix, scene);
  resetChartMatrix(state, n, n);
  applyMultiPlotBorders(state);
  forEachPair(titles.size(), [&](const ParameterPair& pair) { drawPair(state, titles, pair); });
  if (n > 0)
    drawMainChart(state, n);
}

} // namespace Talmesh::plot

#include "plot/XYChart.h"

#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "plot/ChartLifetime.h"
#include "plot/DrawnRows.h"
#include "plot/Margins.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/PlotTexts.h"
#include "plot/PointAppearance.h"
#include "plot/TableColumns.h"
#include "plot/vtkShiftScaleCallback.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkAxis.h>
#include <vtkCommand.h>
#include <vtkPlotPoints.h>

namespace Talmesh::plot
{

namespace
{

vtkPlot* addRuns(PlotState& state)
{
  vtkNew<vtkPlotLineSet> runs;
  runs->SetStride(state.metaData->getStride());
  runs->SetOnlyShowSelected(0);
  runs->SetBreakAtGaps(state.options.breaksLinesAtGaps);
  runs->SetPictureStore(state.pictures);
  runs->SetHighlight(state.options.look.highlight);
  state.chartXY->AddPlot(runs);
  return runs;
}

vtkPlot* addPoints(PlotState& state)
{
  vtkPlot* plot = state.chartXY->AddPlot(vtkChart::POINTS);
  if (auto* points = vtkPlotPoints::SafeDownCast(plot))
    points->SetMarkerSize(static_cast<float>(state.metaData->pointSize));
  return plot;
}

void dressBottomAxis(PlotState& state, const CoordinateWindow* window)
{
  vtkAxis* axis = state.chartXY->GetAxis(vtkAxis::BOTTOM);
  const DrawnRows drawn = drawnRows(state);
  double range[2];
  if (window)
  {
    restoreBottomAxis(state, axis, *window, state.metaData->getLogX());
  }
  else if (finiteRange(doubleColumn(drawn.table, drawn.x), range))
  {
    const double padding = (range[1] - range[0]) * rangePadding;
    fixRange(axis, range[0] - padding, range[1] + padding);
  }
  applyTickLabels(state, axis);
  axis->SetTitle(state.metaData->xLabel);
}

void dressLeftAxis(PlotState& state, const CoordinateWindow* window)
{
  vtkAxis* axis = state.chartXY->GetAxis(vtkAxis::LEFT);
  if (window)
    restoreLeftAxis(state, axis, *window);
  else
    // The padded range only stands until the next layout, when the bottom axis fits the data.
    state.chartXY->GetAxis(vtkAxis::BOTTOM)->SetBehavior(vtkAxis::AUTO);
  axis->SetTitle(state.metaData->yLabel);
}

} // namespace

void drawXYChart(PlotState& state, vtkContextScene* scene)
{
  leaveSobolChart(state);
  // The chart of a distribution takes no mouse.
  if (state.chartXY && !state.chartXY->GetInteractive())
    releaseChartXY(state);
  ensureStandaloneChart(state);
  showChart(state, state.chartXY, scene);
  state.chartXY->ClearPlots();
  applyXYBorders(state);
  const DrawnRows drawn = drawnRows(state);
  state.chartXY->SetAnnotationLink(drawn.link);
  state.chartXY->AddObserver(vtkCommand::InteractionEvent, state.shiftScaleCallback);

  showSelectionInSummary(state);
  const bool lines = state.metaData->getPlotLine() && !drawsSummary(state);
  vtkPlot* plot = lines ? addRuns(state) : addPoints(state);
  feedPlot(plot, drawn.table, drawn.x, drawn.y);

  const CoordinateWindow* window = rememberedWindow(state);
  dressBottomAxis(state, window);
  dressLeftAxis(state, window);
  useColors(state, nullptr);
  state.chartXY->SetTitle(state.metaData->title);
}

void drawReservedStyle(PlotState& state, vtkContextScene* scene)
{
  ensureStandaloneChart(state);
  showChart(state, state.chartXY, scene);
  if (state.chartXY != state.sobolChart.Get())
    state.chartXY->ClearPlots();
  setPlotTitle(state, "Not yet implemented");
}

} // namespace Talmesh::plot

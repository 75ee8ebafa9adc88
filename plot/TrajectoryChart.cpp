#include "plot/TrajectoryChart.h"

#include "external/ColumnNames.h"
#include "external/PlotMetaData.h"
#include "plot/AppliedLook.h"
#include "plot/AxisWindows.h"
#include "plot/DrawnRows.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "vtk/SelectionColumns.h"
#include "vtk/vtkPlotInvisiblePoints.h"
#include "vtk/vtkPlotLineSet.h"
#include "vtk/vtkPlotShiftedBag.h"

#include <vtkAxis.h>
#include <vtkBrush.h>
#include <vtkLookupTable.h>
#include <vtkPen.h>

#include <array>

namespace Talmesh::plot
{

namespace
{

/// Painted in this order: the wide band behind the narrow one behind the line.
constexpr std::array<const char*, 3> bandColumns = {"Range", "QRange", "Median"};

/// The x axis ends this part of its limits beyond the data, whatever their sign.
constexpr double lowerFactor = 0.995;
constexpr double upperFactor = 1.005;

void addBand(PlotState& state, const char* column, const PlotLook::Color& color)
{
  const int time = columnIndex(state.quartileTable, derivedTimeName);
  const int value = columnIndex(state.quartileTable, column);
  vtkNew<vtkPlotShiftedBag> plot;
  setColor(plot, color);
  plot->GetBrush()->SetColor(color[0], color[1], color[2], color[3]);
  vtkNew<vtkPen> selectionPen;
  selectionPen->SetColor(color[0], color[1], color[2], color[3]);
  plot->SetSelectionPen(selectionPen);
  // One point in time spans no band, and VTK reports one as an error.
  if (state.quartileTable->GetNumberOfRows() > 1)
    feedPlot(plot, state.quartileTable, time, value);
  makeUnselectable(plot);
  state.chartXY->AddPlot(plot);
}

/// Rows that stand for several have no course to draw, and no bands around it.
vtkSmartPointer<vtkPlotPoints> makeSummaryPlot(const PlotState& state)
{
  auto points = vtkSmartPointer<vtkPlotInvisiblePoints>::New();
  points->SetOnlyShowSelected(0);
  points->SetHighlight(state.options.look.highlight);
  points->SetMarkerSize(static_cast<float>(state.metaData->pointSize));
  points->SetMarkerStyle(state.metaData->markerStyle);
  return points;
}

vtkSmartPointer<vtkPlotPoints> makeRunsPlot(const PlotState& state)
{
  if (drawsSummary(state))
    return makeSummaryPlot(state);
  const int onlyShowSelected = state.metaData->getShowQuantiles() ? 1 : 0;
  if (state.metaData->getPlotLine())
  {
    auto lines = vtkSmartPointer<vtkPlotLineSet>::New();
    lines->SetStride(state.metaData->getStride());
    lines->SetOnlyShowSelected(onlyShowSelected);
    lines->SetBreakAtGaps(state.options.breaksLinesAtGaps);
    lines->SetPictureStore(state.pictures);
    lines->SetHighlight(state.options.look.highlight);
    return lines;
  }
  auto points = vtkSmartPointer<vtkPlotInvisiblePoints>::New();
  points->SetOnlyShowSelected(onlyShowSelected);
  points->SetHighlight(state.options.look.highlight);
  return points;
}

/// The marker column is there once runs have been split.
void colorBySelection(vtkPlotPoints* plot)
{
  vtkNew<vtkLookupTable> colors;
  colors->SetRange(0.0, 1.0);
  colors->SetNumberOfTableValues(2);
  colors->SetTableValue(0, 0.0, 0.0, 0.0, 1.0);
  colors->SetTableValue(1, 0.05, 0.6, 0.9, 1.0);
  colorPoints(plot, ComplementSelectionColumn, colors);
}

void dressAxes(PlotState& state)
{
  const PlotMetaData& settings = *state.metaData;
  vtkAxis* bottom = state.chartXY->GetAxis(vtkAxis::BOTTOM);
  vtkAxis* left = state.chartXY->GetAxis(vtkAxis::LEFT);
  bottom->SetTitle(settings.xLabel);
  left->SetTitle(settings.yLabel);
  if (const CoordinateWindow* window = rememberedWindow(state))
  {
    restoreBottomAxis(state, bottom, *window, settings.getLogX());
    restoreLeftAxis(state, left, *window);
    return;
  }
  const DrawnRows drawn = drawnRows(state);
  double range[2];
  if (finiteRange(plottableColumn(drawn.table, drawn.x), range))
    fixRange(bottom, lowerFactor * range[0], upperFactor * range[1]);
  left->SetBehavior(vtkAxis::AUTO);
}

} // namespace

void addQuartileBands(PlotState& state)
{
  if (!state.quartileTable)
    return;
  state.quartileTable->Modified();
  for (std::size_t band = 0; band < bandColumns.size(); ++band)
    addBand(state, bandColumns[band], state.options.look.bands[band]);
}

vtkPlot* fillTrajectoryChart(PlotState& state)
{
  const bool summarised = drawsSummary(state);
  if (state.metaData->getShowQuantiles() && !summarised)
    addQuartileBands(state);
  showSelectionInSummary(state);
  vtkSmartPointer<vtkPlotPoints> runs = makeRunsPlot(state);
  const DrawnRows drawn = drawnRows(state);
  state.chartXY->SetAnnotationLink(drawn.link);
  feedPlot(runs, drawn.table, drawn.x, drawn.y);
  if (!summarised)
    colorBySelection(runs);
  state.chartXY->AddPlot(runs);
  dressAxes(state);
  return runs;
}

} // namespace Talmesh::plot

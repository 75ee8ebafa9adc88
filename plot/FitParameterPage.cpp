#include "plot/FitParameterPage.h"

#include "external/PlotMetaData.h"
#include "plot/ChartLifetime.h"
#include "plot/Margins.h"
#include "plot/ParameterCells.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"

#include <vtkAxis.h>
#include <vtkColorTransferFunction.h>
#include <vtkPlotPoints.h>

#include <cmath>

namespace Talmesh::plot
{

namespace
{

constexpr int scoreColumn = 0;
constexpr int iterationColumn = 1;

/// Room for the labels of an axis that has a neighbour where other cells have the margin.
constexpr float leftLabelRoom = 34.0F;   ///< pixels
constexpr float bottomLabelRoom = 20.0F; ///< pixels

/// Null when the score column cannot colour.
vtkSmartPointer<vtkScalarsToColors> scoreColors(const PlotState& state)
{
  double range[2];
  vtkDoubleArray* scores = doubleColumn(state.table, scoreColumn);
  if (!plottableColumn(state.table, scoreColumn) || !finiteRange(scores, range))
    return nullptr;
  const bool logarithmic = range[0] > 0.0;
  const double middle =
      logarithmic ? std::sqrt(range[0]) * std::sqrt(range[1]) : 0.5 * range[0] + 0.5 * range[1];
  auto colors = vtkSmartPointer<vtkColorTransferFunction>::New();
  colors->AddRGBPoint(range[0], 0.1, 0.1, 0.8);
  colors->AddRGBPoint(middle, 0.1, 0.1, 0.1);
  colors->AddRGBPoint(range[1], 0.8, 0.1, 0.1);
  if (logarithmic)
    colors->SetScaleToLog10();
  return colors;
}

void addPoints(PlotState& state, vtkChart* chart, int xColumn, int yColumn)
{
  auto* points = vtkPlotPoints::SafeDownCast(chart->AddPlot(vtkChart::POINTS));
  if (feedPlot(points, state.table, xColumn, yColumn) && state.pointColors)
    colorPoints(points, columnName(state.table, scoreColumn), state.pointColors);
}

void drawPair(PlotState& state, const std::vector<std::string>& titles, const ParameterPair& pair)
{
  const std::vector<int>& columns = state.metaData->parameterColumns;
  vtkChart* chart = pairCell(state, pair);
  disablePanAndZoom(chart);
  addPoints(state, chart, columns[pair.x], columns[pair.y]);
  dressPairAxes(state, chart, pair, titles);
}

/// The axes of a diagonal chart are labelled, but only the first and last have a margin for that.
void makeLabelRoom(PlotState& state, int m, int parameters)
{
  const vtkVector2f room(m > 0 ? leftLabelRoom : 0.0F, m < parameters - 1 ? bottomLabelRoom : 0.0F);
  state.chartMatrix->SetSpecificResize(vtkVector2i(m, parameters - 1 - m), room);
}

void drawCourse(PlotState& state, const std::vector<std::string>& titles, int m)
{
  const int parameters = static_cast<int>(titles.size());
  const vtkVector2i cell(m, parameters - 1 - m);
  vtkChart* chart = state.chartMatrix->GetChart(cell);
  state.chartMatrix->SetChartSpan(cell, vtkVector2i(1, 1));
  disablePanAndZoom(chart);
  const auto k = static_cast<std::size_t>(m);
  const int column = state.metaData->parameterColumns[k];
  addPoints(state, chart, iterationColumn, column);
  chart->GetAxis(vtkAxis::BOTTOM)->SetTitle("Iteration");
  dressParameterAxis(state, chart, vtkAxis::LEFT, titles[k], true);
  makeLabelRoom(state, m, parameters);
}

} // namespace

void drawFitParameterPage(PlotState& state, vtkContextScene* scene)
{
  const std::vector<std::string> titles = parameterTitles(state);
  const int parameters = static_cast<int>(titles.size());
  showChart(state, state.chartMatrix, scene);
  resetChartMatrix(state, parameters, parameters);
  applyTurnedBorders(state, state.chartMatrix);
  state.pointColors = scoreColors(state);
  forEachPair(titles.size(), [&](const ParameterPair& pair) { drawPair(state, titles, pair); });
  for (int m = 0; m < parameters; ++m)
    drawCourse(state, titles, m);
  addToSceneItems(state);
}

} // namespace Talmesh::plot

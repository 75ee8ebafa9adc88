#include "plot/StyleTable.h"

#include "plot/ErrorBarChart.h"
#include "plot/FitParameterPage.h"
#include "plot/MultiPlotPage.h"
#include "plot/ParallelCoordinatesChart.h"
#include "plot/PointChart3D.h"
#include "plot/ReservedStyle.h"
#include "plot/ScatterMatrix.h"
#include "plot/SelectionPage.h"
#include "plot/XYChart.h"

namespace Talmesh::plot
{

namespace
{

struct StyleEntry
{
  plotStyles style;
  StyleBuilder builder;
  bool hasXYChart;
};

constexpr StyleEntry styleTable[] = {
    {xyPlot, drawXYChart, true},
    {scatterPlotMatrix, drawScatterMatrix, false},
    {xyzPlot, drawPointChart3D, false},
    {multiPlot, drawMultiPlotPage, true},
    {selectionCdfPlot, drawSelectionPage, true},
    {scatterWithErrorBars, drawErrorBarChart, true},
    {fitParameterDistribution, drawFitParameterPage, false},
    {parallelCoordinates, drawParallelCoordinates, false},
};

/// The other styles show a title on the XY chart.
constexpr StyleBuilder otherBuilder = drawReservedStyle;

const StyleEntry* entryOf(plotStyles style)
{
  for (const StyleEntry& entry : styleTable)
  {
    if (entry.style == style)
      return &entry;
  }
  return nullptr;
}

} // namespace

StyleBuilder builderOf(plotStyles style)
{
  const StyleEntry* entry = entryOf(style);
  return entry ? entry->builder : otherBuilder;
}

bool showsXYChart(plotStyles style)
{
  const StyleEntry* entry = entryOf(style);
  return !entry || entry->hasXYChart;
}

} // namespace Talmesh::plot

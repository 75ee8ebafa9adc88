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
};

constexpr StyleEntry styleTable[] = {
    {xyPlot, drawXYChart},
    {scatterPlotMatrix, drawScatterMatrix},
    {xyzPlot, drawPointChart3D},
    {multiPlot, drawMultiPlotPage},
    {selectionCdfPlot, drawSelectionPage},
    {scatterWithErrorBars, drawErrorBarChart},
    {fitParameterDistribution, drawFitParameterPage},
    {parallelCoordinates, drawParallelCoordinates},
};

} // namespace

StyleBuilder builderOf(plotStyles style)
{
  for (const StyleEntry& entry : styleTable)
  {
    if (entry.style == style)
      return entry.builder;
  }
  return drawReservedStyle;
}

} // namespace Talmesh::plot

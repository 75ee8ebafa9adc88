#include "plot/StyleTable.h"

#include "external/PlotMetaData.h"
#include "plot/ErrorBarChart.h"
#include "plot/FitParameterPage.h"
#include "plot/Margins.h"
#include "plot/MultiPlotPage.h"
#include "plot/ParallelCoordinatesChart.h"
#include "plot/PlotState.h"
#include "plot/PointAppearance.h"
#include "plot/PointChart3D.h"
#include "plot/ScatterMatrix.h"
#include "plot/SelectionPage.h"
#include "plot/SobolChart.h"
#include "plot/XYChart.h"

#include <algorithm>

namespace Talmesh::plot
{

namespace
{

StyleRow xyRow()
{
  StyleRow row{xyPlot, drawXYChart};
  row.applyBorders = applyXYBorders;
  row.resizeMarkers = resizeXYMarkers;
  row.showsXYChart = true;
  row.drawsSummaries = true;
  return row;
}

/// A title on the XY chart, or the sensitivity indices that a client has put there.
StyleRow reservedRow(plotStyles style)
{
  StyleRow row{style, drawReservedStyle};
  row.showsXYChart = true;
  row.drawsRows = false;
  return row;
}

StyleRow sobolBarRow()
{
  StyleRow row = reservedRow(reservedStyle1);
  row.addSobolIndices = addSobolBars;
  return row;
}

StyleRow sobolBandRow()
{
  StyleRow row = reservedRow(reservedStyle2);
  row.addSobolIndices = addSobolBands;
  return row;
}

StyleRow scatterMatrixRow()
{
  StyleRow row{scatterPlotMatrix, drawScatterMatrix};
  row.resizeMarkers = resizeScatterMatrixMarkers;
  row.drawsSummaries = true;
  return row;
}

StyleRow multiPlotRow()
{
  StyleRow row{multiPlot, drawMultiPlotPage};
  row.applyBorders = applyMultiPlotBorders;
  row.resizeMarkers = resizeMultiPlotMarkers;
  row.showsXYChart = true;
  row.drawsSummaries = true;
  return row;
}

StyleRow selectionPageRow()
{
  StyleRow row{selectionCdfPlot, drawSelectionPage};
  row.applyBorders = applySelectionPageBorders;
  row.showsXYChart = true;
  row.drawsSummaries = true;
  row.ranksNewData = true;
  row.selectsAcceptedRuns = true;
  return row;
}

StyleRow errorBarRow()
{
  StyleRow row{scatterWithErrorBars, drawErrorBarChart};
  row.widenLines = widenErrorBars;
  row.showsXYChart = true;
  row.drawsSummaries = true;
  return row;
}

StyleRow plainRow(plotStyles style, void (*build)(PlotState&, vtkContextScene*))
{
  StyleRow row{style, build};
  row.drawsSummaries = true;
  return row;
}

} // namespace

const std::vector<StyleRow>& styleTable()
{
  static const std::vector<StyleRow> table = {
      xyRow(),
      sobolBarRow(),
      sobolBandRow(),
      scatterMatrixRow(),
      plainRow(xyzPlot, drawPointChart3D),
      multiPlotRow(),
      selectionPageRow(),
      errorBarRow(),
      {fitParameterDistribution, drawFitParameterPage},
      plainRow(parallelCoordinates, drawParallelCoordinates)};
  return table;
}

const StyleRow& styleRow(plotStyles style)
{
  static const StyleRow other = reservedRow(static_cast<plotStyles>(parallelCoordinates + 1));
  const std::vector<StyleRow>& table = styleTable();
  const auto found = std::find_if(table.begin(), table.end(),
                                  [style](const StyleRow& row) { return row.style == style; });
  return found == table.end() ? other : *found;
}

const StyleRow& currentStyle(const PlotState& state)
{
  return styleRow(state.metaData->getPlotStyle());
}

} // namespace Talmesh::plot

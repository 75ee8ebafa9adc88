#include "plot/Margins.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"

namespace Talmesh::plot
{

namespace
{

constexpr int headingHeight = 25; ///< pixels

void applyMatrixBorders(PlotState& state, int heading)
{
  state.chartMatrix->SetGutter(vtkVector2f(static_cast<float>(state.horizontalGutter),
                                           static_cast<float>(state.verticalGutter + heading)));
  state.chartMatrix->SetBorders(state.leftMargin, state.bottomMargin, state.rightMargin,
                                state.topMargin + heading);
}

} // namespace

void updateMargins(PlotState& state)
{
  switch (state.metaData->getPlotStyle())
  {
  case xyPlot:
    applyXYBorders(state);
    break;
  case multiPlot:
    applyMultiPlotBorders(state);
    break;
  case selectionCdfPlot:
    applySelectionPageBorders(state);
    break;
  default:
    break;
  }
}

void applyXYBorders(PlotState& state)
{
  if (state.chartXY)
    state.chartXY->SetBorders(state.leftMargin, state.bottomMargin, state.rightMargin,
                              state.topMargin);
}

void applyMultiPlotBorders(PlotState& state)
{
  applyMatrixBorders(state, 0);
}

void applySelectionPageBorders(PlotState& state)
{
  applyMatrixBorders(state, headingHeight);
}

} // namespace Talmesh::plot

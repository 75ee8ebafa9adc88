#include "plot/ReservedStyle.h"

#include "plot/ChartLifetime.h"
#include "plot/PlotState.h"
#include "plot/Titles.h"

namespace Talmesh::plot
{

void drawReservedStyle(PlotState& state, vtkContextScene* scene)
{
  ensureStandaloneChart(state);
  showChart(state, state.chartXY, scene);
  if (state.chartXY != state.sobolChart.Get())
    state.chartXY->ClearPlots();
  setPlotTitle(state, "Not yet implemented");
}

} // namespace Talmesh::plot

#include "plot/ChartReuse.h"

#include "plot/ChartLifetime.h"
#include "plot/PlotState.h"

#include <vtkAxis.h>

namespace Talmesh::plot
{

namespace
{

/// VTK has no operation for it; the values are those of its constructor.
void restoreAxis(vtkAxis* axis)
{
  axis->SetBehavior(vtkAxis::AUTO);
  axis->SetCustomTickPositions(nullptr, nullptr);
  axis->SetNumberOfTicks(-1);
  axis->SetTicksVisible(true);
  axis->SetLabelsVisible(true);
  axis->SetNotation(vtkAxis::STANDARD_NOTATION);
  axis->SetPrecision(2);
  axis->SetMargins(15, 5);
}

} // namespace

vtkChartXY* reuseChartXY(PlotState& state, vtkContextScene* scene)
{
  leaveSobolChart(state);
  ensureStandaloneChart(state);
  showChart(state, state.chartXY, scene);
  state.chartXY->ClearPlots();
  state.chartXY->SetInteractive(true);
  restoreAxis(state.chartXY->GetAxis(vtkAxis::BOTTOM));
  restoreAxis(state.chartXY->GetAxis(vtkAxis::LEFT));
  return state.chartXY;
}

} // namespace Talmesh::plot

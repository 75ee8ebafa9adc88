#include "plot/AxisScales.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"
#include "vtk/LogScales.h"
#include "vtk/vtkGuardedAxis.h"
#include "vtk/vtkSelectableChartXY.h"

#include <vtkAxis.h>

namespace Talmesh::plot
{

namespace
{

/// An axis in no scene would only warn that it cannot tell the size of a window.
void updateInScene(vtkAxis* axis)
{
  if (axis->GetScene())
    axis->Update();
}

void settle(vtkChartXY* chart)
{
  if (auto* guarded = vtkSelectableChartXY::SafeDownCast(chart))
    guarded->SettleScales();
  else
    settleLogScales(chart);
}

} // namespace

void setLogScaleY(PlotState& state, bool log)
{
  if (!state.chartXY)
    return;
  state.looks.logLeft = log;
  vtkAxis* axis = state.chartXY->GetAxis(vtkAxis::LEFT);
  axis->SetLogScale(log);
  // The range shown is that of the other scale, whose rounding may have taken it to 0.
  state.chartXY->RecalculateBounds();
  settle(state.chartXY);
  updateInScene(axis);
}

bool showsLogScale(const PlotState& state, int position)
{
  if (!state.chartXY)
    return false;
  settle(state.chartXY);
  auto* axis = vtkGuardedAxis::SafeDownCast(state.chartXY->GetAxis(position));
  return axis && axis->GetLogScale() && axis->GetLogScaleAllowed();
}

void applyLogScaleX(PlotState& state)
{
  if (!state.chartXY)
    return;
  vtkAxis* axis = state.chartXY->GetAxis(vtkAxis::BOTTOM);
  const bool log = state.metaData->getLogX();
  if (axis->GetLogScale() != log)
    state.chartXY->RecalculateBounds();
  axis->SetLogScale(log);
  updateInScene(axis);
}

void setShowLegend(PlotState& state, bool legend)
{
  if (!state.chartXY)
    return;
  state.looks.legend = legend;
  state.chartXY->SetShowLegend(legend);
  state.chartXY->Update();
}

void applyChartLooks(PlotState& state)
{
  if (!state.chartXY)
    return;
  state.chartXY->GetAxis(vtkAxis::LEFT)->SetLogScale(state.looks.logLeft);
  state.chartXY->SetShowLegend(state.looks.legend);
}

void forgetLogScaleY(PlotState& state)
{
  setLogScaleY(state, false);
}

void forgetChartLooks(PlotState& state)
{
  state.looks = ChartLooks();
  applyChartLooks(state);
}

} // namespace Talmesh::plot

#include "plot/AxisScales.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"

#include <vtkAxis.h>

namespace Talmesh::plot
{

namespace
{

void setLogScale(PlotState& state, int position, bool log)
{
  if (!state.chartXY)
    return;
  vtkAxis* axis = state.chartXY->GetAxis(position);
  axis->SetLogScale(log);
  axis->Update();
}

} // namespace

void setLogScaleY(PlotState& state, bool log)
{
  setLogScale(state, vtkAxis::LEFT, log);
}

void applyLogScaleX(PlotState& state)
{
  setLogScale(state, vtkAxis::BOTTOM, state.metaData->getLogX());
}

void setShowLegend(PlotState& state, bool legend)
{
  if (!state.chartXY)
    return;
  state.chartXY->SetShowLegend(legend);
  state.chartXY->Update();
}

} // namespace Talmesh::plot

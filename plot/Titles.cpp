#include "plot/Titles.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"

#include <vtkAxis.h>

namespace Talmesh::plot
{

void setPlotTitle(PlotState& state, const std::string& title)
{
  state.metaData->title = title;
  if (state.chartXY)
    state.chartXY->SetTitle(title);
}

void setXLabel(PlotState& state, const std::string& label)
{
  state.metaData->xLabel = label;
  if (state.chartXY)
    state.chartXY->GetAxis(vtkAxis::BOTTOM)->SetTitle(label);
}

void setYLabel(PlotState& state, const std::string& label)
{
  state.metaData->yLabel = label;
  if (state.chartXY)
    state.chartXY->GetAxis(vtkAxis::LEFT)->SetTitle(label);
}

} // namespace Talmesh::plot

#include "plot/PlotTexts.h"

#include "external/PlotMetaData.h"
#include "plot/PlotState.h"

#include <vtkAxis.h>

namespace Talmesh::plot
{

namespace
{

bool hasLabels(const PlotState& state)
{
  return state.xTickLabels && state.xTickLabels->GetNumberOfValues() > 0;
}

} // namespace

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

void setXTickLabels(PlotState& state, const std::vector<std::string>& labels)
{
  state.xTickLabels = vtkSmartPointer<vtkStringArray>::New();
  for (const std::string& label : labels)
    state.xTickLabels->InsertNextValue(label);
}

void setXTickPositions(PlotState& state, const std::vector<double>& positions)
{
  state.xTickPositions = vtkSmartPointer<vtkDoubleArray>::New();
  for (const double position : positions)
    state.xTickPositions->InsertNextValue(position);
}

void applyTickLabels(const PlotState& state, vtkAxis* axis)
{
  if (!hasLabels(state))
    axis->SetCustomTickPositions(nullptr, nullptr);
  else if (state.xTickPositions && state.xTickPositions->GetNumberOfValues() > 0)
    axis->SetCustomTickPositions(state.xTickPositions, state.xTickLabels);
  else
    applyTickLabelsByIndex(state, axis);
}

void applyTickLabelsByIndex(const PlotState& state, vtkAxis* axis)
{
  if (!hasLabels(state))
    return;
  vtkNew<vtkDoubleArray> positions;
  for (vtkIdType i = 0; i < state.xTickLabels->GetNumberOfValues(); ++i)
    positions->InsertNextValue(static_cast<double>(i));
  axis->SetCustomTickPositions(positions, state.xTickLabels);
}

} // namespace Talmesh::plot

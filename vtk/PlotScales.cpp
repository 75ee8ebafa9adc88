#include "vtk/PlotScales.h"

#include <vtkAxis.h>
#include <vtkChart.h>
#include <vtkPlot.h>
#include <vtkRect.h>

#include <cstddef>

namespace Talmesh
{

PlotScales::Scales PlotScales::scalesOf(vtkPlot* plot)
{
  const vtkRectd shift = plot->GetShiftScale();
  Scales scales{plot, {shift.GetX(), shift.GetY(), shift.GetWidth(), shift.GetHeight()}, {}};
  vtkAxis* const axes[2] = {plot->GetXAxis(), plot->GetYAxis()};
  for (std::size_t i = 0; i < 2; ++i)
  {
    const bool logarithmic = axes[i] && axes[i]->GetLogScaleActive();
    scales.logarithmic[2 * i] = logarithmic;
    scales.logarithmic[2 * i + 1] = logarithmic && axes[i]->GetUnscaledMinimum() < 0.0;
  }
  return scales;
}

void PlotScales::note(vtkChart* chart)
{
  noted.clear();
  for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
    noted.push_back(scalesOf(chart->GetPlot(i)));
}

bool PlotScales::areKnown(vtkChart* chart, vtkIdType plot) const
{
  const auto place = static_cast<std::size_t>(plot);
  return place < noted.size() && noted[place] == scalesOf(chart->GetPlot(plot));
}

} // namespace Talmesh

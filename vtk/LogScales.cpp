#include "vtk/LogScales.h"

#include "vtk/vtkGuardedAxis.h"
#include "vtk/vtkPlotErrorPoints.h"

#include <vtkChart.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPlot.h>
#include <vtkStringArray.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace Talmesh
{

namespace
{

bool liesAlong(vtkPlot* plot, const vtkAxis* axis)
{
  return plot->GetXAxis() == axis || plot->GetYAxis() == axis;
}

/// Error bars are lengths on a linear axis.
bool showsErrorBars(vtkChart* chart, const vtkAxis* axis)
{
  for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
  {
    vtkPlot* plot = chart->GetPlot(i);
    if (plot->GetYAxis() == axis && vtkPlotErrorPoints::SafeDownCast(plot))
      return true;
  }
  return false;
}

/// Not SetUnscaledRange, which leaves limits behind on a logarithmic axis.
void setPlainRange(vtkAxis* axis, double minimum, double maximum)
{
  axis->SetLogScale(false);
  axis->SetRange(minimum, maximum);
  axis->SetLogScale(true);
}

void makePositive(vtkAxis* axis, const double range[2])
{
  const double maximum = axis->GetUnscaledMaximum();
  const bool keepsEnd = axis->GetBehavior() != vtkAxis::AUTO && maximum > range[0];
  setPlainRange(axis, range[0], keepsEnd ? maximum : range[1]);
}

/// Nothing plotted allows every scale.
void settleAxis(vtkChart* chart, vtkGuardedAxis* axis)
{
  double range[2];
  const bool shown = shownRange(chart, axis, range);
  axis->SetLogScaleAllowed(!showsErrorBars(chart, axis) && (!shown || hasLogarithms(range)));
  if (!shown || !axis->GetLogScaleAllowed())
    return;
  if (!axis->GetLogScaleActive())
    makePositive(axis, range);
  // A fixed window so low that VTK cannot tell it from one that reaches zero.
  axis->SetLogScaleAllowed(axis->GetLogScaleActive());
}

void settle(vtkChart* chart, vtkGuardedAxis* axis)
{
  const bool before = axis->GetLogScaleActive();
  settleAxis(chart, axis);
  if (axis->GetLogScaleActive() == before)
    return;
  for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
  {
    if (liesAlong(chart->GetPlot(i), axis))
      chart->GetPlot(i)->Modified();
  }
}

constexpr int tickableDecades = 3;

std::string powerOfTen(int exponent)
{
  if (exponent < -3 || exponent > 3)
    return "1e" + std::to_string(exponent);
  if (exponent < 0)
    return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + "1";
  return "1" + std::string(static_cast<std::size_t>(exponent), '0');
}

} // namespace

bool shownRange(vtkChart* chart, const vtkAxis* axis, double range[2])
{
  range[0] = std::numeric_limits<double>::infinity();
  range[1] = -range[0];
  for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
  {
    vtkPlot* plot = chart->GetPlot(i);
    if (!plot->GetInput() || !plot->GetVisible() || !liesAlong(plot, axis))
      continue;
    plot->Update();
    double bounds[4];
    plot->GetUnscaledInputBounds(bounds);
    const int offset = plot->GetXAxis() == axis ? 0 : 2;
    range[0] = std::min(range[0], bounds[offset]);
    range[1] = std::max(range[1], bounds[offset + 1]);
  }
  return std::isfinite(range[0]) && std::isfinite(range[1]) && range[0] <= range[1];
}

bool hasLogarithms(const double range[2])
{
  return range[0] > 0.0 && range[0] * range[1] > 0.0;
}

void settleLogScales(vtkChart* chart)
{
  for (int position = 0; position < chart->GetNumberOfAxes(); ++position)
  {
    auto* axis = vtkGuardedAxis::SafeDownCast(chart->GetAxis(position));
    if (axis && axis->GetLogScale())
      settle(chart, axis);
  }
}

void useDecadeTicks(vtkChart* chart, int position)
{
  vtkAxis* axis = chart->GetAxis(position);
  double range[2];
  if (!axis->GetLogScale() || !shownRange(chart, axis, range) || range[0] <= 0.0)
    return;
  const int first = static_cast<int>(std::floor(std::log10(range[0])));
  const int last = static_cast<int>(std::ceil(std::log10(range[1])));
  if (last - first <= tickableDecades)
    return;
  const int step = (last - first + tickableDecades - 1) / tickableDecades;
  vtkNew<vtkDoubleArray> positions;
  vtkNew<vtkStringArray> labels;
  for (int exponent = first; exponent <= last; ++exponent)
  {
    // Multiples of the step, so that the same powers are ticked wherever the range begins.
    if (exponent % step != 0)
      continue;
    positions->InsertNextValue(exponent);
    labels->InsertNextValue(powerOfTen(exponent));
  }
  axis->SetCustomTickPositions(positions, labels);
}

} // namespace Talmesh

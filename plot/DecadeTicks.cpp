#include "plot/DecadeTicks.h"

#include <vtkAxis.h>
#include <vtkChart.h>
#include <vtkDoubleArray.h>
#include <vtkPlot.h>
#include <vtkStringArray.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace Talmesh::plot
{

namespace
{

constexpr int tickableDecades = 3;

std::string powerOfTen(int exponent)
{
  if (exponent < -3 || exponent > 3)
    return "1e" + std::to_string(exponent);
  if (exponent < 0)
    return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + "1";
  return "1" + std::string(static_cast<std::size_t>(exponent), '0');
}

/// @return whether the plots show anything finite along the axis
bool shownRange(vtkChart* chart, int position, double range[2])
{
  range[0] = std::numeric_limits<double>::infinity();
  range[1] = -range[0];
  const int offset = position == vtkAxis::BOTTOM ? 0 : 2;
  for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
  {
    vtkPlot* plot = chart->GetPlot(i);
    if (!plot->GetInput())
      continue;
    plot->Update();
    double bounds[4];
    plot->GetUnscaledInputBounds(bounds);
    range[0] = std::min(range[0], bounds[offset]);
    range[1] = std::max(range[1], bounds[offset + 1]);
  }
  return std::isfinite(range[0]) && std::isfinite(range[1]) && range[0] <= range[1];
}

} // namespace

void useDecadeTicks(vtkChart* chart, int position)
{
  vtkAxis* axis = chart->GetAxis(position);
  double range[2];
  if (!axis->GetLogScale() || !shownRange(chart, position, range) || range[0] <= 0.0)
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

} // namespace Talmesh::plot

#include "plot/DecadeTicks.h"

#include "vtk/LogScales.h"

#include <vtkAxis.h>
#include <vtkChart.h>
#include <vtkDoubleArray.h>
#include <vtkStringArray.h>

#include <cmath>
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

} // namespace

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

} // namespace Talmesh::plot

#include "vtk/PointPicking.h"

#include "stats/ParallelParts.h"

#include <vtkContextPolygon.h>
#include <vtkIdTypeArray.h>
#include <vtkPoints2D.h>
#include <vtkVector.h>

#include <cstddef>
#include <numeric>
#include <vector>

namespace Talmesh
{
namespace
{
/// Enough points to be worth a thread.
constexpr std::size_t partSize = 65536;

/// VTK sorts the points of each item by x before it looks for the first ones. The items of a chart
/// that is made anew after each selection would be sorted for one search: looking at every point
/// takes a hundredth of that.
template <typename Covers>
void pick(vtkPoints2D* points, const Covers& covers, vtkIdTypeArray* ids)
{
  const auto* const places = static_cast<const vtkVector2f*>(points->GetVoidPointer(0));
  const auto count = static_cast<std::size_t>(points->GetNumberOfPoints());
  // Behind the number of points in each part, where those of the next part begin.
  std::vector<std::size_t> begins(count / partSize + 2, 0);
  stats::inParallelParts(count, partSize,
                         [&](std::size_t first, std::size_t last)
                         {
                           std::size_t covered = 0;
                           for (std::size_t i = first; i < last; ++i)
                             covered += covers(places[i]) ? 1 : 0;
                           begins[first / partSize + 1] = covered;
                         });
  std::partial_sum(begins.begin(), begins.end(), begins.begin());
  ids->SetNumberOfComponents(1);
  ids->SetNumberOfValues(static_cast<vtkIdType>(begins.back()));
  vtkIdType* const values = ids->GetPointer(0);
  stats::inParallelParts(count, partSize,
                         [&](std::size_t first, std::size_t last)
                         {
                           vtkIdType* to = values + begins[first / partSize];
                           for (std::size_t i = first; i < last; ++i)
                             if (covers(places[i]))
                               *to++ = static_cast<vtkIdType>(i);
                         });
  ids->Modified();
}
} // namespace

void pickInRectangle(vtkPoints2D* points, const vtkVector2f& min, const vtkVector2f& max,
                     vtkIdTypeArray* ids)
{
  const float left = min.GetX();
  const float right = max.GetX();
  const float bottom = min.GetY();
  const float top = max.GetY();
  pick(
      points,
      [=](const vtkVector2f& place)
      { return place[0] >= left && place[0] <= right && place[1] >= bottom && place[1] <= top; },
      ids);
}

void pickInPolygon(vtkPoints2D* points, const vtkContextPolygon& polygon, vtkIdTypeArray* ids)
{
  pick(
      points, [&](const vtkVector2f& place) { return polygon.Contains(place); }, ids);
}
} // namespace Talmesh

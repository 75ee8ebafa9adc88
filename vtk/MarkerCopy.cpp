#include "vtk/MarkerCopy.h"

#include "stats/ParallelParts.h"

#include <vtkDataArray.h>
#include <vtkIdTypeArray.h>

#include <algorithm>
#include <atomic>
#include <cmath>

namespace Talmesh
{
namespace
{
// Markers in floating-point columns are cut to integers; what no integer can hold marks nothing.
vtkIdType toMarker(double value)
{
  return std::abs(value) < 9.0e18 ? static_cast<vtkIdType>(value) : 0;
}

/// Pages that the system has yet to give take longer than what is copied into them.
vtkIdType copyValues(const vtkIdType* from, std::size_t count, vtkIdType* to)
{
  std::atomic<vtkIdType> marked{0};
  stats::inParallelParts(count, stats::numbersOfPart,
                         [&](std::size_t first, std::size_t last)
                         {
                           std::copy(from + first, from + last, to + first);
                           marked += static_cast<vtkIdType>(last - first) -
                                     std::count(from + first, from + last, 0);
                         });
  return marked;
}
} // namespace

vtkIdType copyMarkers(vtkDataArray* markers, vtkIdTypeArray* copy)
{
  const vtkIdType rowCount = markers->GetNumberOfTuples();
  copy->SetNumberOfValues(rowCount);
  auto* ids = vtkIdTypeArray::FastDownCast(markers);
  if (ids && ids->GetNumberOfComponents() == 1)
    return copyValues(ids->GetPointer(0), static_cast<std::size_t>(rowCount), copy->GetPointer(0));
  for (vtkIdType row = 0; row < rowCount; ++row)
    copy->SetValue(row, toMarker(markers->GetComponent(row, 0)));
  const vtkIdType* const values = copy->GetPointer(0);
  return rowCount - std::count(values, values + rowCount, 0);
}
} // namespace Talmesh

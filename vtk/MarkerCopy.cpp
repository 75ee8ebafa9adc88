#include "vtk/MarkerCopy.h"

#include <vtkDataArray.h>
#include <vtkIdTypeArray.h>

#include <algorithm>
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
} // namespace

vtkIdType copyMarkers(vtkDataArray* markers, vtkIdTypeArray* copy)
{
  const vtkIdType rowCount = markers->GetNumberOfTuples();
  copy->SetNumberOfValues(rowCount);
  auto* ids = vtkIdTypeArray::FastDownCast(markers);
  if (ids && ids->GetNumberOfComponents() == 1)
  {
    std::copy_n(ids->GetPointer(0), rowCount, copy->GetPointer(0));
  }
  else
  {
    for (vtkIdType row = 0; row < rowCount; ++row)
      copy->SetValue(row, toMarker(markers->GetComponent(row, 0)));
  }
  const vtkIdType* const values = copy->GetPointer(0);
  return rowCount - std::count(values, values + rowCount, 0);
}
} // namespace Talmesh

#include "vtk/vtkSelectableChartMatrix.h"

#include "vtk/vtkSelectableChartXY.h"

#include <vtkObjectFactory.h>

vtkStandardNewMacro(vtkSelectableChartMatrix);

vtkChart* vtkSelectableChartMatrix::GetChart(const vtkVector2i& position)
{
  const vtkIdType before = GetNumberOfItems();
  vtkChart* cell = Superclass::GetChart(position);
  // A cell that VTK has just filled has a chart of VTK's.
  return GetNumberOfItems() == before ? cell : vtkSelectableChartXY::PlaceIn(this, position);
}

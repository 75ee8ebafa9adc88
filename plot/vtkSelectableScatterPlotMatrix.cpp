#include "plot/vtkSelectableScatterPlotMatrix.h"

#include "plot/vtkSelectableChartXY.h"

#include <vtkObjectFactory.h>

vtkStandardNewMacro(vtkSelectableScatterPlotMatrix);

vtkSelectableScatterPlotMatrix::vtkSelectableScatterPlotMatrix()
{
  NumberOfFrames = 0;
}

vtkChart* vtkSelectableScatterPlotMatrix::GetChart(const vtkVector2i& position)
{
  const vtkIdType before = GetNumberOfItems();
  vtkChart* cell = Superclass::GetChart(position);
  // A cell that VTK has just filled has a chart of VTK's.
  return GetNumberOfItems() == before ? cell : vtkSelectableChartXY::PlaceIn(this, position);
}

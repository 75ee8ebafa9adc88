#include "plot/vtkSelectableScatterPlotMatrix.h"

#include <vtkChartXY.h>
#include <vtkObjectFactory.h>

vtkStandardNewMacro(vtkSelectableScatterPlotMatrix);

void vtkSelectableScatterPlotMatrix::AddSupplementaryPlot(vtkChart* chart, int plotType,
                                                          vtkStdString, vtkStdString, int)
{
  // The axes at either side have the same fixed range, so the picture stays the same.
  auto* large = vtkChartXY::SafeDownCast(chart);
  if (plotType == ACTIVEPLOT && large)
    large->SetPlotCorner(large->GetPlot(0), 0);
}

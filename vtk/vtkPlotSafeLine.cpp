#include "vtk/vtkPlotSafeLine.h"

#include <vtkObjectFactory.h>
#include <vtkPoints2D.h>

vtkStandardNewMacro(vtkPlotSafeLine);

bool vtkPlotSafeLine::Paint(vtkContext2D* painter)
{
  constexpr vtkIdType fewestOfALine = 2;
  if (Points && Points->GetNumberOfPoints() < fewestOfALine)
    return vtkPlotPoints::Paint(painter);
  return vtkPlotLine::Paint(painter);
}

#include "vtk/vtkPlotShiftedStack.h"

#include "vtk/PlotItemPainting.h"

#include <vtkObjectFactory.h>

vtkStandardNewMacro(vtkPlotShiftedStack);

bool vtkPlotShiftedStack::Paint(vtkContext2D* painter)
{
  const Talmesh::ShiftedPainting shifted(painter, GetShiftScale());
  return vtkPlotStacked::Paint(painter);
}

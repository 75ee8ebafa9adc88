#include "vtk/vtkPlotShiftedBag.h"

#include "vtk/PlotItemPainting.h"

#include <vtkObjectFactory.h>

vtkStandardNewMacro(vtkPlotShiftedBag);

bool vtkPlotShiftedBag::Paint(vtkContext2D* painter)
{
  const Talmesh::ShiftedPainting shifted(painter, GetShiftScale());
  return vtkPlotFunctionalBag::Paint(painter);
}

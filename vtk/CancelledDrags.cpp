#include "vtk/CancelledDrags.h"

#include "vtk/vtkSelectableChartXY.h"
#include "vtk/vtkSelectableChartXYZ.h"
#include "vtk/vtkSelectableParallelCoordinates.h"

#include <vtkAbstractContextItem.h>
#include <vtkContextScene.h>

namespace Talmesh
{

namespace
{

/// Charts also lie in the cells of other items.
bool cancelDragsOf(vtkAbstractContextItem* item)
{
  bool any = false;
  if (auto* chart = vtkSelectableChartXY::SafeDownCast(item))
    any = chart->CancelDrag();
  else if (auto* axes = vtkSelectableParallelCoordinates::SafeDownCast(item))
    any = axes->CancelDrag();
  else if (auto* points = vtkSelectableChartXYZ::SafeDownCast(item))
    any = points->CancelDrag();
  for (unsigned int i = 0; item && i < item->GetNumberOfItems(); ++i)
    any = cancelDragsOf(item->GetItem(i)) || any;
  return any;
}

} // namespace

bool cancelDrags(vtkContextScene& scene)
{
  bool any = false;
  for (unsigned int i = 0; i < scene.GetNumberOfItems(); ++i)
    any = cancelDragsOf(scene.GetItem(i)) || any;
  return any;
}

} // namespace Talmesh

#include "plot/vtkShiftScaleCallback.h"

#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"

#include <vtkAxis.h>
#include <vtkChart.h>
#include <vtkObjectFactory.h>

vtkStandardNewMacro(vtkShiftScaleCallback);

void vtkShiftScaleCallback::Execute(vtkObject* caller, unsigned long, void* callData)
{
  // A click on a point comes with that point, a pan or zoom with nothing.
  if (callData)
    return;
  auto* chart = vtkChart::SafeDownCast(caller);
  if (!chart || !this->Container)
    return;
  const PlotMetaData& settings = *this->Container->getMetaData();
  if (settings.xColumns.empty() || settings.yColumns.empty())
    return;
  vtkAxis* bottom = chart->GetAxis(vtkAxis::BOTTOM);
  vtkAxis* left = chart->GetAxis(vtkAxis::LEFT);
  if (bottom && left)
    Talmesh::plot::rememberWindow(stateOf(*this->Container), bottom, left);
}

#include "vtk/PointCloud.h"

#include "vtk/AggregateTarget.h"
#include "vtk/PlotItemPainting.h"

#include <vtkContextMapper2D.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>
#include <vtkUnsignedCharArray.h>

namespace Talmesh
{
vtkStandardNewMacro(PointCloud);

void PointCloud::Update()
{
  vtkTable* const table = this->Data->GetInput();
  if (!this->Visible || !table)
    return;
  const ColorsWithin colors(table, this->ColorArrayName, this->ScalarVisibility, this->Colors);
  PointInputs inputs = pointInputs(
      this->Data, this->XAxis, this->YAxis, this->UseIndexForXSeries, this->ShiftScale,
      this->ValidPointMaskName.empty() ? nullptr
                                       : table->GetColumnByName(this->ValidPointMaskName.c_str()));
  addColors(inputs, table, this->ColorArrayName, this->ScalarVisibility, this->LookupTable);
  if (this->Points && inputs == this->CachedInputs)
    this->BuildTime.Modified();
  else
    // VTK compares too little to see every change of an axis, and must read again.
    this->MTime.Modified();
  this->vtkPlotPoints::Update();
  this->CachedInputs = inputs;
}

bool PointCloud::Paint(vtkContext2D* painter)
{
  if (!this->Visible || !this->Points || this->Points->GetNumberOfPoints() == 0)
    return false;
  const auto target = AggregateTarget::of(painter, this);
  const PointCloudLook look{this->Points,      this->BadPoints,
                            this->Selection,   this->ScalarVisibility ? this->Colors : nullptr,
                            this->Pen,         this->SelectionPen,
                            this->MarkerStyle, effectiveMarkerSize(this->MarkerSize, this->Pen)};
  if (target && this->Pictures.paint(painter, *target, look))
    return true;
  const SelectionWithin inside(this->Selection, this->Points, this->SelectedPoints);
  return this->vtkPlotPoints::Paint(painter);
}
} // namespace Talmesh

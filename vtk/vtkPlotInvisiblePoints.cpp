#include "vtk/vtkPlotInvisiblePoints.h"

#include "vtk/AggregateTarget.h"
#include "vtk/PlotItemPainting.h"

#include <vtkContext2D.h>
#include <vtkContextMapper2D.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkRenderingCoreEnums.h>
#include <vtkTable.h>

vtkStandardNewMacro(vtkPlotInvisiblePoints);

void vtkPlotInvisiblePoints::PrintSelf(ostream& os, vtkIndent indent)
{
  this->Superclass::PrintSelf(os, indent);
}

void vtkPlotInvisiblePoints::Update()
{
  vtkTable* const table = this->Data->GetInput();
  if (!this->Visible || !table)
    return;
  const Talmesh::ColorsWithin colors(table, this->ColorArrayName, this->ScalarVisibility,
                                     this->Colors);
  Talmesh::PointInputs inputs = Talmesh::pointInputs(
      this->Data, this->XAxis, this->YAxis, this->UseIndexForXSeries, this->ShiftScale,
      this->ValidPointMaskName.empty() ? nullptr
                                       : table->GetColumnByName(this->ValidPointMaskName.c_str()));
  Talmesh::addColors(inputs, table, this->ColorArrayName, this->ScalarVisibility,
                     this->LookupTable);
  if (this->Points && inputs == this->CachedInputs)
    this->BuildTime.Modified();
  else
    // VTK compares too little to see every change of an axis, and must read again.
    this->MTime.Modified();
  this->Superclass::Update();
  this->CachedInputs = inputs;
}

Talmesh::PointCloudLook vtkPlotInvisiblePoints::Look() const
{
  return {this->Points,      this->BadPoints,
          this->Selection,   this->ScalarVisibility ? this->Colors : nullptr,
          this->Pen,         this->SelectionPen,
          this->MarkerStyle, Talmesh::effectiveMarkerSize(this->MarkerSize, this->Pen)};
}

bool vtkPlotInvisiblePoints::Paint(vtkContext2D* painter)
{
  if (!this->Visible || !this->Points || this->Points->GetNumberOfPoints() == 0)
    return false;
  const auto target = Talmesh::AggregateTarget::of(painter, this);
  if (!this->OnlyShowSelected)
  {
    if (target && this->Pictures.paint(painter, *target, this->Look()))
      return true;
    const Talmesh::SelectionWithin inside(this->Selection, this->Points, this->SelectedPoints);
    return this->Superclass::Paint(painter);
  }
  if (!this->Selection || this->Selection->GetNumberOfValues() == 0)
    return true;

  Talmesh::applyHighlightPen(painter, Talmesh::effectiveMarkerSize(this->MarkerSize, this->Pen));
  if (target && this->MarkerStyle != VTK_MARKER_NONE)
  {
    this->Pictures.paintSelected(painter, *target, this->Look(), this->MarkerStyle, true);
    return true;
  }
  const vtkMTimeType built = this->SelectedPoints->GetMTime();
  if (this->Selection->GetMTime() > built || this->GetMTime() > built ||
      this->Points->GetMTime() > built)
    this->UpdateSelectedPoints();
  const auto selectedCount = static_cast<int>(this->SelectedPoints->GetNumberOfTuples());
  if (selectedCount > 0)
    painter->DrawMarkers(this->MarkerStyle, true, this->SelectedPoints->GetPointer(0),
                         selectedCount);
  return true;
}

void vtkPlotInvisiblePoints::UpdateSelectedPoints()
{
  const vtkIdType pointCount = this->Points->GetNumberOfPoints();
  const float* const points = static_cast<float*>(this->Points->GetVoidPointer(0));
  this->SelectedPoints->SetNumberOfComponents(2);
  this->SelectedPoints->SetNumberOfTuples(0);
  for (vtkIdType i = 0; i < this->Selection->GetNumberOfValues(); ++i)
  {
    const vtkIdType id = this->Selection->GetValue(i);
    if (id < 0 || id >= pointCount)
      continue;
    this->SelectedPoints->InsertNextValue(points[2 * id]);
    this->SelectedPoints->InsertNextValue(points[2 * id + 1]);
  }
  this->SelectedPoints->Modified();
}

#include "vtk/vtkPlotInvisiblePoints.h"

#include "vtk/AggregateTarget.h"
#include "vtk/PlotItemPainting.h"
#include "vtk/PointPictures.h"

#include <vtkContext2D.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkRenderingCoreEnums.h>

vtkStandardNewMacro(vtkPlotInvisiblePoints);

void vtkPlotInvisiblePoints::PrintSelf(ostream& os, vtkIndent indent)
{
  this->Superclass::PrintSelf(os, indent);
}

void vtkPlotInvisiblePoints::SetHighlight(const Talmesh::Highlight& highlight)
{
  if (!(highlight == this->SelectedLook))
    this->Modified();
  this->SelectedLook = highlight;
}

bool vtkPlotInvisiblePoints::Paint(vtkContext2D* painter)
{
  if (!this->OnlyShowSelected)
    return this->Superclass::Paint(painter);
  if (!this->Visible || !this->Points || this->Points->GetNumberOfPoints() == 0)
    return false;
  if (!this->Selection || this->Selection->GetNumberOfValues() == 0)
    return true;

  Talmesh::applyHighlightPen(painter, this->SelectedLook,
                             Talmesh::effectiveMarkerSize(this->MarkerSize, this->Pen));
  const auto target = Talmesh::AggregateTarget::of(painter, this);
  if (target && this->MarkerStyle != VTK_MARKER_NONE)
  {
    this->Pictures->paintSelected(painter, *target, this->Look(), this->MarkerStyle, true);
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

#include "vtk/PointCloud.h"

#include "vtk/AggregateTarget.h"
#include "vtk/PlotItemPainting.h"
#include "vtk/PointPictures.h"

#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkUnsignedCharArray.h>

namespace Talmesh
{
vtkStandardNewMacro(PointCloud);

PointCloud::PointCloud()
    : Pictures(std::make_unique<PointPictures>())
{
}

PointCloud::~PointCloud() = default;

bool PointCloud::Paint(vtkContext2D* painter)
{
  if (!this->Visible || !this->Points || this->Points->GetNumberOfPoints() == 0)
    return false;
  const auto target = AggregateTarget::of(painter, this);
  if (target && this->Pictures->paint(painter, *target, this->Look()))
    return true;
  const SelectionWithin inside(this->Selection, this->Points, this->SelectedPoints);
  return this->vtkPlotPoints::Paint(painter);
}

PointCloudLook PointCloud::Look() const
{
  return {this->Points,      this->BadPoints,
          this->Selection,   this->ScalarVisibility ? this->Colors : nullptr,
          this->Pen,         this->SelectionPen,
          this->MarkerStyle, effectiveMarkerSize(this->MarkerSize, this->Pen)};
}
} // namespace Talmesh

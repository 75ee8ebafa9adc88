#include "vtk/CachedPoints.h"

#include "vtk/CachedLogarithms.h"
#include "vtk/PlotItemPainting.h"
#include "vtk/PointInputs.h"
#include "vtk/PointPicking.h"
#include "vtk/VtkCompat.h"

#include <vtkAxis.h>
#include <vtkContextMapper2D.h>
#include <vtkIdTypeArray.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>
#include <vtkUnsignedCharArray.h>

namespace Talmesh
{
void CachedPoints::Update()
{
  vtkTable* const table = this->Data->GetInput();
  if (!this->Visible || !table)
  {
    this->vtkPlotPoints::Update();
    return;
  }
  const ColorsWithin colors(table, this->ColorArrayName, this->ScalarVisibility, this->Colors);
  const PointInputs inputs = this->Inputs();
  const bool current = this->Points && inputs == this->CachedInputs;
  // The item may be newer than its points for reasons that say nothing of them; VTK, in turn,
  // compares too little to see every change of an axis.
  if (current)
    this->BuildTime.Modified();
  else
    this->MTime.Modified();
  this->vtkPlotPoints::Update();
  if (!current)
    this->CacheLogarithms();
  this->CachedInputs = inputs;
}

void CachedPoints::ReadPoints(vtkTable* table)
{
  const ColorsWithin colors(table, this->ColorArrayName, this->ScalarVisibility, this->Colors);
  this->vtkPlotPoints::TALMESH_VTK_UPDATE_CACHE(table);
  this->CacheLogarithms();
}

vtkIdType CachedPoints::GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                                        vtkVector2f* location, vtkIdType* segmentId)
{
  const vtkIdType nearest =
      this->vtkPlotPoints::GetNearestPoint(point, tolerance, location, segmentId);
  if (nearest >= 0)
    *location = placeOnAxes(this->Points, nearest, this->ShiftScale);
  return nearest;
}

vtkIdTypeArray* CachedPoints::OwnSelection()
{
  if (!this->Selection)
    this->Selection = vtkIdTypeArray::New();
  return this->Selection;
}

bool CachedPoints::SelectPoints(const vtkVector2f& min, const vtkVector2f& max)
{
  if (!this->Points)
    return false;
  pickInRectangle(this->Points, min, max, this->OwnSelection());
  return this->Selection->GetNumberOfValues() > 0;
}

bool CachedPoints::SelectPointsInPolygon(const vtkContextPolygon& polygon)
{
  if (!this->Points)
    return false;
  pickInPolygon(this->Points, polygon, this->OwnSelection());
  return this->Selection->GetNumberOfValues() > 0;
}

PointInputs CachedPoints::Inputs() const
{
  vtkTable* const table = this->Data->GetInput();
  PointInputs inputs = pointInputs(
      this->Data, this->XAxis, this->YAxis, this->UseIndexForXSeries, this->ShiftScale,
      this->ValidPointMaskName.empty() ? nullptr
                                       : table->GetColumnByName(this->ValidPointMaskName.c_str()));
  addColors(inputs, table, this->ColorArrayName, this->ScalarVisibility, this->LookupTable);
  return inputs;
}

void CachedPoints::CacheLogarithms()
{
  vtkDataArray* columns[2];
  if ((this->LogX || this->LogY) && this->Points &&
      this->GetDataArrays(this->Data->GetInput(), columns))
    cacheLogarithms({this->Points, columns[0], columns[1], this->LogX ? this->XAxis : nullptr,
                     this->LogY ? this->YAxis : nullptr, this->ShiftScale});
}
} // namespace Talmesh

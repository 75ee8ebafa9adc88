#include "vtk/CachedPoints.h"

#include "vtk/CachedLogarithms.h"
#include "vtk/PictureStore.h"
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

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace Talmesh
{
struct CachedPoints::Sharing
{
  std::shared_ptr<PictureStore> store;
  PointStore::Key key; ///< of points that are in the store, too
  PointInputs inputsOfBounds;
  std::array<double, 4> bounds{};
};

CachedPoints::CachedPoints()
    : Shared(std::make_unique<Sharing>())
{
}

CachedPoints::~CachedPoints() = default;

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
  // The item may be newer than its points for reasons that say nothing of them; VTK, in turn,
  // compares too little to see every change of an axis.
  if (this->Points && inputs == this->CachedInputs)
  {
    this->BuildTime.Modified();
    this->vtkPlotPoints::Update();
  }
  else
    this->Refresh();
  this->CachedInputs = inputs;
}

void CachedPoints::Refresh()
{
  this->LetGoOfShared();
  const PointStore::Key key = this->ContentOfInputs();
  const bool taken = this->TakeShared(key);
  if (taken)
    this->BuildTime.Modified();
  else
    this->MTime.Modified();
  this->vtkPlotPoints::Update();
  if (taken)
    return;
  this->CacheLogarithms();
  this->Share(key);
}

/// Empty if the points cannot be told so, or are not worth it.
PointStore::Key CachedPoints::ContentOfInputs()
{
  constexpr vtkIdType fewestShared = 10000;
  if (!this->Shared->store || !this->ValidPointMaskName.empty() || this->ScalarVisibility ||
      this->Sorted)
    return {};
  PointStore::Key key =
      scaleInputs(this->XAxis, this->YAxis, this->UseIndexForXSeries, this->ShiftScale);
  vtkIdType rows = -1;
  for (int series = this->UseIndexForXSeries ? 1 : 0; series < 2; ++series)
  {
    vtkDataArray* const column = this->Data->GetInputArrayToProcess(series, this->Data->GetInput());
    if (!column || column->GetNumberOfTuples() < fewestShared ||
        (rows >= 0 && column->GetNumberOfTuples() != rows) || !column->HasStandardMemoryLayout() ||
        column->GetDataType() == VTK_BIT)
      return {};
    rows = column->GetNumberOfTuples();
    const auto size = static_cast<std::size_t>(column->GetNumberOfValues()) *
                      static_cast<std::size_t>(column->GetDataTypeSize());
    key.insert(key.end(), {double(column->GetDataType()), double(column->GetNumberOfTuples()),
                           double(column->GetNumberOfComponents())});
    addContent(key, column->GetVoidPointer(0), size);
  }
  return key;
}

bool CachedPoints::TakeShared(const PointStore::Key& key)
{
  const auto found = key.empty() ? std::nullopt : this->Shared->store->points().find(key);
  if (!found)
    return false;
  if (this->Points)
    this->Points->Delete();
  if (this->BadPoints)
    this->BadPoints->Delete();
  this->Points = found->points;
  this->Points->Register(nullptr);
  this->BadPoints = found->badPoints;
  if (this->BadPoints)
    this->BadPoints->Register(nullptr);
  if (this->XAxis && this->YAxis)
  {
    this->LogX = this->XAxis->GetLogScaleActive();
    this->LogY = this->YAxis->GetLogScaleActive();
  }
  this->Shared->bounds = found->bounds;
  this->Shared->inputsOfBounds = this->InputsOfPoints();
  this->Shared->key = key;
  return true;
}

void CachedPoints::Share(const PointStore::Key& key)
{
  if (key.empty() || !this->Points)
    return;
  this->KnowBounds();
  this->Shared->store->points().keep(key, {this->Points, this->BadPoints, this->Shared->bounds});
  this->Shared->key = key;
}

/// VTK writes new points over those that are there.
void CachedPoints::LetGoOfShared()
{
  if (this->Shared->key.empty())
    return;
  this->Shared->key.clear();
  this->Points->Delete();
  this->Points = nullptr;
  if (this->BadPoints)
    this->BadPoints->Delete();
  this->BadPoints = nullptr;
}

#if TALMESH_VTK_CHARTS_READ_COLUMNS
bool CachedPoints::UpdateCache()
{
  this->LetGoOfShared();
  return this->vtkPlotPoints::UpdateCache();
}
#endif

/// Whether the points are those of the columns now.
bool CachedPoints::IsCurrent() const
{
  if (!this->Points || !this->Data->GetInput())
    return false;
  const PointInputs now = this->InputsOfPoints();
  return now.size() <= this->CachedInputs.size() &&
         std::equal(now.begin(), now.end(), this->CachedInputs.begin());
}

void CachedPoints::KnowBounds()
{
  const PointInputs now = this->InputsOfPoints();
  if (now == this->Shared->inputsOfBounds)
    return;
  this->vtkPlotPoints::GetUnscaledInputBounds(this->Shared->bounds.data());
  this->Shared->inputsOfBounds = now;
}

void CachedPoints::GetUnscaledInputBounds(double bounds[4])
{
  if (!this->IsCurrent())
    return this->vtkPlotPoints::GetUnscaledInputBounds(bounds);
  this->KnowBounds();
  std::copy(this->Shared->bounds.begin(), this->Shared->bounds.end(), bounds);
}

void CachedPoints::GetBounds(double bounds[4])
{
  if (!this->IsCurrent())
    return this->vtkPlotPoints::GetBounds(bounds);
  this->GetUnscaledInputBounds(bounds);
  const bool logarithmic[2] = {this->LogX, this->LogY};
  for (int end = 0; end < 4; ++end)
  {
    if (logarithmic[end / 2])
      bounds[end] = std::log10(bounds[end]);
  }
}

void CachedPoints::SetPictureStore(std::shared_ptr<PictureStore> store)
{
  this->Shared->store = std::move(store);
}

const std::shared_ptr<PictureStore>& CachedPoints::GetPictureStore() const
{
  return this->Shared->store;
}

const std::vector<double>& CachedPoints::SharedKey() const
{
  return this->Shared->key;
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

PointInputs CachedPoints::InputsOfPoints() const
{
  vtkTable* const table = this->Data->GetInput();
  return pointInputs(
      this->Data, this->XAxis, this->YAxis, this->UseIndexForXSeries, this->ShiftScale,
      this->ValidPointMaskName.empty() ? nullptr
                                       : table->GetColumnByName(this->ValidPointMaskName.c_str()));
}

PointInputs CachedPoints::Inputs() const
{
  PointInputs inputs = this->InputsOfPoints();
  addColors(inputs, this->Data->GetInput(), this->ColorArrayName, this->ScalarVisibility,
            this->LookupTable);
  return inputs;
}

void CachedPoints::CacheLogarithms()
{
  vtkDataArray* columns[2];
  if ((this->LogX || this->LogY) && this->XAxis && this->YAxis && this->Points &&
      this->GetDataArrays(this->Data->GetInput(), columns))
    cacheLogarithms({this->Points, columns[0], columns[1], this->LogX ? this->XAxis : nullptr,
                     this->LogY ? this->YAxis : nullptr, this->ShiftScale});
}
} // namespace Talmesh

#include "vtk/vtkPlotErrorPoints.h"

#include "vtk/PlotItemPainting.h"

#include <vtkBrush.h>
#include <vtkContext2D.h>
#include <vtkContextMapper2D.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>

#include <algorithm>
#include <limits>

vtkStandardNewMacro(vtkPlotErrorPoints);

vtkPlotErrorPoints::~vtkPlotErrorPoints()
{
  if (this->ErrorArray)
    this->ErrorArray->Delete();
  this->ErrorArray = nullptr;
}

void vtkPlotErrorPoints::PrintSelf(ostream& os, vtkIndent indent)
{
  this->Superclass::PrintSelf(os, indent);
}

void vtkPlotErrorPoints::Update()
{
  vtkTable* table = this->Data->GetInput();
  if (!this->Visible || !table)
    return;
  this->UpdateErrorCache(table);
  this->Superclass::Update();
}

bool vtkPlotErrorPoints::UpdateErrorCache(vtkTable* table)
{
  if (table && !this->ErrorArrayName.empty())
    this->ErrorArray =
        vtkFloatArray::SafeDownCast(table->GetColumnByName(this->ErrorArrayName.c_str()));
  return true;
}

void vtkPlotErrorPoints::SelectErrorArray(const vtkStdString& name)
{
  vtkTable* table = this->Data->GetInput();
  if (!table || name == this->ErrorArrayName)
    return;
  vtkStdString found;
  for (vtkIdType c = 0; c < table->GetNumberOfColumns() && found.empty(); ++c)
  {
    const char* columnName = table->GetColumnName(c);
    if (columnName && name == columnName)
      found = name;
  }
  this->ErrorArrayName = found;
  this->Modified();
}

void vtkPlotErrorPoints::SelectErrorArray(vtkIdType column)
{
  vtkTable* table = this->Data->GetInput();
  if (!table || column < 0 || column >= table->GetNumberOfColumns())
    return;
  auto* array = vtkDataArray::SafeDownCast(table->GetColumn(column));
  const char* name = array ? array->GetName() : nullptr;
  if (!name || this->ErrorArrayName == name)
    return;
  this->ErrorArrayName = name;
  this->Modified();
}

vtkStdString vtkPlotErrorPoints::GetErrorArrayName()
{
  return this->ErrorArrayName;
}

bool vtkPlotErrorPoints::HasBadPoints() const
{
  return this->BadPoints && this->BadPoints->GetNumberOfTuples() > 0;
}

bool vtkPlotErrorPoints::Paint(vtkContext2D* painter)
{
  if (!this->Visible || !this->Points || this->Points->GetNumberOfPoints() == 0)
    return false;
  painter->ApplyPen(this->Pen);
  painter->ApplyBrush(this->Brush);
  if (!this->HasBadPoints())
    this->PaintErrorBars(painter);
  const Talmesh::SelectionWithin inside(this->Selection, this->Points, this->SelectedPoints);
  return this->Superclass::Paint(painter);
}

void vtkPlotErrorPoints::PaintErrorBars(vtkContext2D* painter)
{
  const vtkIdType errors = this->ErrorArray ? this->ErrorArray->GetNumberOfTuples() : 0;
  const vtkIdType bars = std::min(errors, this->Points->GetNumberOfPoints());
  const float* const points = static_cast<float*>(this->Points->GetVoidPointer(0));
  // The cached points are scaled for the chart where its ranges are extreme.
  const double scale = this->GetShiftScale().GetHeight();
  for (vtkIdType i = 0; i < bars; ++i)
  {
    const float x = points[2 * i];
    const float y = points[2 * i + 1];
    const auto error = static_cast<float>(this->ErrorArray->GetTypedComponent(i, 0) * scale);
    painter->DrawLine(x, y - error, x, y + error);
  }
}

void vtkPlotErrorPoints::CalculateBounds(double bounds[4])
{
  if (!this->Points || !this->BadPoints || !this->ErrorArray)
    return;
  const vtkIdType count = this->Points->GetNumberOfPoints();
  // The base leaves the bounds alone, too, when there is no good point to bound.
  if (this->BadPoints->GetNumberOfTuples() >= count)
    return;
  bounds[0] = bounds[2] = std::numeric_limits<float>::max();
  bounds[1] = bounds[3] = std::numeric_limits<float>::min();
  const float* const points = static_cast<float*>(this->Points->GetVoidPointer(0));
  vtkIdType nextBad = 0;
  for (vtkIdType i = 0; i < count; ++i)
  {
    if (nextBad < this->BadPoints->GetNumberOfTuples() && this->BadPoints->GetValue(nextBad) == i)
    {
      ++nextBad;
      continue;
    }
    for (int axis = 0; axis < 2; ++axis)
    {
      const double value = points[2 * i + axis];
      if (value < bounds[2 * axis])
        bounds[2 * axis] = value;
      else if (value > bounds[2 * axis + 1])
        bounds[2 * axis + 1] = value;
    }
  }
}

// The line number in the message is fixed, so this member stands at the end of the file.
void vtkPlotErrorPoints::CalculateLogSeries()
{
#line 157
  vtkErrorMacro(<< "Log scale not yet supported for vtkPlotErrorPoints");
}

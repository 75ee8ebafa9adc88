#include "vtk/vtkPlotLineSet.h"

#include "vtk/PlotItemPainting.h"
#include "vtk/SelectionColumns.h"

#include <vtkContext2D.h>
#include <vtkContextMapper2D.h>
#include <vtkDataArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>

vtkStandardNewMacro(vtkPlotLineSet);

namespace
{
// Markers in floating-point columns are cut to integers; what no integer can hold marks nothing.
vtkIdType toMarker(double value)
{
  return std::abs(value) < 9.0e18 ? static_cast<vtkIdType>(value) : 0;
}
} // namespace

vtkPlotLineSet::vtkPlotLineSet()
    : SelectedLineIds(vtkIdTypeArray::New())
    , RemainderSelection(vtkIdTypeArray::New())
{
}

vtkPlotLineSet::~vtkPlotLineSet()
{
  this->SelectedLineIds->Delete();
  this->RemainderSelection->Delete();
}

void vtkPlotLineSet::PrintSelf(ostream& os, vtkIndent indent)
{
  this->Superclass::PrintSelf(os, indent);
}

void vtkPlotLineSet::Update()
{
  vtkTable* table = this->Data->GetInput();
  if (!this->Visible || !table)
    return;
  const Talmesh::ColorsWithin colors(table, this->ColorArrayName, this->ScalarVisibility,
                                     this->Colors);
  this->Superclass::Update();
  this->UpdateSelectionCache(table);
  this->Modified();
}

bool vtkPlotLineSet::UpdateSelectionCache(vtkTable* table)
{
  this->NumberOfRemainderRows = 0;
  auto* markers = vtkDataArray::SafeDownCast(
      table ? table->GetColumnByName(Talmesh::RemainderSelectionColumn) : nullptr);
  if (markers)
  {
    const vtkIdType rowCount = markers->GetNumberOfTuples();
    this->RemainderSelection->SetNumberOfValues(rowCount);
    for (vtkIdType row = 0; row < rowCount; ++row)
    {
      const vtkIdType marker = toMarker(markers->GetComponent(row, 0));
      this->RemainderSelection->SetValue(row, marker);
      if (marker != 0)
        ++this->NumberOfRemainderRows;
    }
  }
  this->RemainderSelection->Modified();
  return true;
}

bool vtkPlotLineSet::Paint(vtkContext2D* painter)
{
  if (!this->Visible || !this->Points || this->Stride < 1)
    return false;
  painter->ApplyPen(this->Pen);
  if (!this->OnlyShowSelected)
    this->PaintRuns(painter);

  vtkTable* table = this->Data->GetInput();
  if (this->Selection && table &&
      this->Selection->GetMTime() > this->RemainderSelection->GetMTime())
    this->UpdateSelectionCache(table);

  if (this->RemainderSelection->GetNumberOfValues() > 0)
    this->FindMarkedRuns();
  else if (this->Selection && this->Selection->GetNumberOfValues() > 0)
    this->FindSelectedRuns();
  else
    return true;
  this->PaintHighlights(painter);
  return true;
}

void vtkPlotLineSet::PaintPolyLine(vtkContext2D* painter, vtkIdType first, vtkIdType count)
{
  // VTK reports an error for lines of fewer than two points.
  if (count < 2)
    return;
  float* points = static_cast<float*>(this->Points->GetVoidPointer(0));
  painter->DrawPoly(points + 2 * first, static_cast<int>(count));
}

void vtkPlotLineSet::PaintRuns(vtkContext2D* painter)
{
  const vtkIdType count = this->Points->GetNumberOfPoints();
  if (this->BadPoints && this->BadPoints->GetNumberOfTuples() > 0)
  {
    const vtkIdType lastBad = this->BadPoints->GetValue(this->BadPoints->GetNumberOfTuples() - 1);
    if (count - lastBad <= 2)
      return;
    this->PaintPolyLine(painter, lastBad + 1,
                        std::min<vtkIdType>(this->Stride, count - 1 - lastBad));
  }
  for (vtkIdType first = 0; first <= count - this->Stride; first += this->Stride)
    this->PaintPolyLine(painter, first, this->Stride);
}

void vtkPlotLineSet::FindMarkedRuns()
{
  const vtkMTimeType built = this->SelectedLineIds->GetMTime();
  if (this->RemainderSelection->GetMTime() <= built && this->GetMTime() <= built)
    return;
  this->SelectedLineIds->SetNumberOfValues(this->NumberOfRemainderRows);
  vtkIdType next = 0;
  const vtkIdType rowCount = this->RemainderSelection->GetNumberOfValues();
  for (vtkIdType row = 0; row < rowCount && next < this->NumberOfRemainderRows; ++row)
  {
    if (this->RemainderSelection->GetValue(row) != 0)
      this->SelectedLineIds->SetValue(next++, row / this->Stride);
  }
  this->SelectedLineIds->Modified();
}

void vtkPlotLineSet::FindSelectedRuns()
{
  const vtkMTimeType built = this->SelectedLineIds->GetMTime();
  // The runs found last may be marked ones of a column that has lost its rows since.
  if (this->Selection->GetMTime() <= built && this->GetMTime() <= built &&
      this->RemainderSelection->GetMTime() <= built)
    return;
  const vtkIdType count = this->Selection->GetNumberOfValues();
  this->SelectedLineIds->SetNumberOfValues(count);
  for (vtkIdType i = 0; i < count; ++i)
  {
    const vtkIdType id = this->Selection->GetValue(i);
    // Division would carry the small negative ids to run 0.
    this->SelectedLineIds->SetValue(i, id < 0 ? -1 : id / this->Stride);
  }
  this->SelectedLineIds->Modified();
}

void vtkPlotLineSet::PaintHighlights(vtkContext2D* painter)
{
  Talmesh::applyHighlightPen(painter, this->Pen->GetWidth());
  const vtkIdType wholeRuns = this->Points->GetNumberOfPoints() / this->Stride;
  for (vtkIdType i = 0; i < this->SelectedLineIds->GetNumberOfValues(); ++i)
  {
    const vtkIdType run = this->SelectedLineIds->GetValue(i);
    if (run >= 0 && run < wholeRuns)
      this->PaintPolyLine(painter, run * this->Stride, this->Stride);
  }
}

bool vtkPlotLineSet::PaintLegend(vtkContext2D* painter, const vtkRectf& rect, int)
{
  Talmesh::paintLegendLine(painter, this->Pen, rect);
  this->Superclass::PaintLegend(painter, rect, 0);
  return true;
}

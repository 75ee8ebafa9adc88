#include "vtk/PlotItemPainting.h"

#include <vtkContext2D.h>
#include <vtkDataArray.h>
#include <vtkIdTypeArray.h>
#include <vtkNew.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>
#include <vtkTransform2D.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>

namespace Talmesh
{
void applyHighlightPen(vtkContext2D* painter, const Highlight& highlight, float width)
{
  const auto& color = highlight.color;
  painter->GetPen()->SetColor(color[0], color[1], color[2], color[3]);
  painter->GetPen()->SetWidth(static_cast<float>(width + highlight.widening));
}

void paintLegendLine(vtkContext2D* painter, vtkPen* pen, const vtkRectf& rect)
{
  const float y = rect.GetY() + 0.5f * rect.GetHeight();
  painter->ApplyPen(pen);
  painter->DrawLine(rect.GetX(), y, rect.GetX() + rect.GetWidth(), y);
}

float effectiveMarkerSize(float markerSize, vtkPen* pen)
{
  return markerSize < 0.0f ? std::max(8.0f, static_cast<float>(pen->GetWidth() * 2.3)) : markerSize;
}

ShiftedPainting::ShiftedPainting(vtkContext2D* painter, const vtkRectd& shiftScale)
    : shifted(painter)
{
  vtkNew<vtkTransform2D> transform;
  transform->Scale(shiftScale.GetWidth(), shiftScale.GetHeight());
  transform->Translate(shiftScale.GetX(), shiftScale.GetY());
  painter->PushMatrix();
  painter->AppendTransform(transform);
}

ShiftedPainting::~ShiftedPainting()
{
  shifted->PopMatrix();
}

SelectionWithin::SelectionWithin(vtkIdTypeArray*& itemSelection, vtkPoints2D* points,
                                 vtkObject* selectedPoints)
    : selection(itemSelection)
    , original(itemSelection)
{
  if (!original)
    return;
  const vtkIdType pointCount = points->GetNumberOfPoints();
  const auto isInside = [pointCount](vtkIdType id) { return id >= 0 && id < pointCount; };
  const vtkIdType* const begin = original->GetPointer(0);
  const vtkIdType* const end = begin + original->GetNumberOfValues();
  if (points->GetMTime() < selectedPoints->GetMTime() && std::all_of(begin, end, isInside))
    return;
  inside = vtkSmartPointer<vtkIdTypeArray>::New();
  for (const vtkIdType* id = begin; id != end; ++id)
  {
    if (isInside(*id))
      inside->InsertNextValue(*id);
  }
  selection = inside;
}

SelectionWithin::~SelectionWithin()
{
  selection = original;
}

ColorsWithin::ColorsWithin(vtkTable* table, const vtkStdString& column, vtkTypeBool& itemVisibility,
                           vtkUnsignedCharArray*& colors)
    : visibility(itemVisibility)
    , original(itemVisibility)
{
  auto* values = table && !column.empty()
                     ? vtkDataArray::SafeDownCast(table->GetColumnByName(column.c_str()))
                     : nullptr;
  if (values && values->GetNumberOfTuples() >= table->GetNumberOfRows())
    return;
  visibility = 0;
  if (colors)
    colors->UnRegister(nullptr);
  colors = nullptr;
}

ColorsWithin::~ColorsWithin()
{
  visibility = original;
}
} // namespace Talmesh

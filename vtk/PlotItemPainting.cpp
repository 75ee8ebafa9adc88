#include "vtk/PlotItemPainting.h"

#include <vtkContext2D.h>
#include <vtkIdTypeArray.h>
#include <vtkPen.h>

#include <algorithm>

namespace Talmesh
{
void applyHighlightPen(vtkContext2D* painter, float width)
{
  painter->GetPen()->SetColor(255, 50, 0, 150);
  painter->GetPen()->SetWidth(static_cast<float>(width + 2.7));
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

SelectionWithin::SelectionWithin(vtkIdTypeArray*& itemSelection, vtkIdType pointCount)
    : selection(itemSelection)
    , original(itemSelection)
{
  if (!original)
    return;
  const auto isInside = [pointCount](vtkIdType id) { return id >= 0 && id < pointCount; };
  const vtkIdType* const begin = original->GetPointer(0);
  const vtkIdType* const end = begin + original->GetNumberOfValues();
  if (std::all_of(begin, end, isInside))
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
} // namespace Talmesh

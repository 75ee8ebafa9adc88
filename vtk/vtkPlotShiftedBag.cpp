#include "vtk/vtkPlotShiftedBag.h"

#include "vtk/PlotItemPainting.h"
#include "vtk/vtkPlotSafeLine.h"

#include <vtkAxis.h>
#include <vtkBrush.h>
#include <vtkContextMapper2D.h>
#include <vtkDataArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>
#include <limits>

vtkStandardNewMacro(vtkPlotShiftedBag);

namespace
{
constexpr double inf = std::numeric_limits<double>::infinity();

void widen(double range[2], double value)
{
  if (!std::isfinite(value))
    return;
  range[0] = std::min(range[0], value);
  range[1] = std::max(range[1], value);
}

void takeLogarithms(double range[2])
{
  range[0] = std::log10(range[0]);
  range[1] = std::log10(range[1]);
}
} // namespace

bool vtkPlotShiftedBag::HasWidth() const
{
  return BagPoints->GetNumberOfPoints() > 0;
}

void vtkPlotShiftedBag::Update()
{
  vtkPlotFunctionalBag::Update();
  if (GetVisible() && Data->GetInput() && !HasWidth())
    UpdateLine();
}

void vtkPlotShiftedBag::UpdateLine()
{
  vtkTable* const table = Data->GetInput();
  vtkDataArray* columns[2];
  if (!GetDataArrays(table, columns) || columns[1]->GetNumberOfComponents() != 1)
    return;
  const char* const x = columns[0] ? columns[0]->GetName() : nullptr;
  const char* const y = columns[1]->GetName();
  PlacedLine->SetXAxis(XAxis);
  PlacedLine->SetYAxis(YAxis);
  PlacedLine->SetShiftScale(GetShiftScale());
  PlacedLine->SetInputData(table, x ? x : "", y ? y : "");
  PlacedLine->SetUseIndexForXSeries(UseIndexForXSeries);
  PlacedLine->SetMarkerStyle(vtkPlotPoints::NONE);
  PlacedLine->SetPen(Pen);
  PlacedLine->SetBrush(Brush);
  PlacedLine->Update();
}

bool vtkPlotShiftedBag::Paint(vtkContext2D* painter)
{
  if (!GetVisible())
    return false;
  if (IsBag())
  {
    const Talmesh::ShiftedPainting shifted(painter, GetShiftScale());
    return vtkPlotFunctionalBag::Paint(painter);
  }
  PlacedLine->SetPen(GetSelection() ? SelectionPen : Pen);
  PlacedLine->Paint(painter);
  return true;
}

bool vtkPlotShiftedBag::PaintLegend(vtkContext2D* painter, const vtkRectf& rect, int legendIndex)
{
  return HasWidth() ? vtkPlotFunctionalBag::PaintLegend(painter, rect, legendIndex)
                    : PlacedLine->PaintLegend(painter, rect, legendIndex);
}

void vtkPlotShiftedBag::GetBounds(double bounds[4])
{
  if (!HasWidth())
  {
    PlacedLine->GetBounds(bounds);
    return;
  }
  GetUnscaledInputBounds(bounds);
  if (LogX)
    takeLogarithms(bounds);
  if (LogY)
    takeLogarithms(bounds + 2);
}

void vtkPlotShiftedBag::GetUnscaledInputBounds(double bounds[4])
{
  vtkDataArray* columns[2];
  if (!HasWidth())
  {
    PlacedLine->GetUnscaledInputBounds(bounds);
    return;
  }
  bounds[0] = bounds[2] = inf;
  bounds[1] = bounds[3] = -inf;
  if (!GetDataArrays(Data->GetInput(), columns))
    return;
  for (vtkIdType i = 0; i < columns[1]->GetNumberOfTuples(); ++i)
  {
    widen(bounds, columns[0] ? columns[0]->GetComponent(i, 0) : static_cast<double>(i));
    for (int end = 0; end < columns[1]->GetNumberOfComponents(); ++end)
      widen(bounds + 2, columns[1]->GetComponent(i, end));
  }
}

vtkIdType vtkPlotShiftedBag::GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                                             vtkVector2f* location, vtkIdType* segmentId)
{
  return HasWidth() ? -1 : PlacedLine->GetNearestPoint(point, tolerance, location, segmentId);
}

bool vtkPlotShiftedBag::SelectPoints(const vtkVector2f& min, const vtkVector2f& max)
{
  return !HasWidth() && PlacedLine->SelectPoints(min, max);
}

bool vtkPlotShiftedBag::SelectPointsInPolygon(const vtkContextPolygon& polygon)
{
  return !HasWidth() && PlacedLine->SelectPointsInPolygon(polygon);
}

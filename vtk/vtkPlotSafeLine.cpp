#include "vtk/vtkPlotSafeLine.h"

#include "vtk/CachedLogarithms.h"

#include <vtkAxis.h>
#include <vtkContext2D.h>
#include <vtkContextMapper2D.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>

vtkStandardNewMacro(vtkPlotSafeLine);

void vtkPlotSafeLine::Update()
{
  // VTK asks whether a logarithmic axis is wanted, not whether the data allow it.
  if (XAxis && YAxis && (LogX != XAxis->GetLogScaleActive() || LogY != YAxis->GetLogScaleActive()))
    Modified();
  const vtkMTimeType before = Points ? Points->GetMTime() : 0;
  vtkPlotLine::Update();
  vtkDataArray* columns[2];
  if ((LogX || LogY) && Points && Points->GetMTime() != before &&
      GetDataArrays(Data->GetInput(), columns))
    Talmesh::cacheLogarithms({Points, columns[0], columns[1], LogX ? XAxis : nullptr,
                              LogY ? YAxis : nullptr, ShiftScale});
}

bool vtkPlotSafeLine::Paint(vtkContext2D* painter)
{
  constexpr vtkIdType fewestOfALine = 2;
  if (Points && Points->GetNumberOfPoints() < fewestOfALine)
    return vtkPlotPoints::Paint(painter);
  if (!Visible || !Points)
    return false;
  painter->ApplyPen(Pen);
  if (PolyLine &&
      Curve.paint(painter, this, Points, BadPoints, {static_cast<double>(Points->GetMTime())}))
    return vtkPlotPoints::Paint(painter);
  return vtkPlotLine::Paint(painter);
}

vtkIdType vtkPlotSafeLine::GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                                           vtkVector2f* location, vtkIdType* segmentId)
{
  const vtkIdType nearest = vtkPlotLine::GetNearestPoint(point, tolerance, location, segmentId);
  if (nearest >= 0)
    *location = Talmesh::placeOnAxes(Points, nearest, ShiftScale);
  return nearest;
}

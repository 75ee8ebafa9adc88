#include "vtk/vtkPlotShiftedStack.h"

#include "vtk/CachedLogarithms.h"
#include "vtk/PlotItemPainting.h"

#include <vtkObjectFactory.h>

#include <limits>

vtkStandardNewMacro(vtkPlotShiftedStack);

bool vtkPlotShiftedStack::Paint(vtkContext2D* painter)
{
  const Talmesh::ShiftedPainting shifted(painter, GetShiftScale());
  return vtkPlotStacked::Paint(painter);
}

// VTK widens what it is given, which charts leave as the last plot had it.
void vtkPlotShiftedStack::GetBounds(double bounds[4])
{
  constexpr double inf = std::numeric_limits<double>::infinity();
  bounds[0] = inf;
  bounds[1] = -inf;
  // The areas stand on zero.
  bounds[2] = 0.0;
  bounds[3] = 0.0;
  vtkPlotStacked::GetBounds(bounds);
}

vtkIdType vtkPlotShiftedStack::GetNearestPoint(const vtkVector2f& point,
                                               const vtkVector2f& tolerance, vtkVector2f* location,
                                               vtkIdType* segmentId)
{
  const vtkRectd moved = GetShiftScale();
  const vtkVector2f reach(static_cast<float>(tolerance.GetX() / moved.GetWidth()),
                          static_cast<float>(tolerance.GetY() / moved.GetHeight()));
  return vtkPlotStacked::GetNearestPoint(Talmesh::placeOnAxes(point, moved), reach, location,
                                         segmentId);
}

bool vtkPlotShiftedStack::SelectPoints(const vtkVector2f& min, const vtkVector2f& max)
{
  const vtkRectd moved = GetShiftScale();
  return vtkPlotStacked::SelectPoints(Talmesh::placeOnAxes(min, moved),
                                      Talmesh::placeOnAxes(max, moved));
}

vtkStdString vtkPlotShiftedStack::GetTooltipLabel(const vtkVector2d& place, vtkIdType area,
                                                  vtkIdType segmentId)
{
  NamedArea = area;
  const vtkStdString label = vtkPlotStacked::GetTooltipLabel(place, area, segmentId);
  NamedArea = 0;
  return label;
}

vtkStdString vtkPlotShiftedStack::GetLabel()
{
  return vtkPlotStacked::GetLabel(NamedArea);
}

#ifndef PointPicking_h
#define PointPicking_h

class vtkContextPolygon;
class vtkIdTypeArray;
class vtkPoints2D;
class vtkVector2f;

/// Which points of a chart item a shape covers. The numbers of the points come in ascending order,
/// replace those of the array, and are what vtkPlotPoints finds. A point with a coordinate that is
/// not a number lies in no rectangle.
namespace Talmesh
{
/// The points between two corners, both included.
void pickInRectangle(vtkPoints2D* points, const vtkVector2f& min, const vtkVector2f& max,
                     vtkIdTypeArray* ids);

void pickInPolygon(vtkPoints2D* points, const vtkContextPolygon& polygon, vtkIdTypeArray* ids);
} // namespace Talmesh

#endif

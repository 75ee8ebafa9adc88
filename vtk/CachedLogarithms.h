#ifndef CachedLogarithms_h
#define CachedLogarithms_h

#include <vtkRect.h>
#include <vtkType.h>
#include <vtkVector.h>

class vtkAxis;
class vtkDataArray;
class vtkPoints2D;

namespace Talmesh
{
/// The points that an item derived from vtkPlotPoints has read from its columns.
struct CachedCoordinates
{
  vtkPoints2D* points;
  vtkDataArray* x; ///< null for the points' indices
  vtkDataArray* y;
  vtkAxis* logX; ///< the axis of x if it is logarithmic, else null
  vtkAxis* logY;
  vtkRectd shiftScale; ///< of the chart: the shifts as position, the scales as size
};

/// Makes coordinates along logarithmic axes (logarithm + shift) * scale, as the chart has it for
/// its axes. VTK 9.1 takes the logarithm of (value + shift) * scale, and of what single precision
/// has left of that. Magnitudes have the logarithms where the axis reaches below zero.
void cacheLogarithms(const CachedCoordinates& cached);

/// The place of a point of a chart that shifts and scales, in units of its axes, which are
/// logarithms on logarithmic ones.
vtkVector2f placeOnAxes(const vtkVector2f& point, const vtkRectd& shiftScale);

/// The same of a cached point.
vtkVector2f placeOnAxes(vtkPoints2D* points, vtkIdType index, const vtkRectd& shiftScale);
} // namespace Talmesh

#endif

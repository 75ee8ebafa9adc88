#ifndef AxisBrush_h
#define AxisBrush_h

#include "vtk/SelectionGesture.h"

class vtkChartParallelCoordinates;

namespace Talmesh
{

/// What one of vtkContextScene's selection modes means.
SelectionGesture::Mode gestureMode(int selectionMode);

/// Part of an axis, from 0 at its lower end to 1 at the upper one, in any order.
struct AxisPart
{
  float from;
  float to;
};

/// What the user has brushed in a chart, as a rectangle of the axis's column over itself. At an end
/// of the axis it reaches a little beyond, as lines there are brushed, too.
SelectionGesture brushOf(vtkChartParallelCoordinates& chart, int axis, const AxisPart& part,
                         int selectionMode);

} // namespace Talmesh

#endif

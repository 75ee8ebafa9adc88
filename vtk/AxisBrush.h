#ifndef AxisBrush_h
#define AxisBrush_h

#include "vtk/SelectionGesture.h"

#include <vtkType.h>
#include <vtkVector.h>

#include <optional>
#include <vector>

class vtkChartParallelCoordinates;
class vtkTable;

/// What the mouse points at in parallel coordinates.
namespace Talmesh
{

/// What one of vtkContextScene's selection modes means, and the reverse.
SelectionGesture::Mode gestureMode(int selectionMode);

int selectionMode(SelectionGesture::Mode mode);

/// Part of an axis, from 0 at its lower end to 1 at the upper one, in any order.
struct AxisPart
{
  float from;
  float to;
};

using AxisBrushes = std::vector<SelectionGesture::Brush>;

/// What the user has brushed of an axis. At its ends it reaches a little beyond, as lines there are
/// brushed, too.
SelectionGesture::Brush brushOf(vtkChartParallelCoordinates& chart, int axis, const AxisPart& part);

/// What brushes of a chart mean together.
SelectionGesture gestureOf(vtkChartParallelCoordinates& chart, const AxisBrushes& brushes,
                           SelectionGesture::Mode mode);

/// The rows that lie within all brushes; those without a number do not.
std::vector<bool> rowsWithin(vtkTable* table, const AxisBrushes& brushes);

/// Whether these are the rows within all brushes, but for some that lie within a pixel of an end.
bool areWithin(vtkTable* table, const AxisBrushes& brushes, const std::vector<bool>& rows);

/// The topmost of the rows whose lines are nearest to a place of the scene; none where no line is
/// nearer than that many pixels.
std::optional<vtkIdType> nearestLine(vtkChartParallelCoordinates& chart, const vtkVector2f& place,
                                     double within);

} // namespace Talmesh

#endif

#include "vtk/AxisBrush.h"

#include <vtkAxis.h>
#include <vtkChartParallelCoordinates.h>
#include <vtkContextScene.h>
#include <vtkPlot.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <algorithm>

namespace Talmesh
{

SelectionGesture::Mode gestureMode(int selectionMode)
{
  switch (selectionMode)
  {
  case vtkContextScene::SELECTION_ADDITION:
    return SelectionGesture::Mode::Add;
  case vtkContextScene::SELECTION_SUBTRACTION:
    return SelectionGesture::Mode::Subtract;
  case vtkContextScene::SELECTION_TOGGLE:
    return SelectionGesture::Mode::Toggle;
  default:
    return SelectionGesture::Mode::Replace;
  }
}

SelectionGesture brushOf(vtkChartParallelCoordinates& chart, int axis, const AxisPart& part,
                         int selectionMode)
{
  vtkAxis* shown = chart.GetAxis(axis);
  const double minimum = shown->GetUnscaledMinimum();
  const double range = shown->GetUnscaledMaximum() - minimum;
  SelectionGesture gesture;
  gesture.mode = gestureMode(selectionMode);
  gesture.table = chart.GetPlot(0)->GetInput();
  const std::string column = chart.GetVisibleColumns()->GetValue(axis);
  gesture.series = {{column, column, false}};
  gesture.unitsY = range / (shown->GetPoint2()[1] - shown->GetPoint1()[1]);
  gesture.unitsX = gesture.unitsY;
  for (const float height : {std::min(part.from, part.to), std::max(part.from, part.to)})
  {
    double value = minimum + static_cast<double>(height) * range;
    if (height <= 0.0F)
      value -= gesture.unitsY;
    else if (height >= 1.0F)
      value += gesture.unitsY;
    gesture.points.push_back({value, value});
  }
  return gesture;
}

} // namespace Talmesh

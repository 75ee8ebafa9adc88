#include "vtk/AxisBrush.h"

#include <vtkAxis.h>
#include <vtkChartParallelCoordinates.h>
#include <vtkContextScene.h>
#include <vtkDataArray.h>
#include <vtkPlot.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>

namespace Talmesh
{

namespace
{

vtkDataArray* numbersOf(vtkTable* table, const std::string& column)
{
  return vtkDataArray::SafeDownCast(table->GetColumnByName(column.c_str()));
}

/// Within all brushes when each is widened by so many pixels at both ends.
std::vector<bool> rowsWithin(vtkTable* table, const AxisBrushes& brushes, double wider)
{
  std::vector<bool> rows(static_cast<std::size_t>(table->GetNumberOfRows()), !brushes.empty());
  for (const SelectionGesture::Brush& brush : brushes)
  {
    vtkDataArray* numbers = numbersOf(table, brush.column);
    const double low = brush.low - wider * brush.units;
    const double high = brush.high + wider * brush.units;
    for (std::size_t row = 0; row < rows.size(); ++row)
    {
      const double value = numbers ? numbers->GetComponent(static_cast<vtkIdType>(row), 0) : NAN;
      rows[row] = rows[row] && value >= low && value <= high;
    }
  }
  return rows;
}

/// An axis as a ruler: from values to pixels.
struct Ruler
{
  vtkDataArray* numbers;
  double x;
  double bottom;
  double minimum;
  double perUnit;

  vtkVector2d at(vtkIdType row) const
  {
    return {x, bottom + (numbers->GetComponent(row, 0) - minimum) * perUnit};
  }
};

/// Empty if a column has no numbers.
std::vector<Ruler> rulersOf(vtkChartParallelCoordinates& chart)
{
  vtkStringArray* const columns = chart.GetVisibleColumns();
  std::vector<Ruler> rulers;
  for (vtkIdType i = 0; i < columns->GetNumberOfValues(); ++i)
  {
    vtkAxis* const axis = chart.GetAxis(static_cast<int>(i));
    vtkDataArray* const numbers = numbersOf(chart.GetPlot(0)->GetInput(), columns->GetValue(i));
    if (!axis || !numbers)
      return {};
    const double minimum = axis->GetUnscaledMinimum();
    const double bottom = axis->GetPoint1()[1];
    const double height = axis->GetPoint2()[1] - bottom;
    const double range = axis->GetUnscaledMaximum() - minimum;
    // Of an axis without extent all values are one.
    rulers.push_back({numbers, axis->GetPoint1()[0], range > 0.0 ? bottom : bottom + height / 2,
                      minimum, range > 0.0 ? height / range : 0.0});
  }
  return rulers;
}

double distanceTo(const vtkVector2d& from, const vtkVector2d& to, const vtkVector2d& place)
{
  const double dx = to.GetX() - from.GetX();
  const double dy = to.GetY() - from.GetY();
  const double along = (place.GetX() - from.GetX()) * dx + (place.GetY() - from.GetY()) * dy;
  const double length = dx * dx + dy * dy;
  // A number that is missing stays one, whatever it is compared with.
  const double part = along > 0.0 ? std::min(along / length, 1.0) : 0.0 * along;
  return std::hypot(from.GetX() + part * dx - place.GetX(), from.GetY() + part * dy - place.GetY());
}

} // namespace

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

int selectionMode(SelectionGesture::Mode mode)
{
  switch (mode)
  {
  case SelectionGesture::Mode::Add:
    return vtkContextScene::SELECTION_ADDITION;
  case SelectionGesture::Mode::Subtract:
    return vtkContextScene::SELECTION_SUBTRACTION;
  case SelectionGesture::Mode::Toggle:
    return vtkContextScene::SELECTION_TOGGLE;
  default:
    return vtkContextScene::SELECTION_DEFAULT;
  }
}

SelectionGesture::Brush brushOf(vtkChartParallelCoordinates& chart, int axis, const AxisPart& part)
{
  vtkAxis* shown = chart.GetAxis(axis);
  const double minimum = shown->GetUnscaledMinimum();
  const double range = shown->GetUnscaledMaximum() - minimum;
  const double units = range / (shown->GetPoint2()[1] - shown->GetPoint1()[1]);
  const auto valueAt = [&](float height)
  {
    const double value = minimum + static_cast<double>(height) * range;
    return height <= 0.0F ? value - units : height >= 1.0F ? value + units : value;
  };
  return {chart.GetVisibleColumns()->GetValue(axis), valueAt(std::min(part.from, part.to)),
          valueAt(std::max(part.from, part.to)), units};
}

SelectionGesture gestureOf(vtkChartParallelCoordinates& chart, const AxisBrushes& brushes,
                           SelectionGesture::Mode mode)
{
  SelectionGesture gesture;
  gesture.kind = SelectionGesture::Kind::Brushes;
  gesture.mode = mode;
  gesture.table = chart.GetPlot(0)->GetInput();
  gesture.brushes = brushes;
  for (const SelectionGesture::Brush& brush : brushes)
    gesture.series.push_back({brush.column, brush.column, false});
  return gesture;
}

std::vector<bool> rowsWithin(vtkTable* table, const AxisBrushes& brushes)
{
  return rowsWithin(table, brushes, 0.0);
}

bool areWithin(vtkTable* table, const AxisBrushes& brushes, const std::vector<bool>& rows)
{
  const std::vector<bool> surely = rowsWithin(table, brushes, -1.0);
  const std::vector<bool> perhaps = rowsWithin(table, brushes, 1.0);
  for (std::size_t row = 0; row < perhaps.size(); ++row)
  {
    const bool is = row < rows.size() && rows[row];
    if (is ? !perhaps[row] : surely[row])
      return false;
  }
  return true;
}

std::optional<vtkIdType> nearestLine(vtkChartParallelCoordinates& chart, const vtkVector2f& place,
                                     double within)
{
  vtkTable* const table = chart.GetPlot(0)->GetInput();
  if (!table)
    return {};
  const std::vector<Ruler> rulers = rulersOf(chart);
  const vtkVector2d wanted(place.GetX(), place.GetY());
  std::optional<vtkIdType> nearest;
  double least = within;
  for (std::size_t i = 1; i < rulers.size(); ++i)
  {
    const Ruler& left = rulers[i - 1];
    const Ruler& right = rulers[i];
    if (wanted.GetX() < left.x - within || wanted.GetX() > right.x + within)
      continue;
    for (vtkIdType row = table->GetNumberOfRows(); row-- > 0;)
    {
      const double distance = distanceTo(left.at(row), right.at(row), wanted);
      if (!(distance < least))
        continue;
      least = distance;
      nearest = row;
    }
  }
  return nearest;
}

} // namespace Talmesh

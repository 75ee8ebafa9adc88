#include "app/document/PointedRuns.h"

#include "app/document/TableRuns.h"
#include "app/import/ColumnRoles.h"
#include "app/runs/NearestPlace.h"
#include "plot/TableColumns.h"

#include <vtkTable.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace Talmesh::app
{

namespace
{

using Series = SelectionGesture::Series;

/// The points of a series, one per run.
struct RunPoints
{
  const double* x;
  const double* y;
  const Series* series;

  RunCourse at(std::size_t run) const { return {x + run, y + run, 1}; }
};

/// None where the chart draws anything else.
std::optional<std::vector<RunPoints>> pointsOf(const TableRuns& runs,
                                               const SelectionGesture& gesture)
{
  if (!gesture.table || runs.numberOfRuns() == 0 ||
      static_cast<std::size_t>(gesture.table->GetNumberOfRows()) != runs.numberOfRuns())
    return {};
  std::vector<RunPoints> points;
  for (const Series& series : gesture.series)
  {
    vtkDoubleArray* x =
        plot::doubleColumn(gesture.table, plot::columnIndex(gesture.table, series.x));
    vtkDoubleArray* y =
        plot::doubleColumn(gesture.table, plot::columnIndex(gesture.table, series.y));
    if (!x || !y || series.lines)
      return {};
    points.push_back({x->GetPointer(0), y->GetPointer(0), &series});
  }
  return points;
}

/// What a filter calls a column that has one value for a run; empty where it has no word for it.
std::string wordsOf(const TableRuns& runs, const std::string& column)
{
  for (const std::string& words : {filterName(shownName(column)), shownName(column)})
  {
    FilterFault fault;
    RunFilter::read(words + " = 0", runs, fault);
    if (fault.text.empty())
      return words;
  }
  return {};
}

std::string between(const std::string& words, double low, double high, double units, bool log)
{
  const auto [from, to] = std::minmax(low, high);
  return words + " >= " + placeWords(from, units, log) + " and " + words +
         " <= " + placeWords(to, units, log);
}

/// Empty where a column has no words.
std::string wordsOfRectangle(const TableRuns& runs, const SelectionGesture& gesture,
                             const std::vector<RunPoints>& points)
{
  const SelectionGesture::Point& a = gesture.points.front();
  const SelectionGesture::Point& b = gesture.points.back();
  std::string words;
  for (const RunPoints& one : points)
  {
    const std::string x = wordsOf(runs, one.series->x);
    const std::string y = wordsOf(runs, one.series->y);
    if (x.empty() || y.empty())
      return {};
    words += (words.empty() ? "" : " or ") + between(x, a.x, b.x, gesture.unitsX, gesture.logX);
    // A part of one axis is a column over itself.
    if (x != y)
      words += " and " + between(y, a.y, b.y, gesture.unitsY, gesture.logY);
  }
  return words;
}

/// The rectangle around what is drawn, with a pixel to spare.
SelectionGesture rectangleAround(const SelectionGesture& gesture)
{
  const auto [left, right] =
      std::minmax_element(gesture.points.begin(), gesture.points.end(),
                          [](const auto& one, const auto& other) { return one.x < other.x; });
  const auto [lowest, highest] =
      std::minmax_element(gesture.points.begin(), gesture.points.end(),
                          [](const auto& one, const auto& other) { return one.y < other.y; });
  const auto beside = [](double place, double pixel, bool log)
  { return log ? place * std::pow(10.0, pixel) : place + pixel; };
  SelectionGesture around = gesture;
  around.points = {{beside(left->x, -gesture.unitsX, gesture.logX),
                    beside(lowest->y, -gesture.unitsY, gesture.logY)},
                   {beside(right->x, gesture.unitsX, gesture.logX),
                    beside(highest->y, gesture.unitsY, gesture.logY)}};
  return around;
}

bool isHit(const RunCourse& point, const SelectionGesture& gesture)
{
  const DrawnScale scale{gesture.logX, gesture.logY};
  std::vector<DrawnPoint> corners;
  for (const SelectionGesture::Point& corner : gesture.points)
    corners.push_back({corner.x, corner.y});
  if (gesture.kind == SelectionGesture::Kind::Lasso)
    return hasPointIn(point, corners, scale);
  return gesture.kind == SelectionGesture::Kind::Rectangle &&
         hasPointIn(
             point,
             DrawnWindow{corners.front().x, corners.back().x, corners.front().y, corners.back().y},
             scale);
}

std::vector<bool> hitBy(const TableRuns& runs, const SelectionGesture& gesture,
                        const std::vector<RunPoints>& points)
{
  std::vector<bool> hit(runs.numberOfRuns(), false);
  for (const RunPoints& one : points)
    for (std::size_t run = 0; run < hit.size(); ++run)
      hit[run] = hit[run] || isHit(one.at(run), gesture);
  return hit;
}

struct NearestPoint
{
  std::size_t run = 0;
  const Series* series = nullptr;
  DrawnPoint point{0, 0};
};

NearestPoint nearestOf(const TableRuns& runs, const SelectionGesture& gesture,
                       const std::vector<RunPoints>& points, double reach)
{
  const DrawnManner manner{{gesture.logX, gesture.logY}, gesture.unitsX, gesture.unitsY, false};
  const DrawnPoint place{gesture.points.front().x, gesture.points.front().y};
  NearestPoint nearest;
  double within = reach;
  for (const RunPoints& one : points)
    for (std::size_t run = 0; run < runs.numberOfRuns(); ++run)
    {
      const NearestPlace found = nearestPlace(one.at(run), place, manner, within);
      if (!(found.distance < within))
        continue;
      within = found.distance;
      nearest = {run, one.series, {one.x[run], one.y[run]}};
    }
  return nearest;
}

/// Empty where a column has no words.
std::string wordsOfBrushes(const TableRuns& runs, const SelectionGesture& gesture)
{
  std::string words;
  for (const SelectionGesture::Brush& brush : gesture.brushes)
  {
    const std::string column = wordsOf(runs, brush.column);
    if (column.empty())
      return {};
    words +=
        (words.empty() ? "" : " and ") + between(column, brush.low, brush.high, brush.units, false);
  }
  return words;
}

std::vector<bool> hitByBrushes(const TableRuns& runs, const SelectionGesture& gesture)
{
  std::vector<bool> hit(runs.numberOfRuns(), true);
  for (const SelectionGesture::Brush& brush : gesture.brushes)
  {
    vtkDoubleArray* values =
        plot::doubleColumn(gesture.table, plot::columnIndex(gesture.table, brush.column));
    for (std::size_t run = 0; run < hit.size(); ++run)
    {
      const double value = values ? values->GetValue(static_cast<vtkIdType>(run)) : NAN;
      hit[run] = hit[run] && value >= brush.low && value <= brush.high;
    }
  }
  return hit;
}

/// How many rows of what a chart draws are a run; 0 where it draws anything else.
std::size_t rowsOfRun(const TableRuns& runs, const SelectionGesture& gesture)
{
  const std::size_t count = runs.numberOfRuns();
  if (!gesture.table || count == 0)
    return 0;
  const auto rows = static_cast<std::size_t>(gesture.table->GetNumberOfRows());
  if (rows == count)
    return 1;
  return rows / runs.pointsPerRun() == count ? runs.pointsPerRun() : 0;
}

/// The runs of the rows that the chart has found; none where these are not of runs.
std::optional<std::vector<bool>> runsOfRows(const TableRuns& runs, const SelectionGesture& gesture)
{
  const std::size_t each = rowsOfRun(runs, gesture);
  if (each == 0)
    return {};
  std::vector<bool> found(runs.numberOfRuns(), false);
  for (const vtkIdType row : *gesture.rows)
    if (const std::size_t run = static_cast<std::size_t>(row) / each; run < found.size())
      found[run] = true;
  return found;
}

PointedAt meantByNumbers(const TableRuns& runs, const std::vector<bool>& these)
{
  return {runs.words(these), these};
}

} // namespace

std::optional<PointedAt> meantByPoints(const TableRuns& runs, const SelectionGesture& gesture,
                                       double reach)
{
  if (gesture.rows)
  {
    const auto found = runsOfRows(runs, gesture);
    if (!found)
      return {};
    const bool isClick = gesture.kind == SelectionGesture::Kind::Click;
    return isClick && gesture.rows->empty() ? PointedAt() : meantByNumbers(runs, *found);
  }
  if (!gesture.brushes.empty())
  {
    if (rowsOfRun(runs, gesture) != 1)
      return {};
    const std::string words = wordsOfBrushes(runs, gesture);
    return words.empty() ? meantByNumbers(runs, hitByBrushes(runs, gesture)) : PointedAt{words};
  }
  const auto points = pointsOf(runs, gesture);
  if (!points)
    return {};
  if (gesture.kind == SelectionGesture::Kind::Click)
  {
    const NearestPoint nearest = nearestOf(runs, gesture, *points, reach);
    return nearest.series ? meantByRun(runs, nearest.run) : PointedAt();
  }
  const std::string words = gesture.kind == SelectionGesture::Kind::Rectangle
                                ? wordsOfRectangle(runs, gesture, *points)
                                : std::string();
  if (!words.empty())
    return PointedAt{words};
  PointedAt meant = meantByNumbers(runs, hitBy(runs, gesture, *points));
  if (gesture.kind != SelectionGesture::Kind::Lasso)
    return meant;
  // Numbers alone would not tell which columns the lasso was drawn over.
  const std::string around = wordsOfRectangle(runs, rectangleAround(gesture), *points);
  if (!around.empty())
    meant.words = '(' + meant.words + ") and (" + around + ')';
  return meant;
}

std::optional<std::string> nearestPoint(const TableRuns& runs, const SelectionGesture& place,
                                        double reach)
{
  if (place.rows)
  {
    const auto found = runsOfRows(runs, place);
    if (!found)
      return {};
    const auto run = std::find(found->begin(), found->end(), true);
    return run == found->end() ? std::string()
                               : textBeside(runs, static_cast<std::size_t>(run - found->begin()));
  }
  const auto points = pointsOf(runs, place);
  if (!points)
    return {};
  const NearestPoint nearest = nearestOf(runs, place, *points, reach);
  return nearest.series ? textBeside(runs, nearest.run, nearest.series->y, nearest.point)
                        : std::string();
}

} // namespace Talmesh::app

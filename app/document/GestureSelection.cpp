#include "app/document/GestureSelection.h"

#include "app/document/PlotChoice.h"
#include "app/document/PointedRuns.h"
#include "app/document/TableRuns.h"
#include "app/import/ColumnRoles.h"
#include "app/import/TranslatedText.h"
#include "app/runs/NearestPlace.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/RunSplit.h"
#include "plot/TableColumns.h"

#include <vtkTable.h>

#include <QString>

#include <cstddef>
#include <utility>
#include <vector>

namespace Talmesh::app
{

namespace
{

using Series = SelectionGesture::Series;

/// Of the numbers beside the mouse.
constexpr int shownDigits = 6;
constexpr int overTime = -1;

/// A series as columns of the container's table.
struct DrawnSeries
{
  int item;
  int over; ///< or `overTime`
  bool lines;
};

/// The run that is drawn nearest to a place.
struct NearestRun
{
  std::size_t run = 0;
  const DrawnSeries* series = nullptr; ///< null for none within reach
  NearestPlace place;
};

/// What filters call a column: as the window does, unless that could be another one.
std::string nameOf(const PlotContainer& container, int column)
{
  const std::string name = plot::columnName(container.getTable(), column);
  const std::string shown = shownName(name);
  const Result<int> found = findColumn(container, shown);
  return found.hasValue() && found.value() == column ? shown : name;
}

/// None where a series is not of this table, or over numbers of rows.
std::optional<std::vector<DrawnSeries>> seriesOf(const PlotContainer& container,
                                                 const SelectionGesture& gesture)
{
  vtkTable* const table = container.getTable();
  if (!gesture.table || gesture.table->GetNumberOfRows() != table->GetNumberOfRows())
    return {};
  const int time = plot::timeColumnOf(stateOf(container));
  const bool hasTime = plot::doubleColumn(table, time);
  std::vector<DrawnSeries> drawn;
  for (const Series& series : gesture.series)
  {
    const int x = plot::columnIndex(table, series.x);
    const int y = plot::columnIndex(table, series.y);
    if (!plot::doubleColumn(table, x) || !plot::doubleColumn(table, y))
      return {};
    drawn.push_back({y, hasTime && x == time ? overTime : x, series.lines});
  }
  return drawn;
}

bool areDrawnAlike(const DrawnSeries& a, const DrawnSeries& b)
{
  return a.over == b.over && a.lines == b.lines;
}

DrawnGesture::Kind kindOf(const SelectionGesture& gesture)
{
  if (gesture.kind == SelectionGesture::Kind::Lasso)
    return DrawnGesture::Kind::Lasso;
  return gesture.kind == SelectionGesture::Kind::Line ? DrawnGesture::Kind::Line
                                                      : DrawnGesture::Kind::Rectangle;
}

DrawnGesture drawnGestureOf(const SelectionGesture& gesture)
{
  DrawnGesture drawn;
  drawn.kind = kindOf(gesture);
  for (const SelectionGesture::Point& point : gesture.points)
    drawn.points.push_back({point.x, point.y});
  drawn.scale = {gesture.logX, gesture.logY};
  drawn.unitsX = gesture.unitsX;
  drawn.unitsY = gesture.unitsY;
  return drawn;
}

/// Only a rectangle covers times.
GestureRule ruleFor(const SelectionGesture& gesture, GestureRule wanted, bool lines)
{
  if (wanted == GestureRule::Inside && gesture.kind == SelectionGesture::Kind::Rectangle)
    return wanted;
  return lines ? GestureRule::Through : GestureRule::Points;
}

/// Series that are drawn alike and follow each other share a condition.
std::string wordsOf(const PlotContainer& container, const SelectionGesture& gesture,
                    GestureRule rule, const std::vector<DrawnSeries>& series)
{
  const DrawnGesture drawn = drawnGestureOf(gesture);
  std::string words;
  for (std::size_t i = 0; i < series.size();)
  {
    const DrawnSeries& first = series[i];
    std::vector<std::string> items;
    for (; i < series.size() && areDrawnAlike(series[i], first); ++i)
      items.push_back(nameOf(container, series[i].item));
    words += (words.empty() ? "" : " or ") +
             gestureWords(drawn, ruleFor(gesture, rule, first.lines), items,
                          first.over == overTime ? std::string() : nameOf(container, first.over));
  }
  return words;
}

/// What is drawn last lies on top.
NearestRun nearestOf(const TableRuns& runs, const SelectionGesture& gesture,
                     const std::vector<DrawnSeries>& series, double reach)
{
  NearestRun nearest;
  const DrawnPoint point{gesture.points.front().x, gesture.points.front().y};
  double within = reach;
  for (std::size_t i = series.size(); i-- > 0;)
  {
    const DrawnManner manner{
        {gesture.logX, gesture.logY}, gesture.unitsX, gesture.unitsY, series[i].lines};
    for (std::size_t run = runs.numberOfRuns(); run-- > 0;)
    {
      const NearestPlace place =
          nearestPlace(runs.course(run, series[i].item, series[i].over), point, manner, within);
      if (!(place.distance < within))
        continue;
      within = place.distance;
      nearest = {run, &series[i], place};
    }
  }
  return nearest;
}

std::string runText(const TableRuns& runs, std::size_t run)
{
  return QString::number(runs.runNumber(run), 'f', 0).toStdString();
}

std::string numberText(double value)
{
  return QString::number(value, 'g', shownDigits).toStdString();
}

/// What the chart has found, or brushes of its axes: it draws no series along two axes.
bool hasNoSeries(const SelectionGesture& gesture)
{
  return gesture.rows || !gesture.brushes.empty();
}

} // namespace

std::string textBeside(const TableRuns& runs, std::size_t run)
{
  return withValues(translated("GestureSelection", "Run %1"), {runText(runs, run)});
}

std::string textBeside(const TableRuns& runs, std::size_t run, const std::string& column,
                       const DrawnPoint& point)
{
  return withValues(
      translated("GestureSelection", "Run %1, %2: %3, %4"),
      {runText(runs, run), shownName(column), numberText(point.x), numberText(point.y)});
}

PointedAt meantByRun(const TableRuns& runs, std::size_t run)
{
  std::vector<bool> one(runs.numberOfRuns(), false);
  one[run] = true;
  return {runs.wordsOf(run), std::move(one)};
}

std::optional<PointedAt> meantByGesture(const PlotContainer& container, const TableRuns& runs,
                                        const SelectionGesture& gesture, GestureRule rule,
                                        double reach)
{
  const auto series = hasNoSeries(gesture) ? std::nullopt : seriesOf(container, gesture);
  if (!series)
    return meantByPoints(runs, gesture, reach);
  if (runs.numberOfRuns() == 0)
    return {};
  if (gesture.kind != SelectionGesture::Kind::Click)
    return PointedAt{wordsOf(container, gesture, rule, *series)};
  const NearestRun nearest = nearestOf(runs, gesture, *series, reach);
  if (!nearest.series)
    return PointedAt();
  return meantByRun(runs, nearest.run);
}

std::optional<std::string> nearestRun(const PlotContainer& container, const TableRuns& runs,
                                      const SelectionGesture& place, double reach)
{
  const auto series = hasNoSeries(place) ? std::nullopt : seriesOf(container, place);
  if (!series)
    return nearestPoint(runs, place, reach);
  if (runs.numberOfRuns() == 0)
    return {};
  const NearestRun nearest = nearestOf(runs, place, *series, reach);
  if (!nearest.series)
    return std::string();
  return textBeside(runs, nearest.run, plot::columnName(container.getTable(), nearest.series->item),
                    nearest.place.point);
}

} // namespace Talmesh::app

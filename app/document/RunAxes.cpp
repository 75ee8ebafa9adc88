#include "app/document/RunAxes.h"

#include "app/document/FeatureColumns.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/RunSelection.h"
#include "plot/RunSplit.h"
#include "plot/TableColumns.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

bool isOfWholeRun(ColumnRole role)
{
  return role == ColumnRole::Parameter || role == ColumnRole::Feature ||
         role == ColumnRole::RunNumber;
}

void addOnce(std::vector<int>& columns, int column)
{
  if (std::find(columns.begin(), columns.end(), column) == columns.end())
    columns.push_back(column);
}

/// The features that stand for an item; itself where runs have a single point.
void addFeatures(const PlotContainer& container, int item, std::size_t count,
                 std::vector<int>& columns)
{
  if (container.getMetaData()->getStride() < 2)
    return addOnce(columns, item);
  for (std::size_t i = 0; i < count; ++i)
    addOnce(columns, featureColumn(item, runFeatures()[i]));
}

/// The one column that stands for another on an axis; -1 for none.
int onAxis(const PlotContainer& container, int column)
{
  const ColumnRole role = roleOf(container, column);
  std::vector<int> columns;
  if (role == ColumnRole::Item)
    addFeatures(container, column, 1, columns);
  else if (isOfWholeRun(role))
    columns.push_back(column);
  return plot::firstOf(columns);
}

std::vector<int> seriesOf(const PlotContainer& container, const PlotChoice& choice)
{
  std::vector<int> series;
  for (const int column : choice.y)
    if (const int shown = onAxis(container, column); shown >= 0)
      addOnce(series, shown);
  return series;
}

std::vector<int> parametersOf(const PlotContainer& container, const PlotChoice& choice)
{
  std::vector<int> ticked;
  for (const int column : choice.y)
    if (roleOf(container, column) == ColumnRole::Parameter)
      addOnce(ticked, column);
  return ticked.empty() ? container.getMetaData()->parameterColumns : ticked;
}

/// Axes that the user has moved come in their order, before the others.
void arrange(std::vector<int>& columns, const std::vector<int>& order)
{
  const auto rank = [&order](int column)
  { return std::find(order.begin(), order.end(), column) - order.begin(); };
  std::stable_sort(columns.begin(), columns.end(),
                   [&rank](int left, int right) { return rank(left) < rank(right); });
}

std::vector<int> axesOf(const PlotContainer& container, const PlotChoice& choice)
{
  std::vector<int> columns = parametersOf(container, choice);
  for (const int column : choice.y)
  {
    const ColumnRole role = roleOf(container, column);
    if (role == ColumnRole::Item)
      addFeatures(container, column, leadingFeatures, columns);
    else if (role == ColumnRole::Feature)
      addOnce(columns, column);
  }
  return columns;
}

/// The pair that the matrix shows large at first: a parameter and how the runs answer to it.
void choosePair(const PlotContainer& container, RunAxes& axes)
{
  if (axes.x >= 0 && roleOf(container, axes.x) != ColumnRole::RunNumber)
    addOnce(axes.columns, axes.x);
  else
    axes.x = plot::firstOf(axes.columns);
  const auto answer =
      std::find_if(axes.columns.begin(), axes.columns.end(),
                   [&](int column) {
                     return column != axes.x && roleOf(container, column) != ColumnRole::Parameter;
                   });
  if (answer != axes.columns.end())
    axes.y = *answer;
  else if (axes.columns.size() > 1)
    axes.y = axes.columns[1];
}

} // namespace

bool drawsRuns(const PlotContainer& container, const PlotChoice& choice)
{
  const ChartUnit unit = viewerStyle(choice.style).unit;
  if (unit == ChartUnit::Rows || plot::wholeRuns(stateOf(container)).empty())
    return false;
  if (unit == ChartUnit::RunsOverRuns)
    return isOfWholeRun(roleOf(container, choice.x));
  const int time = plot::timeColumnOf(stateOf(container));
  const bool overTime = choice.x == time || choice.z == time || plot::firstOf(choice.y) == time;
  return unit == ChartUnit::Runs || !overTime;
}

RunAxes axesOfRuns(const PlotContainer& container, const PlotChoice& choice)
{
  const ViewerStyle& style = viewerStyle(choice.style);
  RunAxes axes;
  axes.x = style.controls.x ? onAxis(container, choice.x) : -1;
  axes.z = style.controls.z ? onAxis(container, choice.z) : -1;
  if (style.unit != ChartUnit::Runs)
  {
    axes.columns = seriesOf(container, choice);
    axes.y = plot::firstOf(axes.columns);
    return axes;
  }
  axes.columns = axesOf(container, choice);
  if (style.hasColumnsAsAxes)
    arrange(axes.columns, choice.axes);
  else
    choosePair(container, axes);
  return axes;
}

} // namespace Talmesh::app

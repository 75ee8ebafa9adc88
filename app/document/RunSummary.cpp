#include "app/document/RunSummary.h"

#include "app/document/ColouredRuns.h"
#include "app/document/FeatureColumns.h"
#include "app/styles/ViewerStyles.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/RunLayout.h"
#include "plot/RunSelection.h"
#include "plot/RunSplit.h"
#include "plot/TableColumns.h"

#include <algorithm>
#include <numeric>

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

void RunSummary::follow(const PlotContainer& container)
{
  const plot::RunLayout layout = {container.getTable()->GetNumberOfRows(),
                                  container.getMetaData()->getStride()};
  if (summarised == container.getTable() && runs == layout.runs() && stride == layout.stride)
    return;
  summarised = container.getTable();
  runs = layout.runs();
  stride = static_cast<int>(layout.stride);
  table = vtkSmartPointer<vtkTable>::New();
  columns.clear();
}

vtkSmartPointer<vtkDoubleArray> RunSummary::compute(const PlotContainer& container, int shown) const
{
  vtkDoubleArray* source = plot::doubleColumn(container.getTable(), itemOf(shown));
  vtkDoubleArray* times =
      plot::doubleColumn(container.getTable(), plot::timeColumnOf(stateOf(container)));
  const std::optional<RunFeature> feature = featureIn(shown);
  // In place of times that the table does not have.
  std::vector<double> places(static_cast<std::size_t>(stride));
  std::iota(places.begin(), places.end(), 0.0);
  std::vector<double> values;
  for (vtkIdType run = 0; run < runs; ++run)
  {
    const double* first = source->GetPointer(run * stride);
    if (!feature)
    {
      values.push_back(*first);
      continue;
    }
    const double* x = times ? times->GetPointer(run * stride) : places.data();
    values.push_back(featureOf(*feature, {x, first, places.size()}));
  }
  return plot::makeColumn("", values);
}

/// The column of the table that shows a column; -1 for none.
int RunSummary::place(const PlotContainer& container, int shown)
{
  vtkDoubleArray* source = plot::doubleColumn(container.getTable(), itemOf(shown));
  if (shown < 0 || !source || source->GetNumberOfTuples() < runs * stride)
    return -1;
  auto known = std::find_if(columns.begin(), columns.end(),
                            [shown](const Column& column) { return column.shown == shown; });
  const auto at = static_cast<int>(known - columns.begin());
  if (known != columns.end() && known->source == source && known->sourceTime == source->GetMTime())
    return at;
  const vtkSmartPointer<vtkDoubleArray> values = compute(container, shown);
  if (known != columns.end())
  {
    *known = {shown, source, source->GetMTime()};
    vtkDoubleArray* column = plot::doubleColumn(table, at);
    std::copy_n(values->GetPointer(0), runs, column->GetPointer(0));
    column->Modified();
    table->Modified();
    return at;
  }
  columns.push_back({shown, source, source->GetMTime()});
  std::string name = columnTitle(container, shown);
  // Items of two kinds may have one name.
  if (plot::columnNamed(table, name))
    name += " (" + plot::columnName(container.getTable(), itemOf(shown)) + ')';
  values->SetName(name.c_str());
  table->AddColumn(values);
  return at;
}

SummaryTable RunSummary::of(const PlotContainer& container, const PlotChoice& choice)
{
  SummaryTable summary;
  if (!drawsRuns(container, choice))
    return summary;
  follow(container);
  const RunAxes axes = axesOfRuns(container, choice);
  summary.rowsEach = stride;
  summary.x = place(container, axes.x);
  summary.y = place(container, axes.y);
  summary.z = place(container, axes.z);
  for (const int column : axes.columns)
    if (const int at = place(container, column); at >= 0)
      summary.columns.push_back(at);
  summary.table = table;
  return summary;
}

void RunSummary::setGroups(const std::vector<int>& groupOfRun)
{
  if (!table || static_cast<vtkIdType>(groupOfRun.size()) != runs)
    return;
  int at = plot::columnIndex(table, groupColumnName());
  if (at < 0)
  {
    at = static_cast<int>(columns.size());
    columns.push_back({-1, nullptr, 0});
    table->AddColumn(plot::makeColumn(groupColumnName(), std::vector<double>(groupOfRun.size())));
  }
  vtkDoubleArray* column = plot::doubleColumn(table, at);
  std::copy(groupOfRun.begin(), groupOfRun.end(), column->GetPointer(0));
  column->Modified();
  table->Modified();
}

std::vector<int> RunSummary::columnsNamed(const std::vector<std::string>& names) const
{
  std::vector<int> shown;
  for (const std::string& name : names)
  {
    const int at = table ? plot::columnIndex(table, name) : -1;
    if (at >= 0)
      shown.push_back(columns[static_cast<std::size_t>(at)].shown);
  }
  return shown;
}

} // namespace Talmesh::app

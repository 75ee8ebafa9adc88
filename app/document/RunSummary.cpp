#include "app/document/RunSummary.h"

#include "app/document/ColouredRuns.h"
#include "app/document/FeatureColumns.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/RunLayout.h"
#include "plot/RunSplit.h"
#include "plot/TableColumns.h"

#include <algorithm>
#include <limits>

namespace Talmesh::app
{

namespace
{

const double* timesOf(const PlotContainer& container)
{
  vtkDoubleArray* times =
      plot::doubleColumn(container.getTable(), plot::timeColumnOf(stateOf(container)));
  return times ? times->GetPointer(0) : nullptr;
}

} // namespace

RunSummary::RunSummary()
    : features([this](const FeatureSearch::Wishes& wishes, const FeatureSearch::Values& values)
               { take(wishes, values); })
{
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

StackedRuns RunSummary::stacked() const
{
  return {static_cast<std::size_t>(runs), static_cast<std::size_t>(stride)};
}

void RunSummary::put(std::size_t at, const std::vector<double>& values)
{
  vtkDoubleArray* column = plot::doubleColumn(table, static_cast<int>(at));
  std::copy(values.begin(), values.end(), column->GetPointer(0));
  column->Modified();
  table->Modified();
}

void RunSummary::take(const FeatureSearch::Wishes& wishes, const FeatureSearch::Values& values)
{
  for (std::size_t wish = 0; wish < wishes.size(); ++wish)
    for (std::size_t at = 0; at < columns.size(); ++at)
      if (wishes[wish] == FeatureSearch::Wish{columns[at].shown, columns[at].sourceTime})
      {
        put(at, values[wish]);
        columns[at].hasValues = true;
      }
}

/// The column of the table that shows a column; -1 for none.
int RunSummary::place(const PlotContainer& container, int shown)
{
  vtkDoubleArray* source = plot::doubleColumn(container.getTable(), itemOf(shown));
  if (shown < 0 || !source || source->GetNumberOfTuples() < runs * stride)
    return -1;
  const auto known = std::find_if(columns.begin(), columns.end(),
                                  [shown](const Column& column) { return column.shown == shown; });
  const auto at = static_cast<std::size_t>(known - columns.begin());
  const bool isNew = known == columns.end();
  if (isNew || known->source != source || known->sourceTime != source->GetMTime())
  {
    const Result<std::vector<double>> found =
        valuesOfRuns(featureIn(shown), timesOf(container), source->GetPointer(0), stacked(),
                     [this](double) { return features.mayWait(); });
    const std::vector<double> values =
        found.hasValue() ? found.value()
                         : std::vector<double>(static_cast<std::size_t>(runs),
                                               std::numeric_limits<double>::quiet_NaN());
    if (isNew)
    {
      columns.emplace_back();
      table->AddColumn(plot::makeColumn(newName(container, shown), values));
    }
    else
      put(at, values);
    columns[at] = {shown, source, source->GetMTime(), found.hasValue()};
  }
  if (!columns[at].hasValues)
    missing.emplace_back(shown, columns[at].sourceTime);
  return static_cast<int>(at);
}

/// Items of two kinds may have one name.
std::string RunSummary::newName(const PlotContainer& container, int shown) const
{
  const std::string name = columnTitle(container, shown);
  return plot::columnNamed(table, name)
             ? name + " (" + plot::columnName(container.getTable(), itemOf(shown)) + ')'
             : name;
}

SummaryTable RunSummary::of(const PlotContainer& container, const PlotChoice& choice)
{
  SummaryTable summary;
  features.beginDrawing();
  missing.clear();
  if (drawsRuns(container, choice))
  {
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
  }
  features.want(missing, [&] { return taskFor(container); });
  return summary;
}

/// Computes what is missing.
FeatureTask RunSummary::taskFor(const PlotContainer& container) const
{
  FeatureTask task(stacked());
  for (const auto& [shown, time] : missing)
    task.add(shown, timesOf(container),
             plot::doubleColumn(container.getTable(), itemOf(shown))->GetPointer(0));
  return task;
}

void RunSummary::setGroups(const std::vector<int>& groupOfRun)
{
  if (!table || static_cast<vtkIdType>(groupOfRun.size()) != runs)
    return;
  int at = plot::columnIndex(table, groupColumnName());
  if (at < 0)
  {
    at = static_cast<int>(columns.size());
    columns.push_back({-1, nullptr, 0, true});
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

#include "app/import/RunTableBuilder.h"

#include "app/import/StackedColumns.h"
#include "external/ColumnNames.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <memory>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// A range around a value that stands in some runs while others have none or an infinite one. The
/// plots leave out a parameter whose range is a single value.
std::pair<double, double> rangeAround(double value)
{
  const double margin = 0.05 * std::abs(value);
  return margin > 0.0 ? std::make_pair(value - margin, value + margin)
                      : std::make_pair(value - 1.0, value + 1.0);
}

class RunTableBuilder
{
public:
  RunTableBuilder(TableText& text_, const RunGrouping& grouping_, const ImportProgress& progress_)
      : text(text_)
      , grouping(grouping_)
      , progress(progress_)
  {
  }

  BuiltRuns build()
  {
    for (std::size_t i = 0; i < text.columns.size(); ++i)
    {
      if (progress && !progress(1.0))
        return {};
      if (text.uses[i] != ColumnUse::Ignored && text.uses[i] != ColumnUse::RunName)
        addColumn(i);
    }
    if (!text.roles.anyTyped && text.roles.runColumn < 0)
      addRunIndex(runIndexName, false);
    makeLabelsUnique(columns);
    if (text.roles.anyTyped)
      arrangeTypedColumns(columns);
    else
      arrangePlainColumns(columns);
    BuiltRuns built;
    for (const StackedColumn& column : columns)
      if (column.item.first == Parameter && !column.varies())
        built.unvariedParameters.push_back(column.item.second);
    for (const StackedColumn& column : columns)
      if (column.source != StackedColumn::noSource)
        built.labels.emplace(column.source, selectionPairToString(column.item));
    built.runs = handOver();
    return built;
  }

private:
  std::size_t rows() const { return text.rows; }

  std::unique_ptr<double[]> stacked(ColumnValues& column) const
  {
    std::unique_ptr<double[]> values(new double[rows()]);
    for (std::size_t place = 0; place < rows(); ++place)
      values[place] = column.values[grouping.order.empty() ? place : grouping.order[place]];
    std::vector<double>().swap(column.values);
    return values;
  }

  std::unique_ptr<double[]> runIndices() const
  {
    std::unique_ptr<double[]> values(new double[rows()]);
    for (std::size_t place = 0; place < rows(); ++place)
      values[place] = grouping.indices[place / grouping.pointsPerRun];
    return values;
  }

  /// One value in each run. Runs of one point tell nothing.
  bool constantWithinRuns(const double* values) const
  {
    if (grouping.pointsPerRun < 2)
      return false;
    for (std::size_t place = 0; place < rows(); ++place)
    {
      const double first = values[place - place % grouping.pointsPerRun];
      const bool same = values[place] == first || (std::isnan(values[place]) && std::isnan(first));
      if (!same)
        return false;
    }
    return true;
  }

  bool isParameter(ColumnUse use, const StackedColumn& column) const
  {
    if (use == ColumnUse::Item || use == ColumnUse::Parameter)
      return use == ColumnUse::Parameter;
    // What is a condition of a single point is one of its run.
    if (use == ColumnUse::Condition && grouping.pointsPerRun == 1)
      return column.varies();
    return column.varies() && constantWithinRuns(column.values.get());
  }

  void addRunIndex(const std::string& name, bool typed)
  {
    columns.push_back(
        {{TimeOrValue, name}, StackedColumn::Role::RunIndex, typed, runIndices(), {0.0, 0.0}});
  }

  void addColumn(std::size_t index)
  {
    const ColumnHeader& header = text.roles.headers[index];
    const int position = static_cast<int>(index);
    if (position == text.roles.runColumn)
    {
      addRunIndex(header.typed ? header.name : runIndexName, header.typed);
      return;
    }
    StackedColumn column;
    column.item = {header.kind, header.name};
    column.typed = header.typed;
    column.source = index;
    column.values = stacked(text.columns[index]);
    column.range = rangeOf(column.values.get());
    if (position == text.roles.timeColumn)
    {
      column.item.first = TimeOrValue;
      column.role = StackedColumn::Role::Time;
    }
    else if (!header.typed)
    {
      // Plots leave out a parameter that does not vary; as an item the column stays to be seen.
      column.item.first = isParameter(text.uses[index], column) ? Parameter : Molecule;
    }
    else if (header.kind == Parameter && !column.varies() && hasOneValueInSomeRuns(column))
      column.range = rangeAround(column.range.first);
    columns.push_back(std::move(column));
  }

  /// Whether some, but not all of the column's values are the finite value that its range is.
  bool hasOneValueInSomeRuns(const StackedColumn& column) const
  {
    const double* values = column.values.get();
    const auto same = std::count(values, values + rows(), column.range.first);
    return same > 0 && same < static_cast<std::ptrdiff_t>(rows());
  }

  std::pair<double, double> rangeOf(const double* values) const
  {
    std::pair<double, double> range(std::numeric_limits<double>::infinity(),
                                    -std::numeric_limits<double>::infinity());
    for (std::size_t place = 0; place < rows(); ++place)
      if (std::isfinite(values[place]))
      {
        range.first = std::min(range.first, values[place]);
        range.second = std::max(range.second, values[place]);
      }
    return range.first <= range.second ? range : std::pair<double, double>(0.0, 0.0);
  }

  boost::shared_ptr<LinePlotTable> handOver()
  {
    auto table = boost::make_shared<LinePlotTable>();
    table->numberOfTrajectories = grouping.numberOfRuns;
    table->pointsPerTrajectory = grouping.pointsPerRun;
    table->values.reserve(columns.size());
    for (StackedColumn& column : columns)
    {
      if (column.item.first == Parameter)
        table->parameterRanges.push_back(column.range);
      table->items.push_back(column.item);
      table->values.push_back(column.values.release());
    }
    return table;
  }

  TableText& text;
  const RunGrouping& grouping;
  const ImportProgress& progress;
  std::vector<StackedColumn> columns;
};

} // namespace

BuiltRuns buildRunTable(TableText& text, const RunGrouping& grouping,
                        const ImportProgress& progress)
{
  return RunTableBuilder(text, grouping, progress).build();
}

} // namespace Talmesh::app

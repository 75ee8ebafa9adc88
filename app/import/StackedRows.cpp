#include "app/import/CommonGrid.h"
#include "app/import/MissingValue.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// Behind the name of the item, in every language.
constexpr const char* steadyName = " at steady state";

/// The cells of some rows in their order; columns of names have none.
template <typename Cell>
void gather(std::vector<Cell>& cells, const std::vector<std::size_t>& rows)
{
  if (cells.empty())
    return;
  std::vector<Cell> gathered;
  gathered.reserve(rows.size());
  for (const std::size_t row : rows)
    gathered.push_back(cells[row]);
  cells.swap(gathered);
}

void gatherRows(TableText& text, const std::vector<std::size_t>& rows)
{
  for (ColumnValues& column : text.columns)
    gather(column.values, rows);
  LineNumbers lines;
  for (const std::size_t row : text.lines.empty() ? std::vector<std::size_t>() : rows)
    lines.push_back(text.lines[row]);
  text.lines = std::move(lines);
  text.rows = rows.size();
}

bool isPlotted(const TableText& text, std::size_t column)
{
  const int index = static_cast<int>(column);
  return index != text.roles.timeColumn && index != text.roles.runColumn &&
         text.uses[column] != ColumnUse::Ignored && text.uses[column] != ColumnUse::RunName &&
         !text.columns[column].values.empty();
}

/// The value at the last row of infinite time of each run; missing without one.
std::vector<double> steadyValues(const TableText& text, const RunGrouping& grouping,
                                 const std::vector<double>& values)
{
  const std::vector<double>& time = text.columns[text.roles.timeColumn].values;
  std::vector<double> steady(grouping.numberOfRuns, missing);
  for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
    for (std::size_t row = grouping.starts[run]; row < grouping.starts[run + 1]; ++row)
      if (std::isinf(time[row]) && !std::isnan(values[row]))
        steady[run] = values[row];
  return steady;
}

void addColumn(TableText& text, const std::string& name, std::vector<double> values)
{
  text.columns.push_back(columnOfNumbers(std::move(values)));
  text.uses.push_back(ColumnUse::Item);
  ColumnHeader header;
  header.name = name;
  text.roles.headers.push_back(header);
}

/// Steady states of runs that have other times, too, as items.
void addSteadyItems(TableText& text, const RunGrouping& grouping)
{
  const std::size_t columns = text.columns.size();
  for (std::size_t i = 0; i < columns; ++i)
  {
    const ColumnHeader header = text.roles.headers[i];
    const bool item = isPlotted(text, i) && text.uses[i] != ColumnUse::Parameter &&
                      header.kind != Parameter &&
                      !isConstantInRuns(text.columns[i].values, grouping);
    if (!item)
      continue;
    const std::vector<double> steady = steadyValues(text, grouping, text.columns[i].values);
    std::vector<double> values(text.rows);
    for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
      std::fill(values.begin() + static_cast<std::ptrdiff_t>(grouping.starts[run]),
                values.begin() + static_cast<std::ptrdiff_t>(grouping.starts[run + 1]),
                steady[run]);
    addColumn(text, header.name + steadyName, std::move(values));
  }
}

} // namespace

void stackRows(TableText& text, RunGrouping& grouping)
{
  if (!grouping.order.empty())
    gatherRows(text, grouping.order);
  grouping.order.clear();
}

void keepRows(TableText& text, RunGrouping& grouping, const std::vector<bool>& kept)
{
  std::vector<std::size_t> rows;
  RunGrouping left;
  left.starts.push_back(0);
  for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
  {
    for (std::size_t row = grouping.starts[run]; row < grouping.starts[run + 1]; ++row)
      if (kept[row])
        rows.push_back(row);
    if (rows.size() == left.starts.back())
      continue;
    left.starts.push_back(rows.size());
    left.indices.push_back(grouping.indices[run]);
    if (!grouping.runs.empty())
      left.runs.push_back(grouping.runs[run]);
  }
  left.numberOfRuns = left.indices.size();
  left.pointsPerRun = left.numberOfRuns == 0 ? 0 : left.starts[1];
  for (std::size_t run = 0; run < left.numberOfRuns; ++run)
    if (left.starts[run + 1] - left.starts[run] != left.pointsPerRun)
      left.unequal = translated("StackedRows", "the runs have different numbers of points");
  grouping = std::move(left);
  gatherRows(text, rows);
}

bool isConstantInRuns(const std::vector<double>& values, const RunGrouping& grouping)
{
  for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
  {
    const double first = values[grouping.starts[run]];
    for (std::size_t row = grouping.starts[run]; row < grouping.starts[run + 1]; ++row)
      if (values[row] != first && !(std::isnan(values[row]) && std::isnan(first)))
        return false;
  }
  return true;
}

void takeSteadyStates(TableText& text, RunGrouping& grouping, ImportReport& report)
{
  if (text.roles.timeColumn < 0)
    return;
  const ColumnValues& time = text.columns[static_cast<std::size_t>(text.roles.timeColumn)];
  const auto isInfinite = [](double value) { return std::isinf(value); };
  const auto first = std::find_if(time.values.begin(), time.values.end(), isInfinite);
  if (first == time.values.end())
    return;
  const std::string line =
      std::to_string(text.lineOf(static_cast<std::size_t>(first - time.values.begin())));
  if (std::all_of(time.values.begin(), time.values.end(), isInfinite))
  {
    text.uses[static_cast<std::size_t>(text.roles.timeColumn)] = ColumnUse::Ignored;
    report.warnings.push_back(withValues(
        translated("StackedRows", "All times are infinite: the values are steady states."), {}));
    text.roles.timeColumn = -1;
    return;
  }
  addSteadyItems(text, grouping);
  std::vector<bool> kept;
  // The new columns have moved the one of times.
  for (const double value : text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values)
    kept.push_back(!std::isinf(value));
  report.warnings.push_back(
      withValues(translated("StackedRows", "Line %1: the time is infinite. Steady states are items "
                                           "of their own, \"... at steady state\"."),
                 {line}));
  keepRows(text, grouping, kept);
}

double onLine(double at, double fromTime, double toTime, double from, double to)
{
  const double part = (at - fromTime) / (toTime - fromTime);
  return from + part * (to - from);
}

void bridgeGaps(TableText& text, const RunGrouping& grouping, ImportReport& report)
{
  if (text.roles.timeColumn < 0)
    return;
  const std::vector<double>& time =
      text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values;
  std::size_t bridged = 0;
  for (std::size_t i = 0; i < text.columns.size(); ++i)
  {
    std::vector<double>& values = text.columns[i].values;
    if (text.uses[i] != ColumnUse::Item || values.empty())
      continue;
    for (std::size_t run = 0; run < grouping.numberOfRuns; ++run)
    {
      std::size_t last = grouping.starts[run + 1];
      for (std::size_t row = grouping.starts[run]; row < grouping.starts[run + 1]; ++row)
      {
        if (std::isnan(values[row]))
          continue;
        for (std::size_t gap = last + 1; gap < row; ++gap, ++bridged)
          values[gap] = onLine(time[gap], time[last], time[row], values[last], values[row]);
        last = row;
      }
    }
  }
  if (bridged > 0)
    report.warnings.push_back(translated("StackedRows", "Not all items have values at all times. "
                                                        "Straight lines cross the gaps between "
                                                        "them."));
}
} // namespace Talmesh::app

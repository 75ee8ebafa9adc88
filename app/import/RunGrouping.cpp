#include "app/import/RunGrouping.h"

#include "app/import/NumberText.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>
#include <set>

namespace Talmesh::app
{

namespace
{

std::string points(std::size_t count)
{
  return count == 1 ? translated("RunGrouping", "1 point")
                    : withValues(translated("RunGrouping", "%1 points"), {std::to_string(count)});
}

std::string unequalRun(const std::string& name, std::size_t length, std::size_t usual)
{
  return withValues(translated("RunGrouping", "run %1 has %2, other runs have %3"),
                    {name, points(length), std::to_string(usual)});
}

/// The length most runs have; of equally frequent ones that of the earlier run.
std::size_t usualLength(const std::vector<std::size_t>& lengths)
{
  std::map<std::size_t, std::size_t> frequency;
  for (const std::size_t length : lengths)
    ++frequency[length];
  return *std::max_element(lengths.begin(), lengths.end(),
                           [&](std::size_t a, std::size_t b)
                           { return frequency[a] < frequency[b]; });
}

/// The first run of another length than most, or none.
std::size_t oddRun(const std::vector<std::size_t>& lengths, std::size_t usual)
{
  return static_cast<std::size_t>(std::find_if(lengths.begin(), lengths.end(),
                                               [usual](std::size_t length)
                                               { return length != usual; }) -
                                  lengths.begin());
}

/// Tables of other formats have no lines, and their rows count.
std::size_t lineOf(const RunColumns& columns, std::size_t row)
{
  return columns.lines->empty() ? row + 1 : (*columns.lines)[row];
}

std::vector<std::size_t> startsByTime(const RunColumns& columns)
{
  std::vector<std::size_t> starts{0};
  if (!columns.time)
    return starts;
  double latest = -std::numeric_limits<double>::infinity();
  for (std::size_t row = 0; row < columns.rows; ++row)
  {
    const double time = (*columns.time)[row];
    if (time < latest)
      starts.push_back(row);
    if (!std::isnan(time))
      latest = time;
  }
  return starts;
}

/// Whether the time falls from each row to the next, as where one run was written backwards.
bool fallsThroughout(const RunColumns& columns)
{
  if (!columns.time || columns.rows < 2)
    return false;
  const std::vector<double>& time = *columns.time;
  for (std::size_t row = 1; row < columns.rows; ++row)
    if (!(time[row] < time[row - 1]))
      return false;
  return true;
}

RunGrouping backwardRun(std::size_t rows)
{
  RunGrouping grouping;
  grouping.numberOfRuns = 1;
  grouping.pointsPerRun = rows;
  grouping.starts = {0, rows};
  grouping.indices = {0.0};
  grouping.order.resize(rows);
  std::iota(grouping.order.rbegin(), grouping.order.rend(), std::size_t{0});
  return grouping;
}

Result<RunGrouping> groupByTime(const RunColumns& columns)
{
  if (fallsThroughout(columns))
    return backwardRun(columns.rows);
  std::vector<std::size_t> starts = startsByTime(columns);
  std::vector<std::size_t> lengths;
  for (std::size_t run = 0; run < starts.size(); ++run)
    lengths.push_back((run + 1 < starts.size() ? starts[run + 1] : columns.rows) - starts[run]);
  RunGrouping grouping;
  grouping.numberOfRuns = starts.size();
  grouping.pointsPerRun = usualLength(lengths);
  const std::size_t odd = oddRun(lengths, grouping.pointsPerRun);
  if (odd == 0)
    grouping.unequal = unequalRun("0", lengths[0], grouping.pointsPerRun);
  else if (odd < lengths.size())
    grouping.unequal = withValues(
        translated("RunGrouping",
                   "run %1 (from line %2, where time falls back) has %3, other runs have %4"),
        {std::to_string(odd), std::to_string(lineOf(columns, starts[odd])), points(lengths[odd]),
         std::to_string(grouping.pointsPerRun)});
  grouping.starts = std::move(starts);
  grouping.starts.push_back(columns.rows);
  grouping.indices.resize(grouping.numberOfRuns);
  std::iota(grouping.indices.begin(), grouping.indices.end(), 0.0);
  return grouping;
}

/// The names as whole numbers when all are different ones; else empty.
std::vector<double> wholeNumbers(const std::vector<std::string>& names)
{
  std::vector<double> numbers;
  for (const std::string& name : names)
  {
    const NumberText number = readNumber(name, false);
    // What looks like an exponent of Fortran is a name, as of the wells of a plate.
    const bool whole = number.kind == NumberText::Kind::Number &&
                       name.find_first_of("dD") == std::string::npos &&
                       std::abs(number.value) <= std::numeric_limits<int>::max() &&
                       number.value == std::floor(number.value);
    if (!whole)
      return {};
    numbers.push_back(number.value);
  }
  const bool different = std::set<double>(numbers.begin(), numbers.end()).size() == numbers.size();
  return different ? numbers : std::vector<double>{};
}

using RowsOfRuns = std::vector<std::vector<std::size_t>>;

RowsOfRuns rowsOfRuns(const RunColumns& columns)
{
  RowsOfRuns rows(columns.names->size());
  for (std::size_t row = 0; row < columns.rows; ++row)
    rows[(*columns.run)[row]].push_back(row);
  return rows;
}

/// Where time falls back among the rows of a run; their number when it never does.
std::size_t fallBack(const std::vector<double>& time, const std::vector<std::size_t>& rows)
{
  double latest = -std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < rows.size(); ++i)
  {
    if (time[rows[i]] < latest)
      return i;
    if (!std::isnan(time[rows[i]]))
      latest = time[rows[i]];
  }
  return rows.size();
}

/// Sorts the rows of a run by time.
/// @return whether every row has a time of its own; otherwise the order stays
bool sortByTime(const std::vector<double>& time, std::vector<std::size_t>& rows)
{
  if (std::any_of(rows.begin(), rows.end(), [&](std::size_t row) { return std::isnan(time[row]); }))
    return false;
  std::vector<std::size_t> sorted = rows;
  std::sort(sorted.begin(), sorted.end(),
            [&](std::size_t a, std::size_t b) { return time[a] < time[b]; });
  const auto same =
      std::adjacent_find(sorted.begin(), sorted.end(),
                         [&](std::size_t a, std::size_t b) { return time[a] == time[b]; });
  if (same != sorted.end())
    return false;
  rows.swap(sorted);
  return true;
}

/// Sorts the rows of runs whose time falls back.
/// @return why a run cannot be sorted; empty on success
std::string orderByTime(const RunColumns& columns, RowsOfRuns& rows)
{
  for (std::size_t run = 0; columns.time && run < rows.size(); ++run)
  {
    const std::size_t at = fallBack(*columns.time, rows[run]);
    if (at == rows[run].size())
      continue;
    const std::size_t line = lineOf(columns, rows[run][at]);
    if (!sortByTime(*columns.time, rows[run]))
      return withValues(
          translated("RunGrouping", "run %1 starts again in line %2: two runs have the same name"),
          {quotedForMessage((*columns.names)[run]), std::to_string(line)});
  }
  return {};
}

Result<RunGrouping> groupByName(const RunColumns& columns)
{
  RowsOfRuns rows = rowsOfRuns(columns);
  const std::size_t count = rows.size();
  std::vector<std::size_t> lengths;
  for (const std::vector<std::size_t>& run : rows)
    lengths.push_back(run.size());
  RunGrouping grouping;
  grouping.numberOfRuns = count;
  grouping.pointsPerRun = usualLength(lengths);
  const std::string unsorted = orderByTime(columns, rows);
  if (!unsorted.empty())
    return Result<RunGrouping>::failed(unsorted);
  const std::size_t odd = oddRun(lengths, grouping.pointsPerRun);
  if (odd < count)
    grouping.unequal =
        unequalRun(quotedForMessage((*columns.names)[odd]), lengths[odd], grouping.pointsPerRun);

  grouping.runs.resize(count);
  std::iota(grouping.runs.begin(), grouping.runs.end(), 0);
  grouping.indices = wholeNumbers(*columns.names);
  if (grouping.indices.empty())
  {
    grouping.indices.resize(count);
    std::iota(grouping.indices.begin(), grouping.indices.end(), 0.0);
  }
  std::sort(grouping.runs.begin(), grouping.runs.end(),
            [&](int a, int b) { return grouping.indices[a] < grouping.indices[b]; });
  std::sort(grouping.indices.begin(), grouping.indices.end());

  grouping.order.reserve(columns.rows);
  grouping.starts.push_back(0);
  for (const int run : grouping.runs)
    grouping.starts.push_back(grouping.starts.back() + rows[run].size());
  for (const int run : grouping.runs)
    grouping.order.insert(grouping.order.end(), rows[run].begin(), rows[run].end());
  if (std::is_sorted(grouping.order.begin(), grouping.order.end()))
    grouping.order.clear();
  return grouping;
}

} // namespace

Result<RunGrouping> groupRuns(const RunColumns& columns)
{
  return columns.run ? groupByName(columns) : groupByTime(columns);
}

} // namespace Talmesh::app

#include "app/RunGrouping.h"

#include "app/NumberText.h"
#include "app/TableText.h"
#include "app/TranslatedText.h"

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

std::vector<std::size_t> startsByTime(const RunColumns& columns)
{
  std::vector<std::size_t> starts{0};
  if (columns.time)
    for (std::size_t row = 1; row < columns.rows; ++row)
      if ((*columns.time)[row] < (*columns.time)[row - 1])
        starts.push_back(row);
  return starts;
}

RunGrouping groupByTime(const RunColumns& columns)
{
  const std::vector<std::size_t> starts = startsByTime(columns);
  std::vector<std::size_t> lengths;
  for (std::size_t run = 0; run < starts.size(); ++run)
    lengths.push_back((run + 1 < starts.size() ? starts[run + 1] : columns.rows) - starts[run]);
  RunGrouping grouping;
  grouping.numberOfRuns = starts.size();
  grouping.pointsPerRun = usualLength(lengths);
  const std::size_t odd = oddRun(lengths, grouping.pointsPerRun);
  if (odd < lengths.size())
    grouping.error = withValues(
        translated("RunGrouping",
                   "run %1 (from line %2, where time falls back) has %3, other runs have %4"),
        {std::to_string(odd + 1), std::to_string((*columns.lines)[starts[odd]]),
         points(lengths[odd]), std::to_string(grouping.pointsPerRun)});
  if (odd == 0 && !grouping.error.empty())
    grouping.error = unequalRun("1", lengths[0], grouping.pointsPerRun);
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
    const bool whole = number.kind == NumberText::Kind::Number &&
                       std::abs(number.value) <= std::numeric_limits<int>::max() &&
                       number.value == std::floor(number.value);
    if (!whole)
      return {};
    numbers.push_back(number.value);
  }
  const bool different = std::set<double>(numbers.begin(), numbers.end()).size() == numbers.size();
  return different ? numbers : std::vector<double>{};
}

/// A run that starts again at an earlier time, described; empty when there is none.
std::string repeatedRun(const RunColumns& columns)
{
  if (!columns.time)
    return {};
  std::vector<std::size_t> last(columns.names->size(), columns.rows);
  for (std::size_t row = 0; row < columns.rows; ++row)
  {
    const int run = (*columns.run)[row];
    std::size_t& before = last[run];
    const bool resumed = before + 1 < row && before != columns.rows;
    if (resumed && (*columns.time)[row] < (*columns.time)[before])
      return withValues(
          translated("RunGrouping", "run %1 starts again in line %2: two runs have the same name"),
          {quotedForMessage((*columns.names)[run]), std::to_string((*columns.lines)[row])});
    before = row;
  }
  return {};
}

RunGrouping groupByName(const RunColumns& columns)
{
  const std::size_t count = columns.names->size();
  std::vector<std::size_t> lengths(count, 0);
  for (const int run : *columns.run)
    ++lengths[run];
  RunGrouping grouping;
  grouping.numberOfRuns = count;
  grouping.pointsPerRun = usualLength(lengths);
  grouping.error = repeatedRun(columns);
  const std::size_t odd = oddRun(lengths, grouping.pointsPerRun);
  if (grouping.error.empty() && odd < count)
    grouping.error =
        unequalRun(quotedForMessage((*columns.names)[odd]), lengths[odd], grouping.pointsPerRun);
  if (!grouping.error.empty())
    return grouping;

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

  std::vector<std::size_t> next(count);
  for (std::size_t place = 0; place < count; ++place)
    next[grouping.runs[place]] = place * grouping.pointsPerRun;
  grouping.order.resize(columns.rows);
  for (std::size_t row = 0; row < columns.rows; ++row)
    grouping.order[next[(*columns.run)[row]]++] = row;
  if (std::is_sorted(grouping.order.begin(), grouping.order.end()))
    grouping.order.clear();
  return grouping;
}

} // namespace

RunGrouping groupRuns(const RunColumns& columns)
{
  return columns.run ? groupByName(columns) : groupByTime(columns);
}

} // namespace Talmesh::app

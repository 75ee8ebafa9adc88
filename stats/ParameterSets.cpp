#include "stats/ParameterSets.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

namespace Talmesh::stats
{
namespace
{
/// An order of all doubles in which missing values are equal and the last ones.
int compareValues(double a, double b)
{
  if (a < b)
    return -1;
  if (a > b)
    return 1;
  return static_cast<int>(std::isnan(a)) - static_cast<int>(std::isnan(b));
}

int compareRunsIn(const ParameterColumns& columns, std::uint32_t a, std::uint32_t b)
{
  for (const std::vector<double>& column : columns)
  {
    if (const int order = compareValues(column[a], column[b]))
      return order;
  }
  return 0;
}
} // namespace

std::size_t runsIn(const ParameterColumns& columns)
{
  const std::size_t runs = columns.empty() ? 0 : columns.front().size();
  for (const std::vector<double>& column : columns)
  {
    if (column.size() != runs)
      throw std::invalid_argument("parameters of different numbers of runs");
  }
  if (runs > mostRuns)
    throw std::length_error("more runs than can be compared");
  return runs;
}

bool ParameterSets::balanced() const
{
  return std::all_of(runsOfSet.begin(), runsOfSet.end(),
                     [this](std::uint32_t runs) { return runs == runsOfSet.front(); });
}

ParameterSets parameterSets(const ParameterColumns& columns)
{
  const std::size_t runs = runsIn(columns);
  std::vector<std::uint32_t> order(runs);
  std::iota(order.begin(), order.end(), 0U);
  std::sort(order.begin(), order.end(),
            [&columns](std::uint32_t a, std::uint32_t b)
            {
              const int compared = compareRunsIn(columns, a, b);
              return compared != 0 ? compared < 0 : a < b;
            });

  // The first run of every run's set, which gives the sets their numbers.
  std::vector<std::uint32_t> firstRun(runs);
  for (std::size_t i = 0; i < runs; ++i)
  {
    const bool same = i > 0 && compareRunsIn(columns, order[i - 1], order[i]) == 0;
    firstRun[order[i]] = same ? firstRun[order[i - 1]] : order[i];
  }
  ParameterSets result;
  result.setOfRun.resize(runs);
  for (std::uint32_t run = 0; run < runs; ++run)
  {
    if (firstRun[run] == run)
    {
      result.setOfRun[run] = static_cast<std::uint32_t>(result.runsOfSet.size());
      result.runsOfSet.push_back(0);
    }
    result.setOfRun[run] = result.setOfRun[firstRun[run]];
    ++result.runsOfSet[result.setOfRun[run]];
  }
  return result;
}
} // namespace Talmesh::stats

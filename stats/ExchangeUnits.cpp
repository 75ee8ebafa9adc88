#include "stats/ExchangeUnits.h"

#include "stats/SaltelliDesign.h"

#include <limits>
#include <map>
#include <numeric>

namespace Talmesh::stats
{
namespace
{
using Numbers = std::vector<std::uint32_t>;

Numbers ascending(std::size_t count)
{
  Numbers numbers(count);
  std::iota(numbers.begin(), numbers.end(), 0U);
  return numbers;
}

ExchangeUnits singleRuns(std::size_t runs)
{
  ExchangeUnits units;
  units.cellOfRun = ascending(runs);
  units.runsOfCell.assign(runs, 1);
  units.firstCell = ascending(runs + 1);
  units.classes = {ascending(runs)};
  return units;
}

ExchangeUnits wholeSets(ParameterSets sets)
{
  ExchangeUnits units;
  units.kind = IndependentUnit::parameterSet;
  units.firstCell = ascending(sets.sets() + 1);
  std::map<std::uint32_t, Numbers> bySize;
  for (std::uint32_t set = 0; set < sets.sets(); ++set)
    bySize[sets.runsOfSet[set]].push_back(set);
  for (auto& [size, members] : bySize)
    units.classes.push_back(std::move(members));
  units.cellOfRun = std::move(sets.setOfRun);
  units.runsOfCell = std::move(sets.runsOfSet);
  return units;
}

/// @param sets the points of the design, as many runs each
ExchangeUnits baseSamples(const SaltelliDesign& design, const ParameterSets& sets)
{
  ExchangeUnits units;
  units.kind = IndependentUnit::baseSample;
  Numbers cellOfSet(sets.sets());
  for (std::size_t sample = 0; sample < design.baseSamples; ++sample)
  {
    units.firstCell.push_back(static_cast<std::uint32_t>(units.runsOfCell.size()));
    for (std::size_t position = 0; position < design.runsPerSample; ++position)
    {
      const std::size_t set = design.run(sample, position);
      cellOfSet[set] = static_cast<std::uint32_t>(units.runsOfCell.size());
      units.runsOfCell.push_back(sets.runsOfSet[set]);
    }
  }
  units.firstCell.push_back(static_cast<std::uint32_t>(units.runsOfCell.size()));
  units.classes = {ascending(design.baseSamples)};
  for (const std::uint32_t set : sets.setOfRun)
    units.cellOfRun.push_back(cellOfSet[set]);
  return units;
}

/// The parameters of the first run of each set.
ParameterColumns columnsOfSets(const ParameterColumns& columns, const ParameterSets& sets)
{
  ParameterColumns reduced(columns.size(), std::vector<double>(sets.sets()));
  for (std::size_t parameter = 0; parameter < columns.size(); ++parameter)
  {
    for (std::size_t run = 0; run < sets.setOfRun.size(); ++run)
      reduced[parameter][sets.setOfRun[run]] = columns[parameter][run];
  }
  return reduced;
}
} // namespace

std::size_t ExchangeUnits::runsOfUnit(std::size_t unit) const
{
  return std::accumulate(runsOfCell.begin() + firstCell[unit],
                         runsOfCell.begin() + firstCell[unit + 1], std::size_t{0});
}

double ExchangeUnits::arrangements() const
{
  double ways = 1.0;
  for (const Numbers& members : classes)
  {
    // 170! is the largest that a double holds.
    for (std::size_t count = 2; count <= members.size() && count <= 171; ++count)
      ways *= static_cast<double>(count);
  }
  return ways;
}

ExchangeUnits exchangeUnits(const ParameterColumns& columns)
{
  const std::size_t runs = runsIn(columns);
  if (const auto design = recogniseSaltelliDesign(columns))
  {
    // Points may coincide and are points of their own all the same.
    return baseSamples(*design, ParameterSets{ascending(runs), Numbers(runs, 1)});
  }
  ParameterSets sets = parameterSets(columns);
  if (!sets.replicated())
    return singleRuns(runs);
  if (sets.balanced())
  {
    if (const auto design = recogniseSaltelliDesign(columnsOfSets(columns, sets)))
      return baseSamples(*design, sets);
  }
  return wholeSets(std::move(sets));
}
} // namespace Talmesh::stats

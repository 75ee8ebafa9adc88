#include "stats/ExchangeUnits.h"

#include "stats/LinkedRuns.h"
#include "stats/SaltelliDesign.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>
#include <optional>

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

/// The runs, or sets of runs, of a group in the order in which they come.
ExchangeUnits linkedGroups(const Numbers& groupOfSet, const ParameterSets& sets)
{
  ExchangeUnits units;
  units.kind = IndependentUnit::linkedRuns;
  const std::size_t groups =
      *std::max_element(groupOfSet.begin(), groupOfSet.end()) + std::size_t{1};
  std::vector<Numbers> setsOfGroup(groups);
  for (std::uint32_t set = 0; set < groupOfSet.size(); ++set)
    setsOfGroup[groupOfSet[set]].push_back(set);
  Numbers cellOfSet(sets.sets());
  // Those with as many runs in each of as many sets may change places.
  std::map<Numbers, Numbers> alike;
  for (std::uint32_t group = 0; group < groups; ++group)
  {
    units.firstCell.push_back(static_cast<std::uint32_t>(units.runsOfCell.size()));
    Numbers shape;
    for (const std::uint32_t set : setsOfGroup[group])
    {
      cellOfSet[set] = static_cast<std::uint32_t>(units.runsOfCell.size());
      units.runsOfCell.push_back(sets.runsOfSet[set]);
      shape.push_back(sets.runsOfSet[set]);
    }
    alike[shape].push_back(group);
  }
  units.firstCell.push_back(static_cast<std::uint32_t>(units.runsOfCell.size()));
  for (auto& [shape, members] : alike)
    units.classes.push_back(std::move(members));
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

/// Nothing where their number is none of such a design.
std::optional<ExchangeUnits> knownBaseSamples(const ParameterColumns& columns,
                                              std::size_t parameters)
{
  const ParameterSets sets = parameterSets(columns);
  if (sets.replicated() && sets.balanced())
  {
    if (const auto design = namedSaltelliDesign(columnsOfSets(columns, sets), parameters))
      return baseSamples(*design, sets);
  }
  const std::size_t runs = runsIn(columns);
  if (const auto design = namedSaltelliDesign(columns, parameters))
    return baseSamples(*design, ParameterSets{ascending(runs), Numbers(runs, 1)});
  return std::nullopt;
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

ExchangeUnits partOfUnits(const ExchangeUnits& units, const std::vector<char>& isKept)
{
  constexpr std::uint32_t none = ~std::uint32_t{0};
  std::vector<char> keepsCell(units.runsOfCell.size(), 0);
  for (std::size_t run = 0; run < isKept.size(); ++run)
    if (isKept[run] != 0)
      keepsCell[units.cellOfRun[run]] = 1;
  ExchangeUnits part;
  part.kind = units.kind;
  part.contradictsDesign = units.contradictsDesign;
  Numbers cellNow(units.runsOfCell.size(), none);
  Numbers unitNow(units.units(), none);
  for (std::uint32_t unit = 0; unit < units.units(); ++unit)
  {
    if (keepsCell[units.firstCell[unit]] == 0)
      continue;
    unitNow[unit] = static_cast<std::uint32_t>(part.firstCell.size());
    part.firstCell.push_back(static_cast<std::uint32_t>(part.runsOfCell.size()));
    for (std::uint32_t cell = units.firstCell[unit]; cell < units.firstCell[unit + 1]; ++cell)
    {
      cellNow[cell] = static_cast<std::uint32_t>(part.runsOfCell.size());
      part.runsOfCell.push_back(units.runsOfCell[cell]);
    }
  }
  part.firstCell.push_back(static_cast<std::uint32_t>(part.runsOfCell.size()));
  for (const Numbers& members : units.classes)
  {
    Numbers kept;
    for (const std::uint32_t unit : members)
      if (unitNow[unit] != none)
        kept.push_back(unitNow[unit]);
    if (!kept.empty())
      part.classes.push_back(std::move(kept));
  }
  for (std::size_t run = 0; run < isKept.size(); ++run)
    if (isKept[run] != 0)
      part.cellOfRun.push_back(cellNow[units.cellOfRun[run]]);
  return part;
}

ExchangeUnits onlyCompared(ExchangeUnits units, const std::vector<char>& leftOut)
{
  // Else swaps with units of neither group would make the observed difference look rare.
  if (leftOut.empty())
    return units;
  std::vector<char> isCompared(units.runsOfCell.size(), 0);
  for (std::size_t run = 0; run < leftOut.size(); ++run)
    if (leftOut[run] == 0)
      isCompared[units.cellOfRun[run]] = 1;
  const auto hasNone = [&](std::uint32_t unit)
  {
    const auto first = isCompared.begin();
    return std::find(first + units.firstCell[unit], first + units.firstCell[unit + 1], 1) ==
           first + units.firstCell[unit + 1];
  };
  for (Numbers& members : units.classes)
    members.erase(std::remove_if(members.begin(), members.end(), hasNone), members.end());
  units.classes.erase(std::remove_if(units.classes.begin(), units.classes.end(),
                                     [](const Numbers& members) { return members.empty(); }),
                      units.classes.end());
  return units;
}

namespace
{
ExchangeUnits recognisedUnits(const ParameterColumns& columns)
{
  const std::size_t runs = runsIn(columns);
  if (const auto design = recogniseSaltelliDesign(columns))
  {
    // Points may coincide and are points of their own all the same.
    return baseSamples(*design, ParameterSets{ascending(runs), Numbers(runs, 1)});
  }
  ParameterSets sets = parameterSets(columns);
  const ParameterColumns points = sets.replicated() ? columnsOfSets(columns, sets) : columns;
  if (sets.replicated() && sets.balanced())
  {
    if (const auto design = recogniseSaltelliDesign(points))
      return baseSamples(*design, sets);
  }
  if (const auto groups = linkedRuns(points))
    return linkedGroups(*groups, sets);
  return sets.replicated() ? wholeSets(std::move(sets)) : singleRuns(runs);
}
} // namespace

ExchangeUnits exchangeUnits(const ParameterColumns& columns, const KnownDesign& known)
{
  if (known.isSaltelli)
    if (auto units = knownBaseSamples(columns, known.parameters))
      return *units;
  ExchangeUnits units = recognisedUnits(columns);
  units.contradictsDesign = known.isSaltelli;
  return units;
}
} // namespace Talmesh::stats

#include "stats/HalfComparison.h"

#include "stats/PortableRandom.h"
#include "stats/UnitComparison.h"

#include <stdexcept>

namespace Talmesh::stats
{
namespace
{
/// Unlike those of permutations, which count from 0.
constexpr std::uint64_t streamOfSplits = ~std::uint64_t{0};

/// Whether each run is in the second half.
std::vector<char> secondHalf(const ExchangeUnits& units, std::uint64_t seed)
{
  PortableRandom random(seed, streamOfSplits);
  std::vector<char> secondCell(units.runsOfCell.size(), 0);
  // Odd classes take turns, so that many of them leave the halves equal.
  bool more = false;
  for (std::vector<std::uint32_t> members : units.classes)
  {
    random.shuffle(members);
    const std::size_t first = (members.size() + (more ? 1 : 0)) / 2;
    more = more != (members.size() % 2 != 0);
    for (std::size_t i = first; i < members.size(); ++i)
      for (std::uint32_t cell = units.firstCell[members[i]]; cell < units.firstCell[members[i] + 1];
           ++cell)
        secondCell[cell] = 1;
  }
  std::vector<char> second;
  for (const std::uint32_t cell : units.cellOfRun)
    second.push_back(secondCell[cell]);
  return second;
}

template <class Value>
std::vector<Value> partOf(const std::vector<Value>& values, const std::vector<char>& second,
                          char which)
{
  std::vector<Value> part;
  for (std::size_t run = 0; run < values.size(); ++run)
    if (second[run] == which)
      part.push_back(values[run]);
  return part;
}

class HalfComparer
{
public:
  HalfComparer(const ParameterColumns& parameterColumns, const std::vector<char>& selectedRuns,
               const ComparisonPlan& comparisonPlan)
      : columns(parameterColumns)
      , selected(selectedRuns)
      , plan(comparisonPlan)
      , units(onlyCompared(exchangeUnits(parameterColumns, comparisonPlan.design),
                           comparisonPlan.leftOut))
      , second(secondHalf(units, comparisonPlan.seed))
  {
  }

  RunComparison compare(char half, std::vector<std::size_t> untested) const
  {
    ParameterColumns part;
    for (const std::vector<double>& column : columns)
      part.push_back(partOf(column, second, half));
    ComparisonPlan ofHalf = plan;
    ofHalf.untested = std::move(untested);
    if (!plan.leftOut.empty())
      ofHalf.leftOut = partOf(plan.leftOut, second, half);
    if (plan.progress)
      ofHalf.progress = [this, half](double done) { return plan.progress((half + done) / 2.0); };
    std::vector<char> isInHalf;
    for (const char inSecond : second)
      isInHalf.push_back(inSecond == half ? 1 : 0);
    return compareRunsIn(partOfUnits(units, isInHalf), part, partOf(selected, second, half),
                         ofHalf);
  }

  const std::vector<char>& secondRuns() const { return second; }

private:
  const ParameterColumns& columns;
  const std::vector<char>& selected;
  const ComparisonPlan& plan;
  ExchangeUnits units;
  std::vector<char> second;
};
} // namespace

HalfComparison compareHalves(const ParameterColumns& columns, const std::vector<char>& selected,
                             const ComparisonPlan& plan,
                             const std::function<bool(const ParameterComparison&)>& differs)
{
  if (columns.empty())
    return {};
  if (runsIn(columns) != selected.size())
    throw std::invalid_argument("a selection of another number of runs");
  if (!plan.leftOut.empty() && plan.leftOut.size() != selected.size())
    throw std::invalid_argument("runs left out of another number of runs");
  const HalfComparer halves(columns, selected, plan);
  HalfComparison result;
  result.explored = halves.compare(0, plan.untested);
  std::vector<std::size_t> untested;
  for (const ParameterComparison& row : result.explored.parameters)
    if (!differs(row))
      untested.push_back(row.parameter);
  result.tested = halves.compare(1, untested);
  result.isTested = halves.secondRuns();
  return result;
}
} // namespace Talmesh::stats

#include "app/comparison/ComparisonResults.h"

#include "stats/HalfComparison.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace Talmesh::app
{

namespace
{

using Positions = std::vector<std::size_t>;

bool isAmong(const Positions& positions, std::size_t position)
{
  return std::find(positions.begin(), positions.end(), position) != positions.end();
}

/// The parameters that have a value of each run and tell what was simulated. What changes within a
/// run, or numbers replicates, would tear apart what has equal parameters.
Positions usable(const ComparedStudy& study)
{
  Positions positions;
  for (std::size_t k = 0; k < study.columns.size(); ++k)
    if (!isAmong(study.changing, k) && !isAmong(study.labels, k))
      positions.push_back(k);
  return positions;
}

stats::ParameterColumns columnsOf(const ComparedStudy& study)
{
  stats::ParameterColumns columns;
  for (const std::size_t k : usable(study))
    columns.push_back(study.columns[k]);
  return columns;
}

stats::ComparisonPlan planOf(const ComparedStudy& study, const ComparisonChoice& choice)
{
  stats::ComparisonPlan plan;
  plan.comparedBy = choice.comparedBy;
  plan.adjustment = choice.adjustment;
  plan.seed = choice.seed;
  plan.design = choice.design;
  plan.leftOut = study.leftOut;
  const Positions positions = usable(study);
  for (std::size_t k = 0; k < positions.size(); ++k)
  {
    if (isAmong(study.chosenBy, positions[k]))
      plan.chosenBy.push_back(k);
    if (study.isCategory(positions[k]))
      plan.unordered.push_back(k);
  }
  return plan;
}

TestObstacle obstacleOf(stats::NotTested reason)
{
  switch (reason)
  {
  case stats::NotTested::emptyGroup:
    return TestObstacle::emptyGroup;
  case stats::NotTested::constant:
    return TestObstacle::constant;
  case stats::NotTested::chosenByParameter:
    return TestObstacle::chosenByParameter;
  case stats::NotTested::leftUntested:
    return TestObstacle::alikeInFirstHalf;
  case stats::NotTested::tooManyLevels:
    return TestObstacle::tooManyLevels;
  case stats::NotTested::tooFewUnits:
    return TestObstacle::tooFewUnits;
  case stats::NotTested::cancelled:
    return TestObstacle::cancelled;
  case stats::NotTested::tested:
    break;
  }
  return TestObstacle::none;
}

bool differs(const stats::ParameterComparison& row, const ComparisonChoice& choice)
{
  return row.adjusted <= choice.pThreshold && row.effect() >= choice.ksThreshold;
}

/// The text of a number; empty for none.
std::string levelOf(const ComparedStudy& study, std::size_t parameter, double number)
{
  if (!study.isCategory(parameter) || !(number >= 0.0))
    return {};
  const auto level = static_cast<std::size_t>(number);
  return level < study.levels[parameter].size() ? study.levels[parameter][level] : std::string();
}

Comparison comparisonOf(const ComparedStudy& study, const ComparisonChoice& choice,
                        const stats::RunComparison& results)
{
  Comparison comparison;
  comparison.state = Comparison::State::compared;
  comparison.units = results.units;
  comparison.seed = results.seed;
  comparison.permutations = results.permutations;
  comparison.sides = study.sides;
  comparison.inBoth = study.inBoth;
  comparison.uncounted = study.leftOut;
  for (std::size_t k = 0; k < study.names.size(); ++k)
    comparison.parameters.push_back(
        {study.names[k],
         {},
         isAmong(study.labels, k) ? TestObstacle::label : TestObstacle::changingValues,
         false,
         0,
         {}});
  const Positions positions = usable(study);
  for (std::size_t k = 0; k < results.parameters.size(); ++k)
  {
    ComparedParameter& row = comparison.parameters[positions[k]];
    row.result = results.parameters[k];
    row.obstacle = obstacleOf(row.result.reason);
    row.leading = levelOf(study, positions[k], row.result.leading);
  }
  for (std::size_t k = 0; k < comparison.parameters.size(); ++k)
    comparison.parameters[k].result.parameter = k;
  applyThresholds(comparison, choice);
  return comparison;
}

/// Missing values are equal, unlike 0 and -0.
bool areEqual(const std::vector<double>& one, const std::vector<double>& other)
{
  return one.size() == other.size() &&
         (one.empty() || std::memcmp(one.data(), other.data(), one.size() * sizeof(double)) == 0);
}

} // namespace

bool operator==(const ComparedStudy& one, const ComparedStudy& other)
{
  return one.names == other.names && one.changing == other.changing &&
         one.selected == other.selected && one.chosenBy == other.chosenBy &&
         one.leftOut == other.leftOut && one.inBoth == other.inBoth &&
         one.sides.selected == other.sides.selected && one.sides.others == other.sides.others &&
         one.byWords == other.byWords && one.labels == other.labels && one.levels == other.levels &&
         std::equal(one.columns.begin(), one.columns.end(), other.columns.begin(),
                    other.columns.end(), areEqual);
}

Comparison::State comparisonState(const ComparedStudy& study)
{
  using State = Comparison::State;
  if (study.names.empty() || study.selected.empty())
    return State::noParameters;
  bool hasSelected = false;
  bool hasOthers = false;
  for (std::size_t run = 0; run < study.selected.size(); ++run)
    if (study.leftOut.empty() || study.leftOut[run] == 0)
      (study.selected[run] != 0 ? hasSelected : hasOthers) = true;
  if (hasSelected && hasOthers)
    return State::compared;
  if (study.inBoth > 0)
    return State::onlyInBoth;
  return hasSelected ? State::noOthers : State::nothingSelected;
}

bool takesTime(const ComparedStudy& study, const ComparisonChoice& choice)
{
  return stats::takesTimeToCompare(columnsOf(study), study.selected, planOf(study, choice));
}

Comparison compare(const ComparedStudy& study, const ComparisonChoice& choice,
                   const std::function<bool(double)>& progress)
{
  const Comparison::State state = comparisonState(study);
  Comparison nothing;
  nothing.state = state;
  nothing.sides = study.sides;
  if (state != Comparison::State::compared)
    return nothing;
  stats::ComparisonPlan plan = planOf(study, choice);
  plan.progress = progress;
  if (!choice.halves)
    return comparisonOf(study, choice, stats::compareRuns(columnsOf(study), study.selected, plan));
  const stats::HalfComparison halves =
      stats::compareHalves(columnsOf(study), study.selected, plan,
                           [&choice](const auto& row) { return differs(row, choice); });
  Comparison comparison = comparisonOf(study, choice, halves.tested);
  comparison.halved = true;
  comparison.byWords = study.byWords;
  comparison.uncounted.resize(halves.isTested.size(), 0);
  for (std::size_t run = 0; run < halves.isTested.size(); ++run)
    if (halves.isTested[run] == 0)
      comparison.uncounted[run] = 1;
  comparison.seedOfHalves = plan.seed;
  for (ComparedParameter& parameter : comparison.parameters)
    parameter.seedOfHalf = plan.seed;
  return comparison;
}

Comparison describe(const ComparedStudy& study, const ComparisonChoice& choice, TestObstacle why)
{
  stats::ComparisonPlan plan = planOf(study, choice);
  plan.adjustment = stats::Adjustment::benjaminiHochberg;
  plan.untested.resize(study.columns.size());
  std::iota(plan.untested.begin(), plan.untested.end(), std::size_t{0});
  Comparison comparison =
      comparisonOf(study, choice, stats::compareRuns(columnsOf(study), study.selected, plan));
  for (ComparedParameter& row : comparison.parameters)
    if (row.obstacle == TestObstacle::alikeInFirstHalf)
      row.obstacle = why;
  comparison.pending = why == TestObstacle::pending;
  return comparison;
}

void applyThresholds(Comparison& comparison, const ComparisonChoice& choice)
{
  for (ComparedParameter& row : comparison.parameters)
    row.significant = differs(row.result, choice);
}

} // namespace Talmesh::app

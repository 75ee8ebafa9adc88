#include "stats/RunComparison.h"

#include "stats/AdjustedPValues.h"
#include "stats/ComparisonInput.h"
#include "stats/DescribedGroups.h"
#include "stats/ExchangeUnits.h"
#include "stats/GroupContrast.h"
#include "stats/LevelCounts.h"
#include "stats/ParallelParts.h"
#include "stats/RankStatistic.h"
#include "stats/SelectionPermutation.h"
#include "stats/UnitComparison.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <mutex>
#include <utility>

namespace Talmesh::stats
{
namespace
{
UnitSummary summaryOf(const ExchangeUnits& units)
{
  UnitSummary summary;
  summary.kind = units.kind;
  summary.contradictsDesign = units.contradictsDesign;
  for (const std::vector<std::uint32_t>& members : units.classes)
    for (const std::uint32_t unit : members)
    {
      const std::size_t runs = units.runsOfUnit(unit);
      summary.fewestRuns = summary.units == 0 ? runs : std::min(summary.fewestRuns, runs);
      summary.mostRuns = std::max(summary.mostRuns, runs);
      ++summary.units;
    }
  return summary;
}

/// The selected runs of each cell, but those that are left out, and the runs that are not.
CellGroups groupsOf(const ExchangeUnits& units, const std::vector<char>& selected,
                    const std::vector<char>& leftOut)
{
  if (leftOut.empty())
    return selectedOfCells(units, selected);
  std::vector<char> counted(selected);
  std::vector<char> inEither(selected.size());
  for (std::size_t run = 0; run < selected.size(); ++run)
  {
    inEither[run] = leftOut[run] == 0 ? 1 : 0;
    counted[run] = leftOut[run] == 0 ? selected[run] : 0;
  }
  return {selectedOfCells(units, counted), selectedOfCells(units, inEither)};
}

TestMethod permutedUnits(IndependentUnit unit)
{
  if (unit == IndependentUnit::run)
    return TestMethod::permutedRuns;
  if (unit == IndependentUnit::linkedRuns)
    return TestMethod::permutedLinkedRuns;
  return unit == IndependentUnit::baseSample ? TestMethod::permutedBaseSamples
                                             : TestMethod::permutedSets;
}

bool isAmong(const std::vector<std::size_t>& positions, std::size_t position)
{
  return std::find(positions.begin(), positions.end(), position) != positions.end();
}

class Comparer
{
public:
  Comparer(const ParameterColumns& parameterColumns, const std::vector<char>& selected,
           const ComparisonPlan& comparisonPlan, ExchangeUnits exchanged)
      : columns(parameterColumns)
      , plan(comparisonPlan)
      , units(onlyCompared(std::move(exchanged), comparisonPlan.leftOut))
      , groups(groupsOf(units, selected, comparisonPlan.leftOut))
  {
    result.units = summaryOf(units);
    result.parameters.resize(columns.size());
    isPermuted.assign(columns.size(), permutes() ? 1 : 0);
  }

  RunComparison run()
  {
    report(0.0);
    std::vector<RankedCells> ranked(columns.size());
    // Starting a thread takes longer than tests of few runs.
    const std::size_t atOnce = units.runs() < 1'000 ? columns.size() : 1;
    inParallelParts(columns.size(), atOnce,
                    [&](std::size_t first, std::size_t last)
                    {
                      for (std::size_t parameter = first; parameter < last && !cancelled;
                           ++parameter)
                        compareParameter(parameter, ranked[parameter]);
                    });
    if (plan.adjustment == Adjustment::maxT ||
        std::find(isPermuted.begin(), isPermuted.end(), 1) != isPermuted.end())
      permuteTested(ranked);
    if (cancelled)
      giveUp();
    else if (plan.adjustment != Adjustment::maxT)
      adjust();
    return std::move(result);
  }

private:
  bool permutes() const { return units.kind != IndependentUnit::run; }

  void compareParameter(std::size_t parameter, RankedCells& ranked)
  {
    const bool isOrdered = !isAmong(plan.unordered, parameter);
    ranked = RankedCells(units, columns[parameter], isOrdered);
    const TieBlocks blocks = ranked.blocks(groups);
    ParameterComparison row = isOrdered ? describedGroups(blocks, ranked.valuesOfBlocks(groups))
                                        : describedLevels(blocks, ranked.valuesOfBlocks(groups));
    row.parameter = parameter;
    row.comparedBy = isOrdered ? plan.comparedBy : ComparedBy::counts;
    row.adjustment = plan.adjustment;
    row.reason = obstacle(row);
    if (!permutes())
      testSingleRuns(blocks, row);
    result.parameters[parameter] = row;
    const double permuting = permutes() || plan.adjustment == Adjustment::maxT ? 0.1 : 1.0;
    report(permuting * static_cast<double>(++compared) / static_cast<double>(columns.size()));
  }

  void testSingleRuns(const TieBlocks& blocks, ParameterComparison& row)
  {
    if (!row.isUnordered)
      row.interval = distanceInterval(ksDistance(blocks), plan.confidence);
    if (row.reason != NotTested::tested)
      return;
    if (row.comparedBy == ComparedBy::counts && isPoorlyApproximated(blocks))
      isPermuted[row.parameter] = 1;
    else
      testIndependentRuns(row.comparedBy, blocks, row);
  }

  NotTested obstacle(const ParameterComparison& row) const
  {
    if (row.selected == 0 || row.others == 0)
      return NotTested::emptyGroup;
    if (row.levels < 2)
      return NotTested::constant;
    if (isAmong(plan.chosenBy, row.parameter))
      return NotTested::chosenByParameter;
    if (row.comparedBy == ComparedBy::counts && row.levels > mostLevels)
      return NotTested::tooManyLevels;
    if (permutes() && units.arrangements() < fewestArrangements)
      return NotTested::tooFewUnits;
    // Last: what could not be tested anyway has the better reason.
    if (isAmong(plan.untested, row.parameter))
      return NotTested::leftUntested;
    return NotTested::tested;
  }

  void permuteTested(std::vector<RankedCells>& ranked)
  {
    std::vector<std::size_t> tested;
    std::vector<RankedCells> parameters;
    std::vector<double> observed;
    for (std::size_t parameter = 0; parameter < columns.size(); ++parameter)
    {
      const bool takesPart = isPermuted[parameter] != 0 || plan.adjustment == Adjustment::maxT;
      if (result.parameters[parameter].reason != NotTested::tested || !takesPart)
        continue;
      tested.push_back(parameter);
      parameters.push_back(std::move(ranked[parameter]));
      observed.push_back(parameters.back().statistic(plan.comparedBy, groups));
    }
    if (tested.empty() || cancelled)
      return;
    const PermutationCounts counts = permuteSelection(units, parameters, groups, permutationPlan());
    cancelled = cancelled || counts.permutations == 0;
    if (cancelled)
      return;
    result.seed = plan.seed;
    result.permutations = counts.permutations;
    take(permutationP(counts), tested);
    if (plan.adjustment == Adjustment::maxT)
      takeAdjusted(maxTAdjusted(counts, observed), tested);
  }

  PermutationPlan permutationPlan()
  {
    PermutationPlan permutations;
    permutations.comparedBy = plan.comparedBy;
    permutations.permutations = std::max(plan.permutations, ComparisonPlan().permutations);
    permutations.seed = plan.seed;
    permutations.progress = [this](double part) { return report(0.1 + 0.9 * part); };
    return permutations;
  }

  void take(const std::vector<double>& p, const std::vector<std::size_t>& tested)
  {
    for (std::size_t i = 0; i < tested.size(); ++i)
    {
      ParameterComparison& row = result.parameters[tested[i]];
      if (isPermuted[tested[i]] == 0)
        continue;
      row.p = p[i];
      row.logP = std::log(p[i]);
      row.permutations = result.permutations;
      row.seed = plan.seed;
      row.method = permutedUnits(units.kind);
    }
  }

  /// An exact p may exceed one that is adjusted by permutations, which are random.
  void takeAdjusted(const std::vector<double>& adjusted, const std::vector<std::size_t>& tested)
  {
    for (std::size_t i = 0; i < tested.size(); ++i)
    {
      ParameterComparison& row = result.parameters[tested[i]];
      row.adjusted = std::max(adjusted[i], row.p);
      row.adjustingPermutations = result.permutations;
      row.seed = plan.seed;
    }
  }

  void adjust()
  {
    std::vector<double> p;
    for (const ParameterComparison& row : result.parameters)
      p.push_back(row.p);
    const std::vector<double> adjusted =
        plan.adjustment == Adjustment::holm ? holm(p) : benjaminiHochberg(p);
    for (std::size_t parameter = 0; parameter < adjusted.size(); ++parameter)
      result.parameters[parameter].adjusted = adjusted[parameter];
  }

  void giveUp()
  {
    result.cancelled = true;
    for (std::size_t parameter = 0; parameter < columns.size(); ++parameter)
    {
      result.parameters[parameter] = {};
      result.parameters[parameter].parameter = parameter;
      result.parameters[parameter].reason = NotTested::cancelled;
    }
  }

  bool report(double part)
  {
    const std::lock_guard<std::mutex> lock(access);
    if (plan.progress && !cancelled && !plan.progress(part))
      cancelled = true;
    return !cancelled;
  }

  const ParameterColumns& columns;
  const ComparisonPlan& plan;
  ExchangeUnits units;
  CellGroups groups;
  RunComparison result;
  /// Of each parameter, whether p comes from permutations.
  std::vector<char> isPermuted;
  std::atomic<std::size_t> compared{0};
  std::atomic<bool> cancelled{false};
  std::mutex access;
};
} // namespace

RunComparison compareRuns(const ParameterColumns& columns, const std::vector<char>& selected,
                          const ComparisonPlan& plan)
{
  checkComparedRuns(columns, selected, plan.leftOut);
  if (columns.empty())
    return {};
  return Comparer(columns, selected, plan, exchangeUnits(columns, plan.design)).run();
}

RunComparison compareRunsIn(const ExchangeUnits& units, const ParameterColumns& columns,
                            const std::vector<char>& selected, const ComparisonPlan& plan)
{
  return Comparer(columns, selected, plan, units).run();
}
} // namespace Talmesh::stats

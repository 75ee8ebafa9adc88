#include "stats/RunComparison.h"

#include "stats/ExchangeUnits.h"
#include "stats/FalseDiscovery.h"
#include "stats/FamilyWiseError.h"
#include "stats/GroupContrast.h"
#include "stats/LevelCounts.h"
#include "stats/MannWhitney.h"
#include "stats/ParallelParts.h"
#include "stats/Quantile.h"
#include "stats/RankStatistic.h"
#include "stats/SelectionPermutation.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <mutex>
#include <stdexcept>

namespace Talmesh::stats
{
namespace
{
UnitSummary summaryOf(const ExchangeUnits& units)
{
  UnitSummary summary;
  summary.kind = units.kind;
  summary.units = units.units();
  for (std::size_t unit = 0; unit < summary.units; ++unit)
  {
    const std::size_t runs = units.runsOfUnit(unit);
    summary.fewestRuns = unit == 0 ? runs : std::min(summary.fewestRuns, runs);
    summary.mostRuns = std::max(summary.mostRuns, runs);
  }
  return summary;
}

/// @param group the runs of a block that count
double medianOf(const TieBlocks& blocks, const std::vector<double>& values,
                std::uint64_t TieBlock::*group)
{
  std::vector<double> sorted;
  for (std::size_t block = 0; block < blocks.size(); ++block)
    sorted.insert(sorted.end(), blocks[block].*group, values[block]);
  return averagedQuantile(sorted, 0.5);
}

/// Everything but the test.
ParameterComparison described(const TieBlocks& blocks, const std::vector<double>& values)
{
  ParameterComparison row;
  const KsDistance distance = ksDistance(blocks);
  row.selected = distance.sizes.selected;
  row.others = distance.sizes.others;
  row.levels = blocks.size();
  row.distance = distance.distance();
  row.direction = directionOf(distance);
  row.superiority = probabilityOfSuperiority(blocks);
  row.medianDifference =
      medianOf(blocks, values, &TieBlock::selected) - medianOf(blocks, values, &TieBlock::others);
  return row;
}

/// The test of independent runs.
void testRuns(ComparedBy comparedBy, const TieBlocks& blocks, ParameterComparison& row)
{
  if (comparedBy == ComparedBy::distribution)
  {
    const KsTest test = tiedKsTest(blocks);
    row.p = test.p;
    row.method = test.exact ? TestMethod::exactDistribution : TestMethod::asymptoticDistribution;
  }
  else if (comparedBy == ComparedBy::rankSum)
  {
    const MannWhitneyTest test = mannWhitneyTest(blocks);
    row.p = test.p;
    row.method = test.exact ? TestMethod::exactRankSum : TestMethod::normalRankSum;
  }
  else
  {
    const CountsTest test = levelCountsTest(blocks);
    row.p = test.p;
    row.method = test.exact ? TestMethod::exactCounts : TestMethod::chiSquaredCounts;
  }
}

class Comparer
{
public:
  Comparer(const ParameterColumns& parameterColumns, const std::vector<char>& selected,
           const ComparisonPlan& comparisonPlan)
      : columns(parameterColumns)
      , plan(comparisonPlan)
      , units(exchangeUnits(parameterColumns))
      , selectedOfCell(selectedOfCells(units, selected))
  {
    result.units = summaryOf(units);
    result.parameters.resize(columns.size());
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
    if (permutes() || plan.adjustment == Adjustment::maxT)
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
    ranked = RankedCells(units, columns[parameter]);
    const TieBlocks blocks = ranked.blocks(selectedOfCell);
    ParameterComparison row = described(blocks, ranked.distinct());
    row.parameter = parameter;
    row.comparedBy = plan.comparedBy;
    row.reason = obstacle(row);
    if (!permutes())
    {
      row.interval = distanceInterval(ksDistance(blocks), plan.confidence);
      if (row.reason == NotTested::tested)
        testRuns(plan.comparedBy, blocks, row);
    }
    result.parameters[parameter] = row;
    const double permuting = permutes() || plan.adjustment == Adjustment::maxT ? 0.1 : 1.0;
    report(permuting * static_cast<double>(++compared) / static_cast<double>(columns.size()));
  }

  NotTested obstacle(const ParameterComparison& row) const
  {
    const auto isAmong = [&row](const std::vector<std::size_t>& parameters)
    { return std::find(parameters.begin(), parameters.end(), row.parameter) != parameters.end(); };
    if (row.selected == 0 || row.others == 0)
      return NotTested::emptyGroup;
    if (row.levels < 2)
      return NotTested::constant;
    if (isAmong(plan.chosenBy))
      return NotTested::chosenByParameter;
    if (isAmong(plan.untested))
      return NotTested::leftUntested;
    if (plan.comparedBy == ComparedBy::counts && row.levels > mostLevels)
      return NotTested::tooManyLevels;
    if (permutes() && units.arrangements() < fewestArrangements)
      return NotTested::tooFewUnits;
    return NotTested::tested;
  }

  void permuteTested(std::vector<RankedCells>& ranked)
  {
    std::vector<std::size_t> tested;
    std::vector<RankedCells> parameters;
    std::vector<double> observed;
    for (std::size_t parameter = 0; parameter < columns.size(); ++parameter)
    {
      if (result.parameters[parameter].reason != NotTested::tested)
        continue;
      tested.push_back(parameter);
      parameters.push_back(std::move(ranked[parameter]));
      observed.push_back(parameters.back().statistic(plan.comparedBy, selectedOfCell));
    }
    if (tested.empty() || cancelled)
      return;
    const PermutationCounts counts =
        permuteSelection(units, parameters, selectedOfCell, permutationPlan());
    cancelled = cancelled || counts.permutations == 0;
    if (cancelled)
      return;
    result.seed = plan.seed;
    result.permutations = counts.permutations;
    if (permutes())
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
      row.p = p[i];
      row.permutations = result.permutations;
      row.method = units.kind == IndependentUnit::baseSample ? TestMethod::permutedBaseSamples
                                                             : TestMethod::permutedSets;
    }
  }

  /// An exact p may exceed one that is adjusted by permutations, which are random.
  void takeAdjusted(const std::vector<double>& adjusted, const std::vector<std::size_t>& tested)
  {
    for (std::size_t i = 0; i < tested.size(); ++i)
    {
      ParameterComparison& row = result.parameters[tested[i]];
      row.adjusted = std::max(adjusted[i], row.p);
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
  std::vector<std::uint32_t> selectedOfCell;
  RunComparison result;
  std::atomic<std::size_t> compared{0};
  std::atomic<bool> cancelled{false};
  std::mutex access;
};
} // namespace

RunComparison compareRuns(const ParameterColumns& columns, const std::vector<char>& selected,
                          const ComparisonPlan& plan)
{
  if (!columns.empty() && runsIn(columns) != selected.size())
    throw std::invalid_argument("a selection of another number of runs");
  if (columns.empty())
    return {};
  return Comparer(columns, selected, plan).run();
}

bool takesTimeToCompare(const ParameterColumns& columns, const std::vector<char>& selected,
                        const ComparisonPlan& plan)
{
  /// Steps of the exact test's recursion, some 0.2 s on one core.
  constexpr double manySteps = 5e7;
  if (!columns.empty() && runsIn(columns) != selected.size())
    throw std::invalid_argument("a selection of another number of runs");
  if (plan.adjustment == Adjustment::maxT || exchangeUnits(columns).kind != IndependentUnit::run)
    return true;
  const auto first = static_cast<double>(
      std::count_if(selected.begin(), selected.end(), [](char run) { return run != 0; }));
  const double steps = first * (static_cast<double>(selected.size()) - first);
  return plan.comparedBy == ComparedBy::distribution &&
         steps <= static_cast<double>(largestExactKs) &&
         steps * static_cast<double>(columns.size()) > manySteps;
}
} // namespace Talmesh::stats

#include "stats/RankStatistic.h"

#include "stats/LevelCounts.h"
#include "stats/MannWhitney.h"
#include "stats/SmallTails.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace Talmesh::stats
{
namespace
{
using Cell = std::pair<double, std::uint32_t>;

std::vector<Cell> sortedCells(const ExchangeUnits& units, const std::vector<double>& column)
{
  std::vector<double> values(units.runsOfCell.size());
  for (std::size_t run = 0; run < column.size(); ++run)
    values[units.cellOfRun[run]] = column[run];
  std::vector<Cell> cells;
  for (std::uint32_t cell = 0; cell < values.size(); ++cell)
  {
    if (!std::isnan(values[cell]))
      cells.emplace_back(values[cell], cell);
  }
  std::sort(cells.begin(), cells.end());
  return cells;
}

/// Of any of the tests.
template <class Test>
void takeP(const Test& test, ParameterComparison& row)
{
  const double p = test.p > smallestSafeP ? test.p : std::exp(test.logP);
  row.p = std::max(p, std::numeric_limits<double>::min());
  row.logP = test.logP;
}
} // namespace

RankedCells::RankedCells(const ExchangeUnits& units, const std::vector<double>& column,
                         bool valuesAreOrdered)
    : isOrdered(valuesAreOrdered)
{
  std::uint64_t runs = 0;
  for (const auto& [value, cell] : sortedCells(units, column))
  {
    if (ends.empty() || distinctValues.back() != value)
    {
      distinctValues.push_back(value);
      ends.push_back(0);
      runsBelow.push_back(0);
    }
    cells.push_back(cell);
    runs += units.runsOfCell[cell];
    ends.back() = static_cast<std::uint32_t>(cells.size());
    runsBelow.back() = runs;
  }
}

std::uint64_t RankedCells::sumOver(const std::vector<std::uint32_t>& runsOfCell) const
{
  // Mostly no cell is left out, and memory is read in its order.
  if (cells.size() == runsOfCell.size())
    return std::accumulate(runsOfCell.begin(), runsOfCell.end(), std::uint64_t{0});
  std::uint64_t runs = 0;
  for (const std::uint32_t cell : cells)
    runs += runsOfCell[cell];
  return runs;
}

/// Calls visit(selected runs of the block, runs of the block, runs below the block) for each block
/// that has runs.
template <class Visit>
void RankedCells::visitBlocks(const CellGroups& groups, Visit visit) const
{
  const bool all = groups.inEither.empty();
  std::uint32_t next = 0;
  std::uint64_t below = 0;
  for (std::size_t block = 0; block < ends.size(); ++block)
  {
    const std::uint32_t first = next;
    std::uint64_t selected = 0;
    for (; next < ends[block]; ++next)
      selected += groups.selected[cells[next]];
    std::uint64_t runs = all ? runsBelow[block] - below : 0;
    for (std::uint32_t i = all ? next : first; i < next; ++i)
      runs += groups.inEither[cells[i]];
    if (runs > 0)
      visit(selected, runs, below);
    below += runs;
  }
}

TieBlocks RankedCells::blocks(const CellGroups& groups) const
{
  TieBlocks blocks;
  blocks.reserve(ends.size());
  visitBlocks(groups,
              [&blocks](std::uint64_t selected, std::uint64_t runs, std::uint64_t) {
                blocks.push_back({selected, runs - selected});
              });
  return blocks;
}

std::vector<double> RankedCells::valuesOfBlocks(const CellGroups& groups) const
{
  if (groups.inEither.empty())
    return distinctValues;
  std::vector<double> values;
  std::uint32_t next = 0;
  for (std::size_t block = 0; block < ends.size(); ++block)
  {
    std::uint64_t runs = 0;
    for (; next < ends[block]; ++next)
      runs += groups.inEither[cells[next]];
    if (runs > 0)
      values.push_back(distinctValues[block]);
  }
  return values;
}

double RankedCells::statistic(ComparedBy comparedBy, const CellGroups& groups) const
{
  const std::uint64_t ofAllCells = runsBelow.empty() ? 0 : runsBelow.back();
  const auto all =
      static_cast<std::int64_t>(groups.inEither.empty() ? ofAllCells : sumOver(groups.inEither));
  const auto m = static_cast<std::int64_t>(sumOver(groups.selected));
  if (m == 0 || m == all)
    return 0.0;
  const double pairs = static_cast<double>(m) * static_cast<double>(all - m);
  if (isOrdered && comparedBy == ComparedBy::distribution)
  {
    // i (m + n) - (i + j) m is i n - j m.
    std::int64_t soFar = 0;
    std::int64_t largest = 0;
    visitBlocks(groups,
                [&](std::uint64_t selected, std::uint64_t runs, std::uint64_t below)
                {
                  soFar += static_cast<std::int64_t>(selected);
                  const auto taken = static_cast<std::int64_t>(below + runs);
                  largest = std::max(largest, std::abs(soFar * all - taken * m));
                });
    return static_cast<double>(largest) / pairs;
  }
  if (isOrdered && comparedBy == ComparedBy::rankSum)
  {
    std::int64_t twiceRanks = 0;
    visitBlocks(groups,
                [&twiceRanks](std::uint64_t selected, std::uint64_t runs, std::uint64_t below)
                { twiceRanks += static_cast<std::int64_t>(selected * (2 * below + runs + 1)); });
    return static_cast<double>(std::abs(twiceRanks - m * (all + 1))) / pairs;
  }
  double chiSquared = 0.0;
  const double part = static_cast<double>(m) / static_cast<double>(all);
  visitBlocks(groups,
              [&](std::uint64_t selected, std::uint64_t runs, std::uint64_t)
              {
                const double expected = static_cast<double>(runs) * part;
                const double deviation = static_cast<double>(selected) - expected;
                chiSquared += deviation * deviation / (expected * (1.0 - part));
              });
  return comparedBy == ComparedBy::counts ? chiSquared
                                          : std::sqrt(chiSquared / static_cast<double>(all));
}

void testIndependentRuns(ComparedBy comparedBy, const TieBlocks& blocks, ParameterComparison& row)
{
  if (comparedBy == ComparedBy::distribution)
  {
    const KsTest test = tiedKsTest(blocks);
    takeP(test, row);
    row.method = test.exact ? TestMethod::exactDistribution : TestMethod::asymptoticDistribution;
  }
  else if (comparedBy == ComparedBy::rankSum)
  {
    const MannWhitneyTest test = mannWhitneyTest(blocks);
    takeP(test, row);
    row.method = test.exact ? TestMethod::exactRankSum : TestMethod::normalRankSum;
  }
  else
  {
    const CountsTest test = levelCountsTest(blocks);
    takeP(test, row);
    row.method = test.exact ? TestMethod::exactCounts : TestMethod::chiSquaredCounts;
  }
}
} // namespace Talmesh::stats

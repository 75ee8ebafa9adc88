#include "stats/RankStatistic.h"

#include <algorithm>
#include <cmath>
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
} // namespace

RankedCells::RankedCells(const ExchangeUnits& units, const std::vector<double>& column)
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

std::uint64_t RankedCells::selectedRuns(const std::vector<std::uint32_t>& selectedOfCell) const
{
  // Mostly no cell is left out, and memory is read in its order.
  if (cells.size() == selectedOfCell.size())
    return std::accumulate(selectedOfCell.begin(), selectedOfCell.end(), std::uint64_t{0});
  std::uint64_t selected = 0;
  for (const std::uint32_t cell : cells)
    selected += selectedOfCell[cell];
  return selected;
}

/// Calls visit(selected runs of the block, runs of the block, runs below the block).
template <class Visit>
void RankedCells::visitBlocks(const std::vector<std::uint32_t>& selectedOfCell, Visit visit) const
{
  std::uint32_t next = 0;
  std::uint64_t below = 0;
  for (std::size_t block = 0; block < ends.size(); ++block)
  {
    std::uint64_t selected = 0;
    for (; next < ends[block]; ++next)
      selected += selectedOfCell[cells[next]];
    visit(selected, runsBelow[block] - below, below);
    below = runsBelow[block];
  }
}

TieBlocks RankedCells::blocks(const std::vector<std::uint32_t>& selectedOfCell) const
{
  TieBlocks blocks;
  blocks.reserve(ends.size());
  visitBlocks(selectedOfCell,
              [&blocks](std::uint64_t selected, std::uint64_t runs, std::uint64_t) {
                blocks.push_back({selected, runs - selected});
              });
  return blocks;
}

double RankedCells::statistic(ComparedBy comparedBy,
                              const std::vector<std::uint32_t>& selectedOfCell) const
{
  const auto all = static_cast<std::int64_t>(runsBelow.empty() ? 0 : runsBelow.back());
  const auto m = static_cast<std::int64_t>(selectedRuns(selectedOfCell));
  if (m == 0 || m == all)
    return 0.0;
  const double pairs = static_cast<double>(m) * static_cast<double>(all - m);
  if (comparedBy == ComparedBy::distribution)
  {
    // i (m + n) - (i + j) m is i n - j m.
    std::int64_t soFar = 0;
    std::int64_t largest = 0;
    visitBlocks(selectedOfCell,
                [&](std::uint64_t selected, std::uint64_t runs, std::uint64_t below)
                {
                  soFar += static_cast<std::int64_t>(selected);
                  const auto taken = static_cast<std::int64_t>(below + runs);
                  largest = std::max(largest, std::abs(soFar * all - taken * m));
                });
    return static_cast<double>(largest) / pairs;
  }
  if (comparedBy == ComparedBy::rankSum)
  {
    std::int64_t twiceRanks = 0;
    visitBlocks(selectedOfCell,
                [&twiceRanks](std::uint64_t selected, std::uint64_t runs, std::uint64_t below)
                { twiceRanks += static_cast<std::int64_t>(selected * (2 * below + runs + 1)); });
    return static_cast<double>(std::abs(twiceRanks - m * (all + 1))) / pairs;
  }
  double chiSquared = 0.0;
  const double part = static_cast<double>(m) / static_cast<double>(all);
  visitBlocks(selectedOfCell,
              [&](std::uint64_t selected, std::uint64_t runs, std::uint64_t)
              {
                const double expected = static_cast<double>(runs) * part;
                const double deviation = static_cast<double>(selected) - expected;
                chiSquared += deviation * deviation / (expected * (1.0 - part));
              });
  return chiSquared;
}
} // namespace Talmesh::stats

#include "stats/RankStatistic.h"

#include "stats/LevelCounts.h"
#include "stats/MannWhitney.h"
#include "stats/PortableRandom.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::stats;

namespace
{
using Numbers = std::vector<std::uint32_t>;

/// 300 runs of 48 points in random order on 12 levels, a third selected.
struct Example
{
  Example()
  {
    PortableRandom random(11, 0);
    columns.resize(2);
    for (int run = 0; run < 300; ++run)
      columns[1].push_back(run % 48);
    random.shuffle(columns[1]);
    for (const double point : columns[1])
      columns[0].push_back(std::fmod(7.0 * point, 12.0) - 5.0);
    units = exchangeUnits(columns);
    selected.resize(units.runsOfCell.size());
    for (const std::uint32_t cell : units.cellOfRun)
    {
      const bool chosen = random.below(3) == 0;
      selected[cell] += chosen ? 1U : 0U;
      (chosen ? ofSelected : ofOthers).push_back(columns[0][chosenRun++]);
    }
  }

  ParameterColumns columns;
  ExchangeUnits units;
  Numbers selected;
  std::vector<double> ofSelected, ofOthers;
  std::size_t chosenRun = 0;
};
} // namespace

TEST(RankStatistic, CountsTheRunsOfEachValue)
{
  const Example example;
  const RankedCells cells(example.units, example.columns[0]);
  const TieBlocks blocks = cells.blocks(example.selected);
  const TieBlocks expected = tieBlocks(example.ofSelected, example.ofOthers);
  ASSERT_EQ(blocks.size(), expected.size());
  ASSERT_EQ(blocks.size(), 12U);
  for (std::size_t block = 0; block < blocks.size(); ++block)
  {
    EXPECT_EQ(blocks[block].selected, expected[block].selected);
    EXPECT_EQ(blocks[block].others, expected[block].others);
    EXPECT_EQ(cells.valuesOfBlocks({})[block], double(block) - 5.0);
  }
}

TEST(RankStatistic, IsThatOfTheTests)
{
  const Example example;
  for (const std::vector<double>& column : example.columns)
  {
    const RankedCells cells(example.units, column);
    const TieBlocks blocks = cells.blocks(example.selected);
    EXPECT_DOUBLE_EQ(cells.statistic(ComparedBy::distribution, example.selected),
                     ksDistance(blocks).distance());
    EXPECT_NEAR(cells.statistic(ComparedBy::counts, example.selected),
                chiSquaredTest(blocks).chiSquared, 1e-12);
    const GroupSizes sizes = groupSizes(blocks);
    const double superiority =
        mannWhitneyTest(blocks).pairs / double(sizes.selected * sizes.others);
    EXPECT_NEAR(cells.statistic(ComparedBy::rankSum, example.selected),
                std::abs(2.0 * superiority - 1.0), 1e-14);
  }
}

TEST(RankStatistic, LeavesOutRunsWithoutValue)
{
  const double missing = std::nan("");
  const ExchangeUnits units = exchangeUnits({{1, 2, 3, 4, 5}});
  const RankedCells cells(units, {3, missing, 1, 2, missing});
  EXPECT_EQ(cells.valuesOfBlocks({}), (std::vector<double>{1, 2, 3}));
  // Selected 1 and 3, others 2; the rest of the selection has no value.
  const Numbers selected{1, 1, 1, 0, 0};
  EXPECT_EQ(groupSizes(cells.blocks(selected)).runs(), 3U);
  EXPECT_DOUBLE_EQ(cells.statistic(ComparedBy::distribution, selected), 0.5);
  EXPECT_EQ(cells.statistic(ComparedBy::distribution, CellGroups({0, 1, 0, 0, 1})), 0.0);
  EXPECT_EQ(cells.statistic(ComparedBy::distribution, CellGroups({1, 0, 1, 1, 0})), 0.0);
}

#include "stats/GroupTests.h"

#include "stats/GroupContrast.h"
#include "stats/LevelCounts.h"
#include "stats/MannWhitney.h"
#include "stats/Quantile.h"
#include "stats/SmallTails.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace Talmesh::stats
{
namespace
{
/// @param group the runs of a block that count
double medianOf(const TieBlocks& blocks, const std::vector<double>& values,
                std::uint64_t TieBlock::*group)
{
  std::vector<double> sorted;
  for (std::size_t block = 0; block < blocks.size(); ++block)
    sorted.insert(sorted.end(), blocks[block].*group, values[block]);
  return averagedQuantile(sorted, 0.5);
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

ParameterComparison describedGroups(const TieBlocks& blocks, const std::vector<double>& values)
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

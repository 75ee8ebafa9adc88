#include "stats/DescribedGroups.h"

#include "stats/GroupContrast.h"
#include "stats/LevelCounts.h"
#include "stats/Quantile.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <cstdint>

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

ParameterComparison describedLevels(const TieBlocks& blocks, const std::vector<double>& values)
{
  ParameterComparison row;
  const GroupSizes sizes = groupSizes(blocks);
  row.isUnordered = true;
  row.selected = sizes.selected;
  row.others = sizes.others;
  row.levels = blocks.size();
  if (!sizes.bothPresent() || blocks.size() < 2)
    return row;
  row.association = cramersV(blocks);
  double largest = 0.0;
  for (std::size_t block = 0; block < blocks.size(); ++block)
  {
    const double excess =
        static_cast<double>(blocks[block].selected) / static_cast<double>(sizes.selected) -
        static_cast<double>(blocks[block].others) / static_cast<double>(sizes.others);
    if (excess <= largest)
      continue;
    largest = excess;
    row.leading = values[block];
  }
  return row;
}

} // namespace Talmesh::stats

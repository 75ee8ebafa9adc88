#include "stats/GroupContrast.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::stats
{
Direction directionOf(const KsDistance& distance)
{
  if (distance.steps() == 0)
    return Direction::none;
  if (std::min(distance.larger, distance.smaller) > distance.steps() / 2)
    return Direction::bothWays;
  return distance.larger > distance.smaller ? Direction::larger : Direction::smaller;
}

Interval distanceInterval(const KsDistance& distance, double confidence)
{
  if (!distance.sizes.bothPresent())
  {
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    return {notANumber, notANumber};
  }
  const double logarithm = std::log(4.0 / (1.0 - confidence)) / 2.0;
  const double margin = std::sqrt(logarithm / static_cast<double>(distance.sizes.selected)) +
                        std::sqrt(logarithm / static_cast<double>(distance.sizes.others));
  const double d = distance.distance();
  return {std::max(d - margin, 0.0), std::min(d + margin, 1.0)};
}

double probabilityOfSuperiority(const TieBlocks& blocks)
{
  const GroupSizes sizes = groupSizes(blocks);
  if (!sizes.bothPresent())
    return std::numeric_limits<double>::quiet_NaN();
  // Twice the number of pairs, so that ties count 1.
  std::uint64_t won = 0;
  std::uint64_t othersBelow = 0;
  for (const TieBlock& block : blocks)
  {
    won += block.selected * (2 * othersBelow + block.others);
    othersBelow += block.others;
  }
  return static_cast<double>(won) /
         (2.0 * static_cast<double>(sizes.selected) * static_cast<double>(sizes.others));
}
} // namespace Talmesh::stats

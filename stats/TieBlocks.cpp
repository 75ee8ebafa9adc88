#include "stats/TieBlocks.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace Talmesh::stats
{
namespace
{
void sortNumbers(std::vector<double>& values)
{
  if (std::any_of(values.begin(), values.end(), [](double value) { return std::isnan(value); }))
    throw std::invalid_argument("NaN has no place among sorted values");
  std::sort(values.begin(), values.end());
}

/// Moves `next` behind the values that equal `value`.
std::uint64_t countEqual(const std::vector<double>& sorted, std::size_t& next, double value)
{
  const std::size_t first = next;
  while (next < sorted.size() && sorted[next] == value)
    ++next;
  return next - first;
}
} // namespace

TieBlocks tieBlocks(std::vector<double> selected, std::vector<double> others)
{
  sortNumbers(selected);
  sortNumbers(others);
  TieBlocks blocks;
  std::size_t a = 0;
  std::size_t b = 0;
  while (a < selected.size() || b < others.size())
  {
    const bool fromSelected =
        b == others.size() || (a < selected.size() && selected[a] < others[b]);
    const double value = fromSelected ? selected[a] : others[b];
    TieBlock block;
    block.selected = countEqual(selected, a, value);
    block.others = countEqual(others, b, value);
    blocks.push_back(block);
  }
  return blocks;
}

GroupSizes groupSizes(const TieBlocks& blocks)
{
  GroupSizes sizes;
  for (const TieBlock& block : blocks)
  {
    sizes.selected += block.selected;
    sizes.others += block.others;
    if (block.selected > largestGroup || block.others > largestGroup ||
        sizes.selected > largestGroup || sizes.others > largestGroup)
      throw std::length_error("a group of more runs than can be compared");
  }
  return sizes;
}
} // namespace Talmesh::stats

#include "stats/MannWhitney.h"

#include "stats/SmallTails.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace Talmesh::stats
{
namespace
{
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

std::uint64_t sizeOf(const TieBlock& block)
{
  return block.selected + block.others;
}

double countPairs(const TieBlocks& blocks)
{
  std::uint64_t twice = 0;
  std::uint64_t othersBelow = 0;
  for (const TieBlock& block : blocks)
  {
    twice += block.selected * (2 * othersBelow + block.others);
    othersBelow += block.others;
  }
  return static_cast<double>(twice) / 2.0;
}

/// Whole numbers in the proportion of the ranks, ascending, one per run: twice the mean ranks, or
/// the ranks themselves where no two runs are tied.
struct RankUnits
{
  std::vector<std::uint64_t> ranks;
  /// Units of a whole rank.
  std::uint64_t perRank = 1;
};

RankUnits rankUnits(const TieBlocks& blocks, std::uint64_t runs)
{
  RankUnits units;
  units.perRank = blocks.size() < runs ? 2 : 1;
  units.ranks.reserve(runs);
  std::uint64_t below = 0;
  for (const TieBlock& block : blocks)
  {
    const std::uint64_t size = sizeOf(block);
    units.ranks.insert(units.ranks.end(), size, (2 * below + size + 1) * units.perRank / 2);
    below += size;
  }
  return units;
}

/// Numbers of ways to choose `chosen` of the ranks, by their sum. Ranks ascend.
std::vector<double> waysBySum(const std::vector<std::uint64_t>& ranks, std::uint64_t chosen,
                              std::uint64_t largestSum)
{
  const std::size_t width = largestSum + 1;
  std::vector<double> ways((chosen + 1) * width, 0.0);
  ways[0] = 1.0;
  std::uint64_t used = 0;
  for (const std::uint64_t rank : ranks)
  {
    ++used;
    for (std::uint64_t count = std::min(used, chosen); count > 0; --count)
    {
      double* to = ways.data() + count * width;
      const double* from = to - width;
      for (std::size_t sum = rank; sum < width; ++sum)
        to[sum] += from[sum - rank];
    }
  }
  return {ways.end() - static_cast<std::ptrdiff_t>(width), ways.end()};
}

std::uint64_t sumOfLargest(const std::vector<std::uint64_t>& ranks, std::uint64_t count)
{
  std::uint64_t sum = 0;
  for (std::uint64_t i = 0; i < count; ++i)
    sum += ranks[ranks.size() - 1 - i];
  return sum;
}

/// Nothing where the distribution is too large.
std::optional<double> exactP(const TieBlocks& blocks, const GroupSizes& sizes, double pairs)
{
  const std::uint64_t runs = sizes.runs();
  const std::uint64_t chosen = std::min(sizes.selected, sizes.others);
  // The smallest sum that this many ranks can have settles it before they are written down.
  if (chosen * chosen > largestExactMannWhitney / runs / chosen * 2)
    return std::nullopt;
  if (runs > largestExactMannWhitney / runs / chosen)
    return std::nullopt;
  const RankUnits units = rankUnits(blocks, runs);
  const std::uint64_t largestSum = sumOfLargest(units.ranks, chosen);
  if (largestSum > largestExactMannWhitney / (runs * chosen))
    return std::nullopt;
  const std::vector<double> ways = waysBySum(units.ranks, chosen, largestSum);
  // Twice the rank sum less its mean, which is the same for both groups but for the sign.
  const auto perRank = static_cast<double>(units.perRank);
  const double mean = static_cast<double>(chosen) * static_cast<double>(runs + 1) * perRank / 2.0;
  const double deviation = std::abs(pairs - static_cast<double>(sizes.selected) *
                                                static_cast<double>(sizes.others) / 2.0) *
                           perRank;
  double all = 0.0;
  double extreme = 0.0;
  for (std::size_t sum = 0; sum < ways.size(); ++sum)
  {
    all += ways[sum];
    if (std::abs(static_cast<double>(sum) - mean) >= deviation)
      extreme += ways[sum];
  }
  return std::min(extreme / all, 1.0);
}

/// What the complementary error function is asked for.
double normalDeviate(const TieBlocks& blocks, const GroupSizes& sizes, double pairs)
{
  const auto m = static_cast<double>(sizes.selected);
  const auto n = static_cast<double>(sizes.others);
  double ties = 0.0;
  for (const TieBlock& block : blocks)
  {
    const auto size = static_cast<double>(sizeOf(block));
    ties += size * (size * size - 1.0);
  }
  const double variance = m * n / 12.0 * (m + n + 1.0 - ties / ((m + n) * (m + n - 1.0)));
  const double deviation = std::max(std::abs(pairs - m * n / 2.0) - 0.5, 0.0);
  return deviation / std::sqrt(2.0 * variance);
}
} // namespace

MannWhitneyTest mannWhitneyTest(const TieBlocks& blocks)
{
  MannWhitneyTest test = normalMannWhitneyTest(blocks);
  if (std::isnan(test.p))
    return test;
  if (const auto p = exactP(blocks, groupSizes(blocks), test.pairs))
  {
    test.p = *p;
    test.logP = std::log(*p);
    test.exact = true;
  }
  return test;
}

MannWhitneyTest normalMannWhitneyTest(const TieBlocks& blocks)
{
  const GroupSizes sizes = groupSizes(blocks);
  MannWhitneyTest test;
  test.exact = false;
  test.pairs = countPairs(blocks);
  const double deviate = sizes.bothPresent() && blocks.size() > 1
                             ? normalDeviate(blocks, sizes, test.pairs)
                             : notANumber;
  test.p = std::erfc(deviate);
  test.logP = std::isnan(deviate) ? deviate : logErfc(deviate);
  return test;
}
} // namespace Talmesh::stats

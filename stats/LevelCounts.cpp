#include "stats/LevelCounts.h"

#include "stats/SmallTails.h"

#include <boost/math/special_functions/gamma.hpp>

#include <algorithm>
#include <cmath>
#include <limits>
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

/// log of n! up to a number of runs. The standard's function may write to a global variable.
std::vector<double> logFactorials(std::uint64_t largest)
{
  std::vector<double> logs(largest + 1, 0.0);
  for (std::uint64_t n = 2; n <= largest; ++n)
    logs[n] = boost::math::lgamma(static_cast<double>(n) + 1.0);
  return logs;
}

/// Adds up the tables with the sums of a given one, level by level.
class TableEnumeration
{
public:
  TableEnumeration(const TieBlocks& levels, const GroupSizes& sizes)
      : blocks(levels)
      , logs(logFactorials(sizes.runs()))
      , runsBehind(levels.size() + 1, 0)
      , chosen(sizes.selected)
      , logAll(logWays(sizes.runs(), sizes.selected))
  {
    for (std::size_t level = blocks.size(); level > 0; --level)
      runsBehind[level - 1] = runsBehind[level] + sizeOf(blocks[level - 1]);
    for (const TieBlock& block : blocks)
      given += logWays(sizeOf(block), block.selected);
  }

  double logP()
  {
    visit(0, chosen, 0.0);
    return std::min(std::log(extreme) + given - logAll, 0.0);
  }

private:
  double logWays(std::uint64_t size, std::uint64_t selected) const
  {
    return logs[size] - logs[selected] - logs[size - selected];
  }

  /// `left` selected runs are to be given to this level and those behind it.
  void visit(std::size_t level, std::uint64_t left, double logSoFar)
  {
    const std::uint64_t size = sizeOf(blocks[level]);
    const std::uint64_t behind = runsBehind[level + 1];
    const std::uint64_t most = std::min(size, left);
    for (std::uint64_t selected = left > behind ? left - behind : 0; selected <= most; ++selected)
    {
      const double log = logSoFar + logWays(size, selected);
      if (level + 1 < blocks.size())
        visit(level + 1, left - selected, log);
      else if (log <= given + 1e-7)
        extreme += std::exp(log - given);
    }
  }

  const TieBlocks& blocks;
  std::vector<double> logs;
  std::vector<std::uint64_t> runsBehind;
  std::uint64_t chosen = 0;
  double logAll = 0.0;
  double given = 0.0;
  /// In units of the probability of the given table.
  double extreme = 0.0;
};

bool isTable(const TieBlocks& blocks, const GroupSizes& sizes)
{
  return sizes.bothPresent() && blocks.size() > 1 && blocks.size() <= mostLevels;
}
} // namespace

double tablesWithSumsOf(const TieBlocks& blocks)
{
  if (blocks.size() > mostLevels)
    return std::numeric_limits<double>::infinity();
  const GroupSizes sizes = groupSizes(blocks);
  const std::uint64_t chosen = std::min(sizes.selected, sizes.others);
  // Of the levels so far, with 0, 1, ... selected runs.
  std::vector<double> tables(chosen + 1, 0.0);
  tables[0] = 1.0;
  std::vector<double> next(tables.size());
  for (const TieBlock& block : blocks)
  {
    double window = 0.0;
    for (std::uint64_t count = 0; count <= chosen; ++count)
    {
      window += tables[count];
      if (count > sizeOf(block))
        window -= tables[count - sizeOf(block) - 1];
      next[count] = window;
    }
    tables.swap(next);
  }
  return tables[chosen];
}

CountsTest chiSquaredTest(const TieBlocks& blocks)
{
  const GroupSizes sizes = groupSizes(blocks);
  CountsTest test;
  test.exact = false;
  if (!isTable(blocks, sizes))
  {
    test.chiSquared = notANumber;
    test.p = notANumber;
    test.logP = notANumber;
    return test;
  }
  const double part = static_cast<double>(sizes.selected) / static_cast<double>(sizes.runs());
  for (const TieBlock& block : blocks)
  {
    const auto size = static_cast<double>(sizeOf(block));
    const double deviation = static_cast<double>(block.selected) - size * part;
    test.chiSquared += deviation * deviation / (size * part * (1.0 - part));
  }
  const double halfFreedom = static_cast<double>(blocks.size() - 1) / 2.0;
  test.p = boost::math::gamma_q(halfFreedom, test.chiSquared / 2.0);
  test.logP = logGammaQ(halfFreedom, test.chiSquared / 2.0);
  return test;
}

double cramersV(const TieBlocks& blocks)
{
  const double runs = static_cast<double>(groupSizes(blocks).runs());
  return std::min(std::sqrt(chiSquaredTest(blocks).chiSquared / runs), 1.0);
}

double leastExpectedCount(const TieBlocks& blocks)
{
  const GroupSizes sizes = groupSizes(blocks);
  const auto smaller = static_cast<double>(std::min(sizes.selected, sizes.others));
  double least = std::numeric_limits<double>::infinity();
  for (const TieBlock& block : blocks)
    least = std::min(least, static_cast<double>(sizeOf(block)) * smaller /
                                static_cast<double>(sizes.runs()));
  return least;
}

bool isPoorlyApproximated(const TieBlocks& blocks)
{
  return isTable(blocks, groupSizes(blocks)) && leastExpectedCount(blocks) < fewExpected &&
         tablesWithSumsOf(blocks) > largestExactCounts;
}

CountsTest levelCountsTest(const TieBlocks& blocks)
{
  CountsTest test = chiSquaredTest(blocks);
  const GroupSizes sizes = groupSizes(blocks);
  if (!isTable(blocks, sizes) || tablesWithSumsOf(blocks) > largestExactCounts)
    return test;
  test.logP = TableEnumeration(blocks, sizes).logP();
  test.p = std::exp(test.logP);
  test.exact = true;
  return test;
}
} // namespace Talmesh::stats

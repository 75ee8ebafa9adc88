#include "stats/RankedSamples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <utility>
#include <vector>

using namespace Talmesh::stats;
using namespace RankedSamples;

namespace
{
/// Lists and bounds of every kind: short, long, tied, constant, with infinities and NaN, or
/// missing.
class ParameterSource
{
public:
  std::optional<List> list()
  {
    if (pick(12) == 0)
    {
      return std::nullopt;
    }
    const std::size_t sizes[] = {0, 1, 2, 10, 11, 60, 399, 400, 801, 1300};
    List column(sizes[pick(10)]);
    const unsigned kind = pick(6);
    std::generate(column.begin(), column.end(), [&] { return draw(kind); });
    const auto valueAt = [&column](std::size_t row) { return column[row]; };
    return pick(2) == 0 ? distinctValues(column.size(), valueAt)
                        : thinnedValues(column.size(), static_cast<int>(pick(4)) - 1, valueAt);
  }

  std::pair<double, double> bounds()
  {
    const double lower[] = {0.0, -2.0, -4.0, -infinity, notANumber, 3.0};
    const double upper[] = {0.0, 3.0, 8.0, infinity, notANumber, -2.0};
    return {lower[pick(6)], upper[pick(6)]};
  }

  unsigned pick(unsigned choices) { return static_cast<unsigned>(generator()) % choices; }

private:
  double draw(unsigned kind)
  {
    switch (kind)
    {
    case 0:
      return pick(4);
    case 1:
      return -2.0;
    case 2:
      return pick(9) == 0 ? (pick(2) == 0 ? infinity : -infinity) : normal(generator);
    case 3:
      return pick(9) == 0 ? notANumber : normal(generator);
    case 4:
      return 1e308 * normal(generator);
    default:
      return normal(generator);
    }
  }

  std::mt19937 generator{99};
  std::normal_distribution<double> normal;
};

/// The density itself does not matter here, only what it is asked for.
void plainKernel(List& sources, List& targets, double bandwidth, List& density)
{
  ASSERT_GE(sources.size(), 2 * smallestKernelSample);
  ASSERT_LE(sources.size(), 3u * 799u);
  ASSERT_EQ(targets.size(), densityLocations);
  ASSERT_EQ(density.size(), densityLocations);
  ASSERT_GT(bandwidth, 0.0);
  std::fill(density.begin(), density.end(), 1.0);
}

void checkParameter(const RankedParameter& parameter, std::size_t positions)
{
  ASSERT_EQ(parameter.ranks.size(), positions);
  ASSERT_EQ(parameter.sortedValues.size(), positions);
  ASSERT_EQ(parameter.densities.size(), densityLocations);
  ASSERT_EQ(parameter.locations.size(), densityLocations);
  ASSERT_TRUE(std::is_sorted(parameter.ranks.begin(), parameter.ranks.end()));
  for (double rank : parameter.ranks)
  {
    ASSERT_TRUE(rank >= 0.0 && rank <= 1.0);
  }
  if (positions > 0)
  {
    ASSERT_EQ(parameter.ranks[positions - 1], 1.0);
  }
}
} // namespace

TEST(RankedParameterRandom, KeepsItsShapesForAnyValuesAndBounds)
{
  ParameterSource source;
  for (int trial = 0; trial < 2000; ++trial)
  {
    std::vector<std::optional<List>> lists(source.pick(4));
    std::vector<std::pair<double, double>> bounds(source.pick(5) == 0 ? 1 : lists.size());
    std::generate(lists.begin(), lists.end(), [&] { return source.list(); });
    std::generate(bounds.begin(), bounds.end(), [&] { return source.bounds(); });
    std::size_t longest = 0;
    for (const auto& list : lists)
    {
      longest = std::max(longest, list ? list->size() : 0);
    }

    const RankedParameters result = rankParameters(lists, bounds, plainKernel);
    ASSERT_EQ(result.positions, longest);
    ASSERT_EQ(result.parameters.size(), lists.size());
    ASSERT_EQ(result.boundsIgnored, lists.size() != bounds.size());
    for (std::size_t k = 0; k < lists.size(); ++k)
    {
      ASSERT_EQ(result.parameters[k].has_value(), lists[k].has_value());
      if (lists[k])
      {
        ASSERT_EQ(result.parameters[k]->valueCount, lists[k]->size());
        checkParameter(*result.parameters[k], longest);
      }
    }
  }
}

TEST(RankedRandom, DistinctValuesAreThoseOfASetHoweverTheyRepeat)
{
  std::mt19937 generator(5);
  for (int round = 0; round < 300; ++round)
  {
    List column;
    const std::size_t runs = generator() % 40;
    const std::size_t most = 1 + generator() % 70;
    for (std::size_t run = 0; run < runs; ++run)
    {
      const double value = generator() % 6 == 0 ? notANumber : 0.1 * (generator() % 25);
      column.insert(column.end(), 1 + generator() % most, value);
    }
    if (!column.empty() && generator() % 2 == 0)
      column[generator() % column.size()] = -1.0;
    std::set<double> expected;
    for (const double value : column)
    {
      if (!std::isnan(value))
        expected.insert(value);
    }
    const List values(expected.begin(), expected.end());
    EXPECT_EQ(distinctValues(column.data(), column.size()), values);
    EXPECT_EQ(distinctValues(column.size(), [&](std::size_t row) { return column[row]; }), values);
  }
}

#include "stats/ShapeClusters.h"

#include "stats/ParallelParts.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <vector>

using namespace Talmesh::stats;

namespace
{

using Values = std::vector<double>;
using Numbers = std::vector<int>;

Observations rowsOf(const Values& values, std::size_t positions)
{
  return {values.data(), values.size() / positions, positions};
}

Numbers cluster(const Values& values, std::size_t positions, std::size_t clusters)
{
  const Observations rows = rowsOf(values, positions);
  return closestCentres(rows, findClusters(rows, clusters, {}).values).cluster;
}

TEST(ShapeClusters, KeepSteadyRunsTogetherWhateverTheirRoundingNoise)
{
  Values values;
  for (int run = 0; run < 8; ++run)
  {
    for (int point = 0; point < 20; ++point)
      values.push_back((1.0 + 0.1 * run) * (1.0 + 1e-16 * ((7 * run + 3 * point) % 5)));
  }
  for (int run = 0; run < 4; ++run)
  {
    for (int point = 0; point < 20; ++point)
      values.push_back(std::sin(point + run % 2 * 1.5));
  }
  EXPECT_EQ(cluster(values, 20, 3), (Numbers{0, 0, 0, 0, 0, 0, 0, 0, 1, 2, 1, 2}));
}

TEST(ShapeClusters, BeginWithTheFirstRunsOfDifferentShape)
{
  // The first two rise alike: as first centres they would leave the second cluster to chance.
  const Values values = {1, 2, 3, 5, 2, 4, 6, 10, 4, 3, 2, 0, 3, 5, 7, 11, 9, 6, 3, -3};
  EXPECT_EQ(cluster(values, 4, 2), (Numbers{0, 0, 1, 0, 1}));
  const ClusterCentres centres = findClusters(rowsOf(values, 4), 5, {});
  EXPECT_EQ(centres.clusters, 2U) << "no more clusters than shapes";
  EXPECT_EQ(centres.members, (std::vector<std::size_t>{3, 2}));
}

TEST(ShapeClusters, CentresAreTheMeansOfTheMembers)
{
  const ClusterCentres centres =
      findClusters(rowsOf({1, 2, 3, 3, 2, 1, 2, 4, 6, 9, 6, 3}, 3), 2, {});
  EXPECT_EQ(centres.values, (Values{1.5, 3, 4.5, 6, 4, 2}));
  EXPECT_NEAR(centres.errors[0] + centres.errors[1], 0.0, 1e-14);
}

TEST(ShapeClusters, LeaveRunsThatAreNotFiniteOutOfCentres)
{
  const double nan = std::nan("");
  const Values values = {nan, 2, 3, 1, 2, 4,
                         3,   2, 0, 1, 3, std::numeric_limits<double>::infinity()};
  const ClusterCentres centres = findClusters(rowsOf(values, 3), 2, {});
  EXPECT_EQ(centres.members, (std::vector<std::size_t>{3, 1}));
  EXPECT_NEAR(centres.values[2], 4.0 / 3.0, 1e-15) << "they count as zeros";
  const ClusterCentres none = findClusters(rowsOf({nan, nan, nan, nan}, 2), 2, {});
  EXPECT_EQ(none.clusters, 1U);
}

TEST(ShapeClusters, HoldForImmenseAndTinyValues)
{
  EXPECT_EQ(
      cluster({1e308, 1.5e308, 1e308, 1.7e308, 1e308, 1e308, 1.1e308, 1.6e308, 1.1e308}, 3, 2),
      (Numbers{0, 1, 0}));
  EXPECT_EQ(cluster({1e-310, 2e-310, 1e-310, 2e-310, 1e-310, 1e-310, 1e-310, 3e-310, 1e-310}, 3, 2),
            (Numbers{0, 1, 0}));
  const ClusterCentres centres = findClusters(rowsOf({1e308, -1e308, 1.6e308, -1.6e308}, 2), 1, {});
  EXPECT_EQ(centres.values, (Values{1.3e308, -1.3e308}));
}

TEST(ShapeClusters, EndAtTheGivenNumberOfAssignments)
{
  Values values;
  for (int i = 0; i < 40 * 5; ++i)
    values.push_back(std::sin(1.7 * i * i));
  EXPECT_EQ(findClusters(rowsOf(values, 5), 4, {0.0, 3}).iterations, 3);
  EXPECT_EQ(findClusters(rowsOf(values, 5), 4, {2.0, 50}).iterations, 1);
}

TEST(ShapeClusters, TellHowFarTheyAreAndEndWhenTheyAreNotWanted)
{
  Values values;
  for (int i = 0; i < 40 * 5; ++i)
    values.push_back(std::sin(1.7 * i * i));
  Values parts;
  const auto goOn = [&parts](double done)
  {
    parts.push_back(done);
    return parts.size() < 2;
  };
  EXPECT_EQ(findClusters(rowsOf(values, 5), 4, {0.0, 4}, goOn).iterations, 2);
  EXPECT_EQ(parts, (Values{0.25, 0.5}));
}

TEST(ParallelParts, CoverEveryItemOnce)
{
  for (const std::size_t count : {0U, 1U, 7U, 8U, 1000U})
  {
    std::vector<std::atomic<int>> visits(count);
    inParallelParts(count, 8,
                    [&](std::size_t first, std::size_t last)
                    {
                      EXPECT_EQ(first % 8, 0U);
                      for (std::size_t i = first; i < last; ++i)
                        ++visits[i];
                    });
    for (const auto& visit : visits)
      EXPECT_EQ(visit, 1);
  }
}

TEST(ParallelParts, HandAFailureToTheCaller)
{
  EXPECT_THROW(inParallelParts(100, 1,
                               [](std::size_t first, std::size_t)
                               {
                                 if (first == 42)
                                   throw std::overflow_error("42");
                               }),
               std::overflow_error);
}

} // namespace

#include "stats/ParameterSets.h"

#include "stats/PortableRandom.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

using namespace Talmesh::stats;

namespace
{
using Numbers = std::vector<std::uint32_t>;
const double missing = std::nan("");
} // namespace

TEST(ParameterSets, AreNumberedByTheirFirstRuns)
{
  const ParameterSets sets = parameterSets({{5, 1, 5, 1, 5}, {2, 2, 2, 3, 2}});
  EXPECT_EQ(sets.setOfRun, (Numbers{0, 1, 0, 2, 0}));
  EXPECT_EQ(sets.runsOfSet, (Numbers{3, 1, 1}));
  EXPECT_TRUE(sets.replicated());
  EXPECT_FALSE(sets.balanced());
}

TEST(ParameterSets, TellOneDifferingParameter)
{
  const ParameterSets sets = parameterSets({{1, 1, 1}, {2, 2, 2}, {3, 3, std::nextafter(3, 4)}});
  EXPECT_EQ(sets.setOfRun, (Numbers{0, 0, 1}));
  EXPECT_FALSE(parameterSets({{1, 2, 3}, {1, 1, 1}}).replicated());
  EXPECT_TRUE(parameterSets({{1, 2, 1, 2}}).balanced());
}

TEST(ParameterSets, CountBothZerosAsOneAndMissingValuesAsEqual)
{
  EXPECT_EQ(parameterSets({{0.0, -0.0, missing, -missing, 1.0}}).setOfRun,
            (Numbers{0, 0, 1, 1, 2}));
  EXPECT_EQ(parameterSets({{missing, missing, missing}, {1, 2, 1}}).setOfRun, (Numbers{0, 1, 0}));
}

TEST(ParameterSets, FindShuffledReplicates)
{
  PortableRandom random(7, 0);
  std::vector<double> points;
  for (int run = 0; run < 600; ++run)
    points.push_back(run % 40);
  random.shuffle(points);
  std::vector<double> halves;
  for (const double point : points)
    halves.push_back(std::floor(point / 2));
  const ParameterSets sets = parameterSets({halves, points});
  ASSERT_EQ(sets.sets(), 40U);
  EXPECT_TRUE(sets.balanced());
  for (std::size_t a = 0; a < points.size(); ++a)
    EXPECT_EQ(sets.setOfRun[a] == sets.setOfRun[0], points[a] == points[0]) << a;
}

TEST(ParameterSets, CheckTheirColumns)
{
  EXPECT_EQ(runsIn({}), 0U);
  EXPECT_EQ(parameterSets({}).sets(), 0U);
  EXPECT_EQ(parameterSets({{}, {}}).sets(), 0U);
  EXPECT_THROW(parameterSets({{1, 2}, {1}}), std::invalid_argument);
}

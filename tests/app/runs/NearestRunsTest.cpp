#include "app/runs/NearestRuns.h"

#include <gtest/gtest.h>

#include <limits>

using Talmesh::app::nearestRuns;

namespace
{

using Places = std::vector<std::size_t>;
constexpr double none = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(NearestRuns, AreThoseWithTheSmallestDifferencesInSpreads)
{
  // Spreads (population) of 0, 1, 2, 10 and of 0, 100, 0, 0: 3.90 and 43.3. Run 1 differs from run
  // 0 by 1 / 3.90 and 100 / 43.3, run 2 by 2 / 3.90, run 3 by 10 / 3.90.
  EXPECT_EQ(nearestRuns({{0, 1, 2, 10}, {0, 100, 0, 0}}, 0, 3), (Places{2, 1, 3}));
}

TEST(NearestRuns, DoNotDependOnUnits)
{
  const std::vector<std::vector<double>> features{{1, 4, 2, 8, 5}, {7, 1, 8, 2, 8}};
  std::vector<std::vector<double>> others = features;
  for (double& value : others[1])
    value = value * -1e9 + 3e9;
  for (std::size_t run = 0; run < 5; ++run)
    EXPECT_EQ(nearestRuns(features, run, 4), nearestRuns(others, run, 4)) << run;
}

TEST(NearestRuns, ComeInTheirOrderWhereTheyAreAsNear)
{
  EXPECT_EQ(nearestRuns({{5, 6, 4, 6, 5}}, 0, 9), (Places{4, 1, 2, 3}));
}

TEST(NearestRuns, AreComparedByWhatBothHave)
{
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(nearestRuns({{0, none, 5, 1}, {0, 1, infinity, 9}}, 0, 2), (Places{1, 3}))
      << "by one feature, by both";
  EXPECT_EQ(nearestRuns({{0, none, 5}}, 0, 5), Places{2}) << "none in common with run 1";
  EXPECT_EQ(nearestRuns({{none, 1, 5}}, 0, 5), Places{});
}

TEST(NearestRuns, AreNoneWhereNothingTellsRunsApart)
{
  EXPECT_EQ(nearestRuns({{3, 3, 3}}, 0, 5), Places{});
  EXPECT_EQ(nearestRuns({}, 0, 5), Places{});
  EXPECT_EQ(nearestRuns({{3}}, 0, 5), Places{});
}

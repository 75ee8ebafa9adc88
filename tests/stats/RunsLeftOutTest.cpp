#include "stats/HalfComparison.h"
#include "stats/PortableRandom.h"
#include "stats/RunComparison.h"
#include "stats/SimulatedStudies.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <stdexcept>

using namespace Talmesh::stats;

namespace
{
struct Subset
{
  ParameterColumns columns;
  std::vector<char> selected;
};

Subset withoutThose(const SimulatedStudy& study, const std::vector<char>& leftOut)
{
  Subset subset;
  subset.columns.resize(study.columns.size());
  for (std::size_t run = 0; run < leftOut.size(); ++run)
  {
    if (leftOut[run] != 0)
      continue;
    subset.selected.push_back(study.selected[run]);
    for (std::size_t k = 0; k < study.columns.size(); ++k)
      subset.columns[k].push_back(study.columns[k][run]);
  }
  return subset;
}

/// Sets of five runs each, first those of neither group, then the selected, then the others.
struct SetsOfFive
{
  SetsOfFive(int ofNeither, int ofEach)
      : columns(1)
  {
    for (int set = 0; set < ofNeither + 2 * ofEach; ++set)
    {
      const int group = set < ofNeither ? 2 : set < ofNeither + ofEach ? 1 : 0;
      columns[0].insert(columns[0].end(), 5, static_cast<double>(set));
      selected.insert(selected.end(), 5, group == 1 ? 1 : 0);
      plan.leftOut.insert(plan.leftOut.end(), 5, group == 2 ? 1 : 0);
    }
  }

  RunComparison compare() const { return compareRuns(columns, selected, plan); }

  ParameterColumns columns;
  std::vector<char> selected;
  ComparisonPlan plan;
};

/// Every third run, selected or not.
std::vector<char> everyThird(std::size_t runs)
{
  std::vector<char> leftOut(runs, 0);
  for (std::size_t run = 0; run < runs; run += 3)
    leftOut[run] = 1;
  return leftOut;
}

/// D of runs with these values, of which `groups` tells: 1 selected, 0 others, 2 neither.
double distanceOf(const std::vector<double>& values, const std::vector<int>& groups)
{
  const auto share = [&](int group, double upTo)
  {
    double below = 0.0, all = 0.0;
    for (std::size_t run = 0; run < values.size(); ++run)
    {
      all += groups[run] == group ? 1.0 : 0.0;
      below += groups[run] == group && values[run] <= upTo ? 1.0 : 0.0;
    }
    return below / all;
  };
  double largest = 0.0;
  for (const double value : values)
    largest = std::max(largest, std::abs(share(1, value) - share(0, value)));
  return largest;
}
} // namespace

TEST(RunsLeftOut, DoNotCountAmongSingleRuns)
{
  for (const StudyDesign design : {StudyDesign::singleRuns, StudyDesign::grid})
    for (const ComparedBy by : {ComparedBy::distribution, ComparedBy::rankSum, ComparedBy::counts})
    {
      const SimulatedStudy study = simulateStudy(design, true, 4);
      ComparisonPlan plan;
      plan.comparedBy = by;
      const std::vector<char> leftOut = everyThird(study.selected.size());
      const Subset subset = withoutThose(study, leftOut);
      const RunComparison expected = compareRuns(subset.columns, subset.selected, plan);
      plan.leftOut = leftOut;
      const RunComparison found = compareRuns(study.columns, study.selected, plan);
      ASSERT_EQ(found.parameters.size(), expected.parameters.size());
      for (std::size_t k = 0; k < found.parameters.size(); ++k)
      {
        const ParameterComparison& one = found.parameters[k];
        const ParameterComparison& other = expected.parameters[k];
        EXPECT_EQ(one.selected, other.selected);
        EXPECT_EQ(one.others, other.others);
        EXPECT_EQ(one.levels, other.levels);
        EXPECT_EQ(one.distance, other.distance);
        EXPECT_EQ(one.superiority, other.superiority);
        EXPECT_EQ(one.medianDifference, other.medianDifference);
        EXPECT_EQ(std::isnan(one.p), std::isnan(other.p));
        if (!std::isnan(other.p))
        {
          EXPECT_EQ(one.p, other.p);
        }
        EXPECT_EQ(one.method, other.method);
      }
    }
}

TEST(RunsLeftOut, StayInTheirSetsWhenThoseArePermuted)
{
  // Five sets of two runs; which runs are in which group differs from set to set.
  const std::vector<double> values{1, 1, 2, 2, 3, 3, 4, 4, 5, 5};
  const std::vector<int> groups{0, 0, 0, 2, 2, 1, 0, 1, 1, 1};
  std::vector<char> selected, leftOut;
  for (const int group : groups)
  {
    selected.push_back(group == 1 ? 1 : 0);
    leftOut.push_back(group == 2 ? 1 : 0);
  }
  const double observed = distanceOf(values, groups);
  std::array<std::size_t, 5> order{0, 1, 2, 3, 4};
  double reached = 0.0, all = 0.0;
  do
  {
    std::vector<int> moved;
    for (const std::size_t set : order)
      moved.insert(moved.end(), {groups[2 * set], groups[2 * set + 1]});
    all += 1.0;
    reached += distanceOf(values, moved) >= observed - 1e-12 ? 1.0 : 0.0;
  } while (std::next_permutation(order.begin(), order.end()));

  ComparisonPlan plan;
  plan.leftOut = leftOut;
  plan.permutations = 99'999;
  const RunComparison found = compareRuns({values}, selected, plan);
  const ParameterComparison& row = found.parameters.front();
  EXPECT_EQ(found.units.kind, IndependentUnit::parameterSet);
  EXPECT_EQ(row.selected, 4U);
  EXPECT_EQ(row.others, 4U);
  EXPECT_DOUBLE_EQ(row.distance, observed);
  // Five standard deviations of a share of 100,000 permutations.
  const double p = reached / all;
  EXPECT_NEAR(row.p, p, 5.0 * std::sqrt(p * (1.0 - p) / 1e5));
}

TEST(RunsLeftOut, RejectAnIdleParameterNoMoreOftenInReplicates)
{
  int rejected = 0;
  constexpr int studies = 200;
  for (int seed = 1; seed <= studies; ++seed)
  {
    const SimulatedStudy study = simulateStudy(StudyDesign::fiveReplicates, false, seed);
    ComparisonPlan plan;
    plan.leftOut = everyThird(study.selected.size());
    plan.permutations = 9999;
    plan.seed = static_cast<std::uint64_t>(seed);
    rejected += compareRuns(study.columns, study.selected, plan).parameters[1].p < 0.05 ? 1 : 0;
  }
  // 5 % of 200 and three standard deviations of 3.1; run-level tests reject 34 %.
  EXPECT_LE(rejected, 20);
}

TEST(RunsLeftOut, TakeNoPartAsWholeSets)
{
  const SetsOfFive study(30, 3);
  const RunComparison found = study.compare();
  EXPECT_EQ(found.units.units, 6U);
  // The observed division and its mirror image, of all that there are.
  EXPECT_NEAR(found.parameters.front().p, 2.0 / 20.0, 0.015);
}

TEST(RunsLeftOut, TakeNoPartInHalves)
{
  const SetsOfFive study(31, 8);
  const HalfComparison halves = compareHalves(study.columns, study.selected, study.plan,
                                              [](const ParameterComparison&) { return true; });
  EXPECT_EQ(halves.explored.units.units, 8U);
  EXPECT_EQ(halves.tested.units.units, 8U);
}

TEST(RunsLeftOut, DoNotMakeTooFewSetsEnough)
{
  const RunComparison found = SetsOfFive(30, 2).compare();
  EXPECT_EQ(found.units.units, 4U);
  EXPECT_EQ(found.parameters.front().reason, NotTested::tested);
  EXPECT_EQ(SetsOfFive(30, 1).compare().parameters.front().reason, NotTested::tooFewUnits);
}

TEST(RunsLeftOut, AreNotPermutedAmongSingleRunsEither)
{
  // Six runs in three and three, and thirty in neither.
  ParameterColumns columns{std::vector<double>(36), std::vector<double>(36)};
  std::iota(columns[0].begin(), columns[0].end(), 0.0);
  std::iota(columns[1].rbegin(), columns[1].rend(), 0.0);
  std::vector<char> selected(36, 0);
  ComparisonPlan plan;
  plan.leftOut.assign(36, 1);
  for (std::size_t run = 30; run < 36; ++run)
    plan.leftOut[run] = 0;
  std::fill(selected.begin() + 30, selected.begin() + 33, 1);
  plan.adjustment = Adjustment::maxT;
  const RunComparison found = compareRuns(columns, selected, plan);
  EXPECT_EQ(found.units.units, 6U);
  EXPECT_NEAR(found.parameters.front().adjusted, 2.0 / 20.0, 0.015);
}

TEST(RunsLeftOut, AreAsManyAsThereAreRuns)
{
  ComparisonPlan plan;
  plan.leftOut = {0, 1};
  EXPECT_THROW(compareRuns({{1, 2, 3}}, {0, 1, 1}, plan), std::invalid_argument);
  EXPECT_THROW(takesTimeToCompare({{1, 2, 3}}, {0, 1, 1}, plan), std::invalid_argument);
}

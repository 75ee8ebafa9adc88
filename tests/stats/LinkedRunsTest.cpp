#include "stats/LinkedRuns.h"

#include "stats/ExchangeUnits.h"
#include "stats/HalfComparison.h"
#include "stats/PortableRandom.h"
#include "stats/RunComparison.h"
#include "stats/SimulatedStudies.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

using namespace Talmesh::stats;

namespace
{
ParameterColumns without(ParameterColumns columns, std::size_t run)
{
  for (std::vector<double>& column : columns)
    column.erase(column.begin() + static_cast<std::ptrdiff_t>(run));
  return columns;
}

ParameterColumns withOneMore(ParameterColumns columns)
{
  for (std::vector<double>& column : columns)
    column.push_back(0.123456789);
  return columns;
}

/// Random points on so many levels.
ParameterColumns rounded(std::size_t runs, double levels)
{
  PortableRandom random(7, 1);
  ParameterColumns columns(3, std::vector<double>(runs));
  for (std::vector<double>& column : columns)
    for (double& value : column)
      value = std::floor(levels * static_cast<double>(random.below(1'000'000)) / 1e6) / levels;
  return columns;
}
} // namespace

TEST(LinkedRuns, AreBaseSamplesOfADesignThatIsNotComplete)
{
  const ExchangeUnits units = exchangeUnits(without(saltelliPoints(40, 6, 1), 11));
  EXPECT_EQ(units.kind, IndependentUnit::linkedRuns);
  ASSERT_EQ(units.units(), 40U);
  EXPECT_EQ(units.runsOfUnit(0), 8U);
  EXPECT_EQ(units.runsOfUnit(1), 7U) << "a run is missing";
  ASSERT_EQ(units.classes.size(), 2U);
  EXPECT_EQ(units.classes[0].size() + units.classes[1].size(), 40U);
  EXPECT_EQ(units.cellOfRun.size(), 40U * 8U - 1U);
}

TEST(LinkedRuns, LeaveRunsThatAreAloneToThemselves)
{
  const ExchangeUnits units = exchangeUnits(withOneMore(saltelliPoints(20, 4, 2)));
  EXPECT_EQ(units.kind, IndependentUnit::linkedRuns);
  EXPECT_EQ(units.units(), 21U);
  EXPECT_EQ(units.runsOfUnit(20), 1U);
}

TEST(LinkedRuns, AreNoneOnGridsAndByChance)
{
  EXPECT_FALSE(linkedRuns(designPoints(StudyDesign::grid, 1)));
  EXPECT_FALSE(linkedRuns(designPoints(StudyDesign::singleRuns, 1)));
  EXPECT_FALSE(linkedRuns(rounded(400, 500.0))) << "all hang together";
  EXPECT_FALSE(linkedRuns(rounded(400, 100'000.0))) << "few do";
  ParameterColumns levels(2);
  for (int run = 0; run < 400; ++run)
  {
    levels[0].push_back(run % 20);
    levels[1].push_back(run / 20);
  }
  EXPECT_FALSE(linkedRuns(levels));
  EXPECT_FALSE(linkedRuns({{1, 1, 2, 2}, {3, 3, 3, 3}})) << "only one varies";
  EXPECT_FALSE(
      linkedRuns({{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, {1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4}}))
      << "one has few values";
  ParameterColumns crossed = rounded(40, 1e6);
  for (std::vector<double>& column : crossed)
    for (int level = 0; level < 3; ++level)
      column.insert(column.end(), column.begin(), column.begin() + 40);
  crossed.emplace_back();
  for (int run = 0; run < 160; ++run)
    crossed.back().push_back(run / 40);
  EXPECT_FALSE(linkedRuns(crossed)) << "points with every level of something";
}

TEST(LinkedRuns, AreSetsOfReplicatesToo)
{
  ParameterColumns points = without(saltelliPoints(10, 3, 5), 3);
  const std::size_t runs = points[0].size();
  for (std::vector<double>& column : points)
    column.insert(column.end(), column.begin(), column.begin() + static_cast<std::ptrdiff_t>(runs));
  const ExchangeUnits units = exchangeUnits(points);
  EXPECT_EQ(units.kind, IndependentUnit::linkedRuns);
  EXPECT_EQ(units.units(), 10U);
  EXPECT_EQ(units.runsOfUnit(9), 10U);
  EXPECT_EQ(units.cellOfRun[0], units.cellOfRun[runs]);
}

TEST(LinkedRuns, KeepTheLevelOfTestsOfAnIdleParameter)
{
  int rejected = 0;
  for (std::uint64_t seed = 1; seed <= 200; ++seed)
  {
    SimulatedStudy study = simulateStudy(StudyDesign::saltelli, false, seed);
    study.columns = without(study.columns, 11);
    study.selected.erase(study.selected.begin() + 11);
    ComparisonPlan plan;
    plan.seed = seed;
    const ParameterComparison row = compareRuns(study.columns, study.selected, plan).parameters[1];
    EXPECT_EQ(row.method, TestMethod::permutedLinkedRuns);
    rejected += row.p < 0.05 ? 1 : 0;
  }
  // 5 % of 200 and three standard deviations of 3.1; tests of runs reject a third.
  EXPECT_LE(rejected, 20);
}

TEST(LinkedRuns, StayUnitsInHalvesOfFewBaseSamples)
{
  const ParameterColumns points = saltelliPoints(3, 4, 1);
  std::vector<char> selected(points[0].size(), 0);
  for (std::size_t run = 0; run < selected.size(); run += 2)
    selected[run] = 1;
  const HalfComparison halves =
      compareHalves(points, selected, {}, [](const ParameterComparison&) { return true; });
  for (const RunComparison& half : {halves.explored, halves.tested})
  {
    EXPECT_EQ(half.units.kind, IndependentUnit::baseSample);
    for (const ParameterComparison& row : half.parameters)
      EXPECT_EQ(row.reason, NotTested::tooFewUnits);
  }
}

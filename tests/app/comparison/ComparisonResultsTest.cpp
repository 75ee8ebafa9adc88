#include "app/comparison/ComparisonResults.h"

#include "stats/SimulatedStudies.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::app;
using State = Comparison::State;
namespace stats = Talmesh::stats;

namespace
{

/// Seven runs whose parameter k rises; m takes the same values in another order.
ComparedStudy sevenRuns()
{
  return {
      {"k", "m"}, {}, {{1, 2, 3, 4, 5, 6, 7}, {4, 1, 6, 3, 7, 2, 5}}, {0, 0, 0, 1, 0, 1, 1}, {}};
}

ComparedStudy simulated(stats::StudyDesign design)
{
  const stats::SimulatedStudy study = stats::simulateStudy(design, true, 3);
  ComparedStudy compared{{}, {}, study.columns, study.selected, {}};
  for (std::size_t k = 0; k < study.columns.size(); ++k)
    compared.names.push_back("p" + std::to_string(k));
  return compared;
}

ComparisonChoice inHalves()
{
  ComparisonChoice choice;
  choice.halves = true;
  return choice;
}

} // namespace

TEST(ComparisonResults, CompareTheSelectedRunsWithTheOthers)
{
  const Comparison comparison = compare(sevenRuns(), {});
  EXPECT_EQ(comparison.state, State::compared);
  ASSERT_EQ(comparison.parameters.size(), 2U);
  const ComparedParameter& k = comparison.parameters[0];
  EXPECT_EQ(k.name, "k");
  EXPECT_EQ(k.obstacle, TestObstacle::none);
  // R 4.2.2: ks.test(c(4, 6, 7), c(1, 2, 3, 5), exact = TRUE): D = 3/4, p = 8/35
  EXPECT_DOUBLE_EQ(k.result.distance, 0.75);
  EXPECT_NEAR(k.result.p, 8.0 / 35.0, 1e-15);
  EXPECT_EQ(comparison.parameters[1].name, "m");
  EXPECT_EQ(comparison.parameters[1].result.parameter, 1U);
  EXPECT_EQ(comparison.units.units, 7U);
  EXPECT_FALSE(comparison.pending || comparison.halved);
}

TEST(ComparisonResults, SayWhenThereIsNothingToCompare)
{
  ComparedStudy study = sevenRuns();
  study.selected.assign(7, 0);
  EXPECT_EQ(compare(study, {}).state, State::nothingSelected);
  EXPECT_TRUE(compare(study, {}).parameters.empty());
  study.selected.assign(7, 1);
  EXPECT_EQ(compare(study, {}).state, State::noOthers);
  EXPECT_EQ(compare(ComparedStudy{}, {}).state, State::noParameters);
}

TEST(ComparisonResults, CallSignificantWhatMeetsBothThresholdsByItsAdjustedP)
{
  Comparison comparison = compare(simulated(stats::StudyDesign::singleRuns), {});
  ComparedParameter& first = comparison.parameters[0];
  EXPECT_TRUE(first.significant);
  EXPECT_FALSE(comparison.parameters[1].significant);
  first.result.p = 0.02;
  first.result.adjusted = 0.06;
  first.result.distance = 0.5;
  ComparisonChoice choice;
  applyThresholds(comparison, choice);
  EXPECT_FALSE(first.significant);
  choice.pThreshold = 0.06;
  choice.ksThreshold = 0.5;
  applyThresholds(comparison, choice);
  EXPECT_TRUE(first.significant);
  choice.ksThreshold = 0.51;
  applyThresholds(comparison, choice);
  EXPECT_FALSE(first.significant);
  first.result.adjusted = std::nan("");
  choice = {};
  choice.pThreshold = 1.0;
  applyThresholds(comparison, choice);
  EXPECT_FALSE(first.significant);
}

TEST(ComparisonResults, LeaveOutWhatChangesWithinARunAndKeepThePlaces)
{
  ComparedStudy study = sevenRuns();
  study.names = {"changes", "k", "m"};
  study.columns.insert(study.columns.begin(), {9, 8, 7, 6, 5, 4, 3});
  study.changing = {0};
  study.chosenBy = {2};
  const Comparison comparison = compare(study, {});
  ASSERT_EQ(comparison.parameters.size(), 3U);
  EXPECT_EQ(comparison.parameters[0].obstacle, TestObstacle::changingValues);
  EXPECT_TRUE(std::isnan(comparison.parameters[0].result.p));
  EXPECT_NEAR(comparison.parameters[1].result.p, 8.0 / 35.0, 1e-15);
  EXPECT_EQ(comparison.parameters[2].obstacle, TestObstacle::chosenByParameter);
  EXPECT_DOUBLE_EQ(comparison.parameters[1].result.adjusted, comparison.parameters[1].result.p)
      << "the only test";
  study.changing = {0, 1, 2};
  for (const ComparedParameter& parameter : compare(study, {}).parameters)
    EXPECT_EQ(parameter.obstacle, TestObstacle::changingValues);
}

TEST(ComparisonResults, FollowTheChosenTestAndAdjustment)
{
  const ComparedStudy grid = simulated(stats::StudyDesign::grid);
  ComparisonChoice choice;
  choice.comparedBy = stats::ComparedBy::counts;
  EXPECT_EQ(compare(grid, choice).parameters[0].result.method, stats::TestMethod::chiSquaredCounts);
  choice.comparedBy = stats::ComparedBy::rankSum;
  choice.adjustment = stats::Adjustment::maxT;
  const Comparison ranks = compare(grid, choice);
  EXPECT_EQ(ranks.parameters[0].result.method, stats::TestMethod::normalRankSum);
  EXPECT_EQ(ranks.permutations, 9'999U);
  EXPECT_TRUE(takesTime(grid, choice));
  EXPECT_FALSE(takesTime(grid, {}));
}

TEST(ComparisonResults, PermuteSetsOfRunsWithEqualParameters)
{
  const ComparedStudy sets = simulated(stats::StudyDesign::fiveReplicates);
  EXPECT_TRUE(takesTime(sets, {}));
  const Comparison comparison = compare(sets, {});
  EXPECT_EQ(comparison.units.kind, stats::IndependentUnit::parameterSet);
  EXPECT_EQ(comparison.permutations, 9'999U);
  EXPECT_EQ(comparison.seed, 1U);
  EXPECT_EQ(comparison.parameters[0].result.p, 0.0001);
}

TEST(ComparisonResults, CanBeDescribedBeforeTheTestsAreThrough)
{
  const ComparedStudy sets = simulated(stats::StudyDesign::fiveReplicates);
  const Comparison tested = compare(sets, {});
  const Comparison described = describe(sets, {}, TestObstacle::pending);
  EXPECT_TRUE(described.pending);
  EXPECT_EQ(described.units.units, 60U);
  for (std::size_t k = 0; k < 3; ++k)
  {
    EXPECT_EQ(described.parameters[k].obstacle, TestObstacle::pending);
    EXPECT_EQ(described.parameters[k].result.distance, tested.parameters[k].result.distance);
    EXPECT_TRUE(std::isnan(described.parameters[k].result.p));
    EXPECT_FALSE(described.parameters[k].significant);
  }
  const Comparison cancelled = describe(sets, {}, TestObstacle::cancelled);
  EXPECT_FALSE(cancelled.pending);
  EXPECT_EQ(cancelled.parameters[0].obstacle, TestObstacle::cancelled);
}

TEST(ComparisonResults, TestInOneHalfWhatDiffersInTheOther)
{
  const Comparison halves = compare(simulated(stats::StudyDesign::singleRuns), inHalves());
  EXPECT_TRUE(halves.halved);
  EXPECT_EQ(halves.units.units, 100U);
  EXPECT_TRUE(halves.parameters[0].significant);
  EXPECT_EQ(halves.parameters[1].obstacle, TestObstacle::alikeInFirstHalf);
  EXPECT_EQ(halves.parameters[2].obstacle, TestObstacle::alikeInFirstHalf);
  ComparisonChoice all = inHalves();
  all.pThreshold = 1.0;
  EXPECT_EQ(compare(simulated(stats::StudyDesign::singleRuns), all).parameters[1].obstacle,
            TestObstacle::none);
}

TEST(ComparisonResults, AreTheSameForTheSameStudyOnly)
{
  ComparedStudy study = sevenRuns();
  study.columns[1][2] = std::nan("");
  EXPECT_TRUE(study == study);
  ComparedStudy other = study;
  other.columns[1][3] += 1e-12;
  EXPECT_FALSE(study == other);
  other = study;
  other.selected[0] = 1;
  EXPECT_FALSE(study == other);
  other = study;
  other.chosenBy = {1};
  EXPECT_FALSE(study == other);
  other = study;
  other.columns.pop_back();
  EXPECT_FALSE(study == other);
}

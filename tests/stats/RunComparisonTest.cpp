#include "stats/RunComparison.h"

#include "stats/AdjustedPValues.h"
#include "stats/GroupContrast.h"
#include "stats/LevelCounts.h"
#include "stats/MannWhitney.h"
#include "stats/PortableRandom.h"
#include "stats/SimulatedStudies.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <numeric>
#include <stdexcept>

using namespace Talmesh::stats;

namespace
{
const double missing = std::nan("");

std::vector<double> pOf(const RunComparison& comparison)
{
  std::vector<double> p;
  for (const ParameterComparison& row : comparison.parameters)
    p.push_back(row.p);
  return p;
}

std::vector<double> adjustedOf(const RunComparison& comparison)
{
  std::vector<double> adjusted;
  for (const ParameterComparison& row : comparison.parameters)
    adjusted.push_back(row.adjusted);
  return adjusted;
}

TieBlocks blocksOf(const SimulatedStudy& study, std::size_t parameter)
{
  std::vector<double> selected, others;
  for (std::size_t run = 0; run < study.selected.size(); ++run)
    (study.selected[run] ? selected : others).push_back(study.columns[parameter][run]);
  return tieBlocks(selected, others);
}

ComparisonPlan by(ComparedBy comparedBy, Adjustment adjustment = Adjustment::benjaminiHochberg)
{
  ComparisonPlan plan;
  plan.comparedBy = comparedBy;
  plan.adjustment = adjustment;
  return plan;
}
} // namespace

TEST(RunComparison, DescribesAParameter)
{
  // R 4.2.2: x <- c(4, 6, 7); y <- c(1, 2, 3, 5): ks.test(x, y, exact=TRUE): D = 3/4, p = 8/35;
  // median(x) - median(y) = 3.5; mean(outer(x, y, ">")) = 11/12
  const RunComparison comparison = compareRuns({{1, 2, 3, 4, 5, 6, 7}}, {0, 0, 0, 1, 0, 1, 1});
  ASSERT_EQ(comparison.parameters.size(), 1U);
  const ParameterComparison& row = comparison.parameters.front();
  EXPECT_EQ(row.selected, 3U);
  EXPECT_EQ(row.others, 4U);
  EXPECT_EQ(row.levels, 7U);
  EXPECT_DOUBLE_EQ(row.distance, 0.75);
  EXPECT_NEAR(row.p, 8.0 / 35.0, 1e-15);
  EXPECT_DOUBLE_EQ(row.adjusted, row.p);
  EXPECT_EQ(row.direction, Direction::larger);
  EXPECT_DOUBLE_EQ(row.superiority, 11.0 / 12.0);
  EXPECT_DOUBLE_EQ(row.medianDifference, 3.5);
  EXPECT_EQ(row.interval.low, 0.0);
  EXPECT_EQ(row.interval.high, 1.0);
  EXPECT_EQ(row.method, TestMethod::exactDistribution);
  EXPECT_EQ(row.reason, NotTested::tested);
  EXPECT_EQ(comparison.units.kind, IndependentUnit::run);
  EXPECT_EQ(comparison.units.units, 7U);
}

TEST(RunComparison, TestsSingleRunsAndGridsExactly)
{
  for (const StudyDesign design : {StudyDesign::singleRuns, StudyDesign::grid})
  {
    const SimulatedStudy study = simulateStudy(design, true, 2);
    const auto rows = compareRuns(study.columns, study.selected).parameters;
    const auto ranks =
        compareRuns(study.columns, study.selected, by(ComparedBy::rankSum)).parameters;
    for (std::size_t parameter = 0; parameter < 3; ++parameter)
    {
      const TieBlocks blocks = blocksOf(study, parameter);
      EXPECT_EQ(rows[parameter].parameter, parameter);
      EXPECT_EQ(rows[parameter].p, tiedKsTest(blocks).p);
      EXPECT_EQ(rows[parameter].interval.low, distanceInterval(ksDistance(blocks)).low);
      EXPECT_EQ(ranks[parameter].p, mannWhitneyTest(blocks).p);
      EXPECT_EQ(ranks[parameter].method, TestMethod::normalRankSum);
    }
    EXPECT_LT(rows[0].p, 1e-9);
  }
}

TEST(RunComparison, CountsLevels)
{
  const SimulatedStudy study = simulateStudy(StudyDesign::grid, true, 2);
  const ComparisonPlan counts = by(ComparedBy::counts);
  const auto rows = compareRuns(study.columns, study.selected, counts).parameters;
  EXPECT_EQ(rows[1].p, levelCountsTest(blocksOf(study, 1)).p);
  EXPECT_EQ(rows[1].method, TestMethod::chiSquaredCounts);
  const SimulatedStudy many = simulateStudy(StudyDesign::singleRuns, true, 2);
  EXPECT_EQ(compareRuns(many.columns, many.selected, counts).parameters[0].reason,
            NotTested::tooManyLevels);
  const auto two = compareRuns({{1, 1, 2, 2, 2}, {1, 2, 3, 4, 5}}, {1, 1, 0, 0, 0}, counts);
  EXPECT_EQ(two.parameters[0].method, TestMethod::exactCounts);
  EXPECT_NEAR(two.parameters[0].p, 0.1, 1e-14);
}

TEST(RunComparison, PermutesSetsAndBaseSamples)
{
  const SimulatedStudy sets = simulateStudy(StudyDesign::fiveReplicates, true, 3);
  const RunComparison ofSets = compareRuns(sets.columns, sets.selected);
  EXPECT_EQ(ofSets.units.kind, IndependentUnit::parameterSet);
  EXPECT_EQ(ofSets.units.units, 60U);
  EXPECT_EQ(ofSets.units.fewestRuns, 5U);
  EXPECT_EQ(ofSets.units.mostRuns, 5U);
  EXPECT_EQ(ofSets.parameters[0].p, 0.0001);
  EXPECT_EQ(ofSets.parameters[0].permutations, 9999U);
  EXPECT_EQ(ofSets.parameters[0].method, TestMethod::permutedSets);
  EXPECT_TRUE(std::isnan(ofSets.parameters[0].interval.low));
  EXPECT_GT(ofSets.parameters[1].p, 0.01);
  EXPECT_EQ(ofSets.seed, 1U);

  const SimulatedStudy saltelli = simulateStudy(StudyDesign::saltelli, true, 3);
  const RunComparison ofSamples =
      compareRuns(saltelli.columns, saltelli.selected, by(ComparedBy::rankSum));
  EXPECT_EQ(ofSamples.units.units, 40U);
  EXPECT_EQ(ofSamples.parameters[0].p, 0.0001);
  EXPECT_EQ(ofSamples.parameters[0].method, TestMethod::permutedBaseSamples);
}

TEST(RunComparison, AdjustsForTheParametersTested)
{
  SimulatedStudy study = simulateStudy(StudyDesign::singleRuns, true, 9);
  study.columns.push_back(std::vector<double>(200, 1.0));
  const RunComparison discovery = compareRuns(study.columns, study.selected);
  EXPECT_EQ(discovery.permutations, 0U);
  const std::vector<double> expected = benjaminiHochberg(pOf(discovery));
  const RunComparison family =
      compareRuns(study.columns, study.selected, by(ComparedBy::distribution, Adjustment::holm));
  const std::vector<double> byHolm = holm(pOf(discovery));
  const RunComparison maxT =
      compareRuns(study.columns, study.selected, by(ComparedBy::distribution, Adjustment::maxT));
  EXPECT_EQ(maxT.permutations, 9999U);
  for (std::size_t parameter = 0; parameter < 3; ++parameter)
  {
    EXPECT_EQ(adjustedOf(discovery)[parameter], expected[parameter]);
    EXPECT_EQ(adjustedOf(family)[parameter], byHolm[parameter]);
    EXPECT_EQ(maxT.parameters[parameter].p, discovery.parameters[parameter].p);
    EXPECT_GE(adjustedOf(maxT)[parameter], maxT.parameters[parameter].p);
    // Independent parameters gain little on Holm; 0.02 are four standard deviations.
    EXPECT_LT(adjustedOf(maxT)[parameter], byHolm[parameter] + 0.02);
  }
  EXPECT_TRUE(std::isnan(adjustedOf(maxT)[3]));
  EXPECT_TRUE(std::isnan(adjustedOf(discovery)[3]));
}

TEST(RunComparison, SaysWhyThereIsNoP)
{
  const ParameterColumns columns{{1, 2, 3, 4, 5, 6},
                                 {7, 7, 7, 7, 7, 7},
                                 {1, 2, 3, missing, missing, missing},
                                 {6, 4, 5, 2, 3, 1}};
  ComparisonPlan plan;
  plan.chosenBy = {3};
  const auto rows = compareRuns(columns, {0, 0, 0, 1, 1, 1}, plan).parameters;
  EXPECT_EQ(rows[0].reason, NotTested::tested);
  EXPECT_EQ(rows[1].reason, NotTested::constant);
  EXPECT_EQ(rows[2].reason, NotTested::emptyGroup);
  EXPECT_EQ(rows[2].others, 3U);
  EXPECT_EQ(rows[3].reason, NotTested::chosenByParameter);
  EXPECT_DOUBLE_EQ(rows[3].distance, 1.0);
  for (std::size_t parameter = 1; parameter < 4; ++parameter)
  {
    EXPECT_TRUE(std::isnan(rows[parameter].p)) << parameter;
    EXPECT_EQ(rows[parameter].method, TestMethod::none) << parameter;
  }
  // The only test is adjusted for nothing.
  EXPECT_EQ(rows[0].adjusted, rows[0].p);
}

TEST(RunComparison, DescribesWithoutATestWhatThePlanLeavesOut)
{
  const SimulatedStudy study = simulateStudy(StudyDesign::fiveReplicates, true, 3);
  ComparisonPlan plan;
  plan.untested = {0, 1, 2};
  const RunComparison described = compareRuns(study.columns, study.selected, plan);
  EXPECT_EQ(described.permutations, 0U);
  EXPECT_EQ(described.units.units, 60U);
  for (const ParameterComparison& row : described.parameters)
  {
    EXPECT_EQ(row.reason, NotTested::leftUntested);
    EXPECT_TRUE(std::isnan(row.p) && std::isnan(row.adjusted));
    EXPECT_GT(row.distance, 0.0);
  }
  plan.untested = {0};
  const auto rows = compareRuns(study.columns, study.selected, plan).parameters;
  EXPECT_TRUE(std::isnan(rows[0].p));
  // Two tests are adjusted for two.
  const std::vector<double> adjusted = benjaminiHochberg({rows[1].p, rows[2].p});
  EXPECT_EQ(rows[1].adjusted, adjusted[0]);
  EXPECT_EQ(rows[2].adjusted, adjusted[1]);
}

TEST(RunComparison, TakesTimeWithPermutationsAndForLargeGroups)
{
  const std::vector<double> single{1, 2, 3, 4};
  EXPECT_FALSE(takesTimeToCompare({single}, {0, 0, 1, 1}));
  EXPECT_TRUE(takesTimeToCompare({{1, 1, 2, 2}}, {0, 0, 1, 1}));
  EXPECT_TRUE(
      takesTimeToCompare({single}, {0, 0, 1, 1}, by(ComparedBy::distribution, Adjustment::maxT)));
  std::vector<double> many(10'000);
  std::iota(many.begin(), many.end(), 0.0);
  std::vector<char> half(many.size(), 0);
  std::fill_n(half.begin(), 5'000, 1);
  EXPECT_FALSE(takesTimeToCompare({many}, half));
  EXPECT_TRUE(takesTimeToCompare({many, many, many}, half));
  // Above the largest exact size the test is quick again.
  many.push_back(1e6);
  half.push_back(1);
  EXPECT_FALSE(takesTimeToCompare({many, many, many}, half));
  EXPECT_FALSE(takesTimeToCompare({}, {0, 1}));
  EXPECT_THROW(takesTimeToCompare({single}, {0}), std::invalid_argument);
}

TEST(RunComparison, DoesNotTestFewSets)
{
  // Three sets have 6 arrangements, four have 24.
  const std::vector<double> three{1, 1, 2, 2, 3, 3};
  EXPECT_EQ(compareRuns({three}, {0, 0, 0, 1, 1, 1}).parameters[0].reason, NotTested::tooFewUnits);
  const std::vector<double> four{1, 1, 2, 2, 3, 3, 4, 4};
  EXPECT_EQ(compareRuns({four}, {0, 0, 0, 1, 0, 0, 1, 1}).parameters[0].reason, NotTested::tested);
  const std::vector<double> unequal{1, 2, 2, 3, 3, 3, 4, 4, 4, 4};
  EXPECT_EQ(compareRuns({unequal}, {0, 0, 0, 1, 0, 0, 1, 1, 0, 1}).parameters[0].reason,
            NotTested::tooFewUnits);
}

TEST(RunComparison, LeavesRunsWithoutAValueOut)
{
  const std::vector<double> whole{1, 2, 3, 4, 5, 6, 7, 8};
  const std::vector<double> gaps{1, missing, 3, 4, 5, missing, 7, 8};
  const auto rows = compareRuns({whole, gaps}, {0, 0, 0, 1, 0, 1, 1, 1}).parameters;
  EXPECT_EQ(rows[1].selected, 3U);
  EXPECT_EQ(rows[1].others, 3U);
  EXPECT_EQ(rows[1].p, tiedKsTest(tieBlocks({4, 7, 8}, {1, 3, 5})).p);
}

TEST(RunComparison, CanBeCancelled)
{
  for (const int after : {0, 2, 40})
  {
    const SimulatedStudy study = simulateStudy(StudyDesign::fiveReplicates, true, 3);
    ComparisonPlan plan;
    int calls = 0;
    plan.progress = [&calls, after](double) { return calls++ < after; };
    const RunComparison comparison = compareRuns(study.columns, study.selected, plan);
    EXPECT_TRUE(comparison.cancelled);
    EXPECT_EQ(calls, after + 1);
    ASSERT_EQ(comparison.parameters.size(), 3U);
    EXPECT_EQ(comparison.parameters[2].parameter, 2U);
    EXPECT_EQ(comparison.parameters[2].reason, NotTested::cancelled);
    EXPECT_TRUE(std::isnan(comparison.parameters[0].p));
  }
}

TEST(RunComparison, TellsHowFarItIs)
{
  const SimulatedStudy study = simulateStudy(StudyDesign::fiveReplicates, true, 3);
  ComparisonPlan plan;
  std::vector<double> parts;
  plan.progress = [&parts](double part)
  {
    parts.push_back(part);
    return true;
  };
  compareRuns(study.columns, study.selected, plan);
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
  EXPECT_EQ(parts.back(), 1.0);
  parts.clear();
  compareRuns({{1, 2, 3}}, {0, 1, 1}, plan);
  EXPECT_EQ(parts.back(), 1.0);
}

TEST(RunComparison, ChecksItsArguments)
{
  EXPECT_TRUE(compareRuns({}, {1, 0}).parameters.empty());
  EXPECT_THROW(compareRuns({{1, 2}}, {1}), std::invalid_argument);
  EXPECT_THROW(compareRuns({{1, 2}, {1}}, {1, 0}), std::invalid_argument);
  EXPECT_EQ(compareRuns({{}}, {}).parameters[0].reason, NotTested::emptyGroup);
}

#include "stats/HalfComparison.h"

#include "stats/SimulatedStudies.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

using namespace Talmesh::stats;

namespace
{
bool differs(const ParameterComparison& row)
{
  return row.adjusted <= 0.05;
}

ComparisonPlan seeded(std::uint64_t seed)
{
  ComparisonPlan plan;
  plan.seed = seed;
  return plan;
}
} // namespace

TEST(HalfComparison, TestsInOneHalfWhatDiffersInTheOther)
{
  const SimulatedStudy study = simulateStudy(StudyDesign::singleRuns, true, 3);
  const HalfComparison halves = compareHalves(study.columns, study.selected, {}, differs);
  EXPECT_EQ(halves.explored.units.units, 100U);
  EXPECT_EQ(halves.tested.units.units, 100U);
  // The first parameter decides.
  EXPECT_LT(halves.explored.parameters[0].p, 1e-5);
  EXPECT_LT(halves.tested.parameters[0].p, 1e-5);
  EXPECT_EQ(halves.tested.parameters[0].adjusted, halves.tested.parameters[0].p)
      << "only one is tested";
  for (const std::size_t idle : {1, 2})
  {
    EXPECT_GT(halves.explored.parameters[idle].adjusted, 0.05);
    EXPECT_EQ(halves.tested.parameters[idle].reason, NotTested::leftUntested);
    EXPECT_TRUE(std::isnan(halves.tested.parameters[idle].p));
  }
  const ParameterComparison& one = halves.explored.parameters[0];
  const ParameterComparison& other = halves.tested.parameters[0];
  EXPECT_EQ(one.selected + other.selected, 60U);
  EXPECT_EQ(one.others + other.others, 140U);
}

TEST(HalfComparison, KeepsTheRunsOfASetTogether)
{
  const SimulatedStudy study = simulateStudy(StudyDesign::fiveReplicates, true, 3);
  const HalfComparison halves = compareHalves(study.columns, study.selected, {}, differs);
  for (const RunComparison& half : {halves.explored, halves.tested})
  {
    EXPECT_EQ(half.units.kind, IndependentUnit::parameterSet);
    EXPECT_EQ(half.units.units, 30U);
    EXPECT_EQ(half.units.fewestRuns, 5U);
    EXPECT_EQ(half.units.mostRuns, 5U);
  }
  const SimulatedStudy saltelli = simulateStudy(StudyDesign::saltelli, true, 3);
  const HalfComparison samples = compareHalves(saltelli.columns, saltelli.selected, {}, differs);
  EXPECT_EQ(samples.explored.units.units, 20U);
  EXPECT_EQ(samples.tested.units.units, 20U);
  EXPECT_EQ(samples.tested.units.kind, IndependentUnit::baseSample);
}

TEST(HalfComparison, SaysThatRunsAreNotOfTheDesignThatIsNamed)
{
  const SimulatedStudy study = simulateStudy(StudyDesign::saltelli, true, 3);
  // Five parameters take 7 or 12 runs a base sample; the design of the values is recognised.
  ComparisonPlan plan;
  plan.design = {true, 5};
  ASSERT_NE(study.selected.size() % 7, 0U);
  ASSERT_NE(study.selected.size() % 12, 0U);
  EXPECT_TRUE(compareRuns(study.columns, study.selected, plan).units.contradictsDesign);
  const HalfComparison halves = compareHalves(study.columns, study.selected, plan, differs);
  EXPECT_TRUE(halves.explored.units.contradictsDesign);
  EXPECT_TRUE(halves.tested.units.contradictsDesign);
  plan.design = {};
  EXPECT_FALSE(compareRuns(study.columns, study.selected, plan).units.contradictsDesign);
}

TEST(HalfComparison, SplitsByTheSeed)
{
  const SimulatedStudy study = simulateStudy(StudyDesign::singleRuns, false, 3);
  const auto chosen = [&](std::uint64_t seed)
  { return compareHalves(study.columns, study.selected, seeded(seed), differs).explored; };
  EXPECT_EQ(chosen(1).parameters[0].distance, chosen(1).parameters[0].distance);
  EXPECT_NE(chosen(1).parameters[0].distance, chosen(2).parameters[0].distance);
}

// A parameter without effect that was chosen because it seemed to have one.
TEST(HalfComparison, DoesNotRepeatWhatChanceHasFound)
{
  int chosen = 0;
  int confirmed = 0;
  for (std::uint64_t seed = 1; seed <= 600; ++seed)
  {
    const SimulatedStudy study = simulateStudy(StudyDesign::singleRuns, false, seed);
    const auto halves = compareHalves(study.columns, study.selected, seeded(seed),
                                      [](const ParameterComparison& row) { return row.p <= 0.1; });
    for (const ParameterComparison& row : halves.tested.parameters)
    {
      chosen += row.reason == NotTested::tested ? 1 : 0;
      confirmed += row.p <= 0.1 ? 1 : 0;
    }
  }
  // About a tenth of 1,800, of which a tenth: 180 and 18 with a standard deviation of 4.
  EXPECT_GT(chosen, 120);
  EXPECT_NEAR(confirmed, 0.1 * chosen, 16.0);
}

TEST(HalfComparison, CanBeCancelledAndTellsHowFarItIs)
{
  const SimulatedStudy study = simulateStudy(StudyDesign::fiveReplicates, true, 3);
  ComparisonPlan plan;
  std::vector<double> parts;
  plan.progress = [&parts](double part)
  {
    parts.push_back(part);
    return true;
  };
  compareHalves(study.columns, study.selected, plan, differs);
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
  EXPECT_EQ(parts.back(), 1.0);
  plan.progress = [](double) { return false; };
  const HalfComparison cancelled = compareHalves(study.columns, study.selected, plan, differs);
  EXPECT_TRUE(cancelled.explored.cancelled);
  EXPECT_TRUE(cancelled.tested.cancelled);
}

TEST(HalfComparison, ChecksItsArguments)
{
  EXPECT_TRUE(compareHalves({}, {}, {}, differs).tested.parameters.empty());
  EXPECT_THROW(compareHalves({{1, 2}}, {1}, {}, differs), std::invalid_argument);
}

TEST(HalfComparison, HasTooFewSetsWhereNoHalfCouldDiffer)
{
  std::vector<double> values;
  std::vector<char> selected;
  for (int set = 0; set < 6; ++set)
    for (int replicate = 0; replicate < 5; ++replicate)
    {
      values.push_back(set);
      selected.push_back(set < 3 ? 1 : 0);
    }
  // Halves of three sets have 6 arrangements at most.
  const HalfComparison halves = compareHalves({values}, selected, {}, differs);
  const ParameterComparison& row = halves.tested.parameters[0];
  ASSERT_GT(row.selected, 0U);
  ASSERT_GT(row.others, 0U);
  EXPECT_EQ(row.reason, NotTested::tooFewUnits);
}

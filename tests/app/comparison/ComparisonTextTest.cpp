#include "app/comparison/ComparisonText.h"

#include "app/comparison/ComparisonSummary.h"
#include "app/comparison/TestNames.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::app;
namespace stats = Talmesh::stats;

namespace
{

stats::ParameterComparison withP(double p, double adjusted, std::size_t permutations = 0)
{
  stats::ParameterComparison result;
  result.p = p;
  result.adjusted = adjusted;
  result.permutations = permutations;
  return result;
}

std::string p(double value, std::size_t permutations = 0)
{
  return pText(withP(value, value, permutations)).toStdString();
}

stats::UnitSummary units(stats::IndependentUnit kind, std::size_t count, std::size_t fewest,
                         std::size_t most)
{
  return {kind, count, fewest, most};
}

} // namespace

TEST(ComparisonText, NeverRoundsPToZeroOrOne)
{
  EXPECT_EQ(p(0.0), "< 1e-300");
  EXPECT_EQ(p(1e-310), "< 1e-300");
  EXPECT_EQ(p(1e-300), "1.00e-300");
  EXPECT_EQ(p(0.00099), "9.90e-04");
  EXPECT_EQ(p(0.0312), "0.031");
  EXPECT_EQ(p(0.9994), "0.999");
  EXPECT_EQ(p(0.9996), "> 0.999");
  EXPECT_EQ(p(1.0 - 1e-16), "> 0.999");
  EXPECT_EQ(p(1.0), "1.000");
  EXPECT_EQ(p(std::nan("")), "");
}

TEST(ComparisonText, SaysHowManyPermutationsThereWere)
{
  EXPECT_EQ(p(0.0001, 9'999), "\u2264 0.0001 (9,999)");
  EXPECT_EQ(p(0.0002, 9'999), "0.0002 (9,999)");
  EXPECT_EQ(p(0.01234, 9'999), "0.0123 (9,999)");
  EXPECT_EQ(p(0.9997, 9'999), "> 0.999 (9,999)");
  EXPECT_EQ(p(1.0, 9'999), "1 (9,999)");
  EXPECT_EQ(p(1e-6, 999'999), "\u2264 1e-06 (999,999)");
  EXPECT_EQ(adjustedText(withP(0.0001, 0.0003, 9'999)).toStdString(), "\u2264 0.0003");
  EXPECT_EQ(adjustedText(withP(0.0002, 0.0006, 9'999)).toStdString(), "0.0006");
  EXPECT_EQ(adjustedText(withP(0.9, 1.0, 9'999)).toStdString(), "1");
  EXPECT_EQ(adjustedText(withP(0.9, 0.9997, 9'999)).toStdString(), "> 0.999");
}

TEST(ComparisonText, SaysOfPermutationsWhatTheyCannotTell)
{
  // An exact p, adjusted by permutations of which none reached the largest statistic.
  stats::ParameterComparison result = withP(1e-9, 0.0001);
  result.adjustingPermutations = 9'999;
  EXPECT_EQ(adjustedText(result).toStdString(), "\u2264 0.0001");
  result.adjusted = 0.0003;
  EXPECT_EQ(adjustedText(result).toStdString(), "0.0003");
  // One that no permutation reached, while others had larger statistics.
  result = withP(0.0001, 0.0123, 9'999);
  result.adjustingPermutations = 9'999;
  EXPECT_EQ(adjustedText(result).toStdString(), "0.0123");
}

TEST(ComparisonText, ShowsTheIntervalWhereThereIsOne)
{
  stats::ParameterComparison result;
  EXPECT_EQ(effectText(result), "");
  result.distance = 0.527;
  EXPECT_EQ(effectText(result), "0.527");
  result.interval = {0.0, 1.0};
  EXPECT_EQ(effectText(result).toStdString(), "0.527 (0.00\u20131.00)");
}

TEST(ComparisonText, TakesAsManyDigitsAsAReaderCompares)
{
  EXPECT_EQ(numberText(0.0), "0.000");
  EXPECT_EQ(numberText(-0.25), "-0.250");
  EXPECT_EQ(numberText(123.456), "123.5");
  EXPECT_EQ(numberText(-2.5e7), "-2.50e+07");
  EXPECT_EQ(numberText(4e-5), "4.00e-05");
}

TEST(ComparisonText, SaysWhatIsIndependent)
{
  using stats::IndependentUnit;
  EXPECT_EQ(unitsText(units(IndependentUnit::run, 400, 1, 1)), "400 runs");
  EXPECT_EQ(unitsText(units(IndependentUnit::parameterSet, 12, 10, 10)), "12 sets of 10 runs");
  EXPECT_EQ(unitsText(units(IndependentUnit::parameterSet, 12, 3, 10)), "12 sets of 3 to 10 runs");
  EXPECT_EQ(unitsText(units(IndependentUnit::baseSample, 40, 8, 8)), "40 base samples of 8 runs");
}

TEST(ComparisonText, SumsAComparisonUp)
{
  Comparison comparison;
  EXPECT_EQ(summaryText(comparison, 3), "");
  comparison.state = Comparison::State::compared;
  comparison.units = units(stats::IndependentUnit::parameterSet, 12, 10, 10);
  comparison.permutations = 9'999;
  comparison.seed = 1;
  EXPECT_EQ(summaryText(comparison, 3),
            "Independent: 12 sets of 10 runs. 9,999 permutations, seed 1. p-values found after "
            "looking are exploratory; selections looked at so far: 3; check in halves.");
  comparison.pending = true;
  EXPECT_TRUE(summaryText(comparison, 3).contains("under way"));
  EXPECT_FALSE(summaryText(comparison, 3).contains("exploratory")) << "it may be one in halves";
  comparison.halved = true;
  comparison.seedOfHalves = 1;
  EXPECT_TRUE(summaryText(comparison, 3).startsWith("Tested is one half"));
  EXPECT_FALSE(summaryText(comparison, 3).contains("exploratory"));
}

TEST(ComparisonText, TitlesChartsByTheAdjustedPOrWhyThereIsNone)
{
  ComparedParameter parameter{"k", withP(0.01, 0.02), TestObstacle::none, true};
  EXPECT_EQ(chartTitle(parameter), "adjusted p = 0.020");
  parameter.result = withP(0.0, 0.0);
  EXPECT_EQ(chartTitle(parameter), "adjusted p < 1e-300");
  parameter.result = withP(0.0001, 0.0003, 9'999);
  EXPECT_EQ(chartTitle(parameter).toStdString(), "adjusted p \u2264 0.0003");
  for (const TestObstacle obstacle :
       {TestObstacle::emptyGroup, TestObstacle::constant, TestObstacle::chosenByParameter,
        TestObstacle::tooManyLevels, TestObstacle::tooFewUnits, TestObstacle::cancelled,
        TestObstacle::changingValues, TestObstacle::pending, TestObstacle::alikeInFirstHalf,
        TestObstacle::label})
  {
    parameter.obstacle = obstacle;
    EXPECT_EQ(chartTitle(parameter), obstacleLabel(obstacle));
    EXPECT_FALSE(obstacleLabel(obstacle).isEmpty());
    EXPECT_GT(obstacleText(obstacle).size(), 10);
  }
}

TEST(ComparisonText, NamesEveryMethodAndDirection)
{
  for (int method = 1; method <= static_cast<int>(stats::TestMethod::permutedLinkedRuns); ++method)
    EXPECT_FALSE(methodText(static_cast<stats::TestMethod>(method)).isEmpty()) << method;
  EXPECT_EQ(directionText(stats::Direction::larger), "larger in selected");
  EXPECT_EQ(directionText(stats::Direction::smaller), "smaller in selected");
  EXPECT_EQ(directionText(stats::Direction::bothWays), "larger and smaller");
  EXPECT_EQ(directionText(stats::Direction::none), "");
}

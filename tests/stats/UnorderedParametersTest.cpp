#include "stats/AdjustedPValues.h"
#include "stats/RunComparison.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

using namespace Talmesh::stats;

namespace
{
/// A study of one column of names, with so many selected and other runs of each.
struct CountedStudy
{
  CountedStudy(const std::vector<int>& selectedOfLevel, const std::vector<int>& othersOfLevel,
               const std::vector<double>& numbers)
  {
    for (std::size_t level = 0; level < numbers.size(); ++level)
    {
      add(numbers[level], selectedOfLevel[level], 1);
      add(numbers[level], othersOfLevel[level], 0);
    }
    // All parameters differ, so that runs are independent.
    columns.emplace_back(selected.size());
    std::iota(columns[1].begin(), columns[1].end(), 0.0);
  }

  void add(double value, int runs, char isSelected)
  {
    columns.resize(1);
    columns[0].insert(columns[0].end(), static_cast<std::size_t>(runs), value);
    selected.insert(selected.end(), static_cast<std::size_t>(runs), isSelected);
  }

  ParameterColumns columns;
  std::vector<char> selected;
};

ComparisonPlan firstIsUnordered()
{
  ComparisonPlan plan;
  plan.unordered = {0};
  return plan;
}

std::vector<double> countingFrom(double first, std::size_t count)
{
  std::vector<double> numbers(count);
  std::iota(numbers.begin(), numbers.end(), first);
  return numbers;
}

const std::vector<int> manySelected = {9, 1, 2, 3, 8, 2, 1, 4, 2, 3, 1, 4};
const std::vector<int> manyOthers = {3, 7, 4, 9, 2, 8, 6, 3, 7, 5, 8, 4};
} // namespace

TEST(UnorderedParameters, AreComparedByTheirCounts)
{
  const CountedStudy study({6, 1, 2}, {1, 6, 5}, {0, 1, 2});
  const auto rows = compareRuns(study.columns, study.selected, firstIsUnordered()).parameters;
  // R 4.2.2: m <- matrix(c(6, 1, 2, 1, 6, 5), ncol = 2); fisher.test(m)$p.value;
  // sqrt(chisq.test(m)$statistic / sum(m))
  EXPECT_NEAR(rows[0].p, 0.0419385567992375, 1e-14);
  EXPECT_NEAR(rows[0].association, 0.623609564462324, 1e-14);
  EXPECT_EQ(rows[0].effect(), rows[0].association);
  EXPECT_EQ(rows[0].method, TestMethod::exactCounts);
  EXPECT_EQ(rows[0].comparedBy, ComparedBy::counts);
  EXPECT_EQ(rows[0].levels, 3U);
  EXPECT_EQ(rows[0].leading, 0.0) << "6 of 9 against 1 of 12";
  EXPECT_EQ(rows[1].method, TestMethod::exactDistribution) << "numbers as before";
  EXPECT_EQ(rows[1].effect(), rows[1].distance);
}

TEST(UnorderedParameters, SayNothingThatNeedsAnOrder)
{
  const CountedStudy study({6, 1, 2}, {1, 6, 5}, {0, 1, 2});
  const auto row = compareRuns(study.columns, study.selected, firstIsUnordered()).parameters[0];
  EXPECT_TRUE(row.isUnordered);
  EXPECT_TRUE(std::isnan(row.distance));
  EXPECT_TRUE(std::isnan(row.interval.low));
  EXPECT_TRUE(std::isnan(row.superiority));
  EXPECT_TRUE(std::isnan(row.medianDifference));
  EXPECT_EQ(row.direction, Direction::none);
}

TEST(UnorderedParameters, AreTheSameUnderOtherNumbers)
{
  const CountedStudy study({6, 1, 2}, {1, 6, 5}, {0, 1, 2});
  for (const std::vector<double>& numbers :
       {std::vector<double>{1, 0, 2}, std::vector<double>{100, -3, 7}})
  {
    const CountedStudy renamed({6, 1, 2}, {1, 6, 5}, numbers);
    const auto one = compareRuns(study.columns, study.selected, firstIsUnordered());
    const auto other = compareRuns(renamed.columns, renamed.selected, firstIsUnordered());
    EXPECT_NEAR(other.parameters[0].p, one.parameters[0].p, 1e-14);
    EXPECT_NEAR(other.parameters[0].association, one.parameters[0].association, 1e-14);
    EXPECT_EQ(other.parameters[0].leading, numbers[0]);
  }
}

TEST(UnorderedParameters, PermuteSingleRunsWhereCountsAreManyAndSmall)
{
  const CountedStudy study(manySelected, manyOthers, countingFrom(0, 12));
  const auto compared = compareRuns(study.columns, study.selected, firstIsUnordered());
  const ParameterComparison& row = compared.parameters[0];
  EXPECT_EQ(row.method, TestMethod::permutedRuns);
  EXPECT_EQ(row.permutations, 9'999U);
  EXPECT_EQ(compared.units.kind, IndependentUnit::run);
  // R 4.2.2: chisq.test(cbind(selected, others), simulate.p.value = TRUE, B = 2e6)$p.value: 0.0040;
  // the chi-squared distribution has 0.0065. Four standard errors of 9,999 permutations.
  EXPECT_NEAR(row.p, 0.0040, 0.0026);
  EXPECT_LT(row.p, 0.0060);
  // sqrt(chisq.test(cbind(selected, others))$statistic / 106)
  EXPECT_NEAR(row.association, 0.495159955401668, 1e-14);
  EXPECT_EQ(compared.parameters[1].method, TestMethod::exactDistribution)
      << "numbers are not permuted with them";
  EXPECT_TRUE(takesTimeToCompare(study.columns, study.selected, firstIsUnordered()));
  EXPECT_FALSE(takesTimeToCompare(study.columns, study.selected));
}

TEST(UnorderedParameters, OfWholeSetsArePermutedWithThem)
{
  // Eight sets of three runs, of which the first four are selected and have a name of their own.
  ParameterColumns columns(2);
  std::vector<char> selected;
  for (int set = 0; set < 8; ++set)
    for (int run = 0; run < 3; ++run)
    {
      columns[0].push_back(set < 4 ? 5 : 2);
      columns[1].push_back(set);
      selected.push_back(set < 4 ? 1 : 0);
    }
  const auto compared = compareRuns(columns, selected, firstIsUnordered());
  EXPECT_EQ(compared.units.kind, IndependentUnit::parameterSet);
  EXPECT_EQ(compared.parameters[0].method, TestMethod::permutedSets);
  EXPECT_EQ(compared.parameters[0].association, 1.0);
  // Two of the choose(8, 4) = 70 ways are as extreme; four standard errors.
  EXPECT_NEAR(compared.parameters[0].p, 2.0 / 70.0, 0.0067);
}

TEST(UnorderedParameters, CountAmongThoseThatPIsAdjustedFor)
{
  const CountedStudy study({6, 1, 2}, {1, 6, 5}, {0, 1, 2});
  const auto rows = compareRuns(study.columns, study.selected, firstIsUnordered()).parameters;
  const std::vector<double> adjusted = benjaminiHochberg({rows[0].p, rows[1].p});
  EXPECT_EQ(rows[0].adjusted, adjusted[0]);
  EXPECT_EQ(rows[1].adjusted, adjusted[1]);
}

TEST(UnorderedParameters, AreOfOneScaleWithOthersWherePermutationsAdjust)
{
  // Chi-squared of the names, some 8 of 21 runs, would exceed every D of the numbers, which is at
  // most 1, and make each of their adjusted p as large as that of the names.
  const CountedStudy study({6, 1, 2}, {1, 6, 5}, {0, 1, 2});
  ParameterColumns columns = study.columns;
  for (std::size_t run = 0; run < study.selected.size(); ++run)
    columns[1][run] += study.selected[run] != 0 ? 100.0 : 0.0;
  ComparisonPlan plan = firstIsUnordered();
  plan.adjustment = Adjustment::maxT;
  const auto rows = compareRuns(columns, study.selected, plan).parameters;
  EXPECT_EQ(rows[1].distance, 1.0);
  EXPECT_LE(rows[1].adjusted, 0.001);
  EXPECT_NEAR(rows[0].adjusted, rows[0].p, 0.02) << "alone in the second step";
}

TEST(UnorderedParameters, AreNotTestedWithTooManyNames)
{
  const CountedStudy study(std::vector<int>(51, 1), std::vector<int>(51, 1), countingFrom(0, 51));
  EXPECT_EQ(compareRuns(study.columns, study.selected, firstIsUnordered()).parameters[0].reason,
            NotTested::tooManyLevels);
}

#include "stats/SelectionPermutation.h"

#include "stats/SimulatedStudies.h"
#include "stats/TiedKolmogorovSmirnov.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <numeric>

using namespace Talmesh::stats;

namespace
{
using Numbers = std::vector<std::uint32_t>;

std::vector<RankedCells> ranked(const ExchangeUnits& units, const ParameterColumns& columns)
{
  std::vector<RankedCells> parameters;
  for (const std::vector<double>& column : columns)
    parameters.emplace_back(units, column);
  return parameters;
}

/// A study and a selection in it, ready to be permuted.
struct Permuted
{
  Permuted(const ParameterColumns& parameterColumns, const std::vector<char>& chosen)
      : columns(parameterColumns)
      , units(exchangeUnits(columns))
      , parameters(ranked(units, columns))
      , selected(selectedOfCells(units, chosen))
  {
  }

  PermutationCounts counts(const PermutationPlan& plan) const
  {
    return permuteSelection(units, parameters, selected, plan);
  }
  std::vector<double> p(const PermutationPlan& plan) const { return permutationP(counts(plan)); }
  std::vector<double> observed() const
  {
    std::vector<double> statistics;
    for (const RankedCells& parameter : parameters)
      statistics.push_back(parameter.statistic(ComparedBy::distribution, selected));
    return statistics;
  }

  ParameterColumns columns;
  ExchangeUnits units;
  std::vector<RankedCells> parameters;
  Numbers selected;
};

PermutationPlan plan(std::size_t permutations, std::uint64_t seed = 1)
{
  PermutationPlan result;
  result.permutations = permutations;
  result.seed = seed;
  return result;
}

/// Four standard deviations of a share of so many permutations.
double tolerance(double p, double permutations)
{
  return 4.0 * std::sqrt(p * (1.0 - p) / permutations) + 1.0 / permutations;
}

Permuted simulated(StudyDesign design, bool firstDecides, std::uint64_t seed)
{
  const SimulatedStudy study = simulateStudy(design, firstDecides, seed);
  return {study.columns, study.selected};
}
} // namespace

TEST(SelectionPermutation, ApproachesTheExactTestOfSingleRuns)
{
  const ParameterColumns columns{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12},
                                 {1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4}};
  const Permuted study(columns, {0, 1, 0, 0, 0, 0, 1, 1, 0, 0, 1, 1});
  const std::vector<double> p = study.p(plan(20000));
  for (std::size_t parameter = 0; parameter < 2; ++parameter)
  {
    const double exact = tiedKsTest(study.parameters[parameter].blocks(study.selected)).p;
    EXPECT_GT(exact, 0.1);
    EXPECT_NEAR(p[parameter], exact, tolerance(exact, 20000));
  }
}

TEST(SelectionPermutation, KeepsTheRunsOfASetTogether)
{
  // Six sets of two; both runs of the two highest are selected. D = 1 in 1 of the 15 choices of two
  // sets, and in the one at the other end.
  const Permuted study({{1, 1, 2, 2, 3, 3, 4, 4, 5, 5, 6, 6}},
                       {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1});
  EXPECT_NEAR(study.p(plan(20000)).front(), 2.0 / 15.0, tolerance(2.0 / 15.0, 20000));
}

TEST(SelectionPermutation, ExchangesSetsOfOneSizeOnly)
{
  // The three sets of two are all selected, the three single runs are not: nothing can change.
  const ParameterColumns columns{{1, 2, 3, 4, 4, 5, 5, 6, 6}, {1, 5, 3, 2, 2, 4, 4, 6, 6}};
  const Permuted whole(columns, {0, 0, 0, 1, 1, 1, 1, 1, 1});
  EXPECT_EQ(whole.p(plan(500)), (std::vector<double>{1.0, 1.0}));
  // One set of each size is selected, of 3 by 3.
  const Permuted mixed(columns, {0, 0, 1, 0, 0, 0, 0, 1, 1});
  std::vector<double> reached(2, 0.0);
  for (const std::size_t single : {0U, 1U, 2U})
  {
    for (const std::size_t pair : {3U, 4U, 5U})
    {
      Numbers selected(6, 0);
      selected[single] = 1;
      selected[pair] = 2;
      for (std::size_t parameter = 0; parameter < 2; ++parameter)
        reached[parameter] += mixed.parameters[parameter].statistic(
                                  ComparedBy::distribution, selected) >= mixed.observed()[parameter]
                                  ? 1.0 / 9.0
                                  : 0.0;
    }
  }
  const std::vector<double> p = mixed.p(plan(20000));
  for (std::size_t parameter = 0; parameter < 2; ++parameter)
  {
    EXPECT_LT(reached[parameter], 0.9);
    EXPECT_NEAR(p[parameter], reached[parameter], tolerance(reached[parameter], 20000));
  }
}

TEST(SelectionPermutation, MovesTheWholePatternOfABaseSample)
{
  // In the first base sample what has the first coordinate of A is selected, in the second one what
  // has that of B, and so on: the pattern may move to another sample, but not within.
  const ParameterColumns columns = saltelliPoints(4, 2, 3);
  const std::vector<char> chosen{1, 0, 1, 0, 0, 1, 0, 1, 1, 0, 1, 0, 0, 0, 0, 0};
  const Permuted study(columns, chosen);
  ASSERT_EQ(study.units.kind, IndependentUnit::baseSample);
  std::vector<std::size_t> order{0, 1, 2, 3};
  double reached = 0.0;
  do
  {
    Numbers selected(16);
    for (std::size_t run = 0; run < 16; ++run)
      selected[run] = std::uint32_t(chosen[order[run / 4] * 4 + run % 4]);
    const double statistic = study.parameters[0].statistic(ComparedBy::distribution, selected);
    reached += statistic >= study.observed()[0] * (1.0 - 1e-12) ? 1.0 / 24.0 : 0.0;
  } while (std::next_permutation(order.begin(), order.end()));
  EXPECT_LT(reached, 1.0);
  EXPECT_NEAR(study.p(plan(20000)).front(), reached, tolerance(reached, 20000));
}

TEST(SelectionPermutation, AdjustsByTheLargestStatistic)
{
  // Five runs, so that all 120 permutations can be listed.
  const ParameterColumns columns{{1, 2, 3, 4, 5}, {2, 1, 4, 3, 5}, {5, 3, 1, 2, 4}};
  const Permuted study(columns, {0, 0, 0, 1, 1});
  const std::vector<double> observed = study.observed();
  ASSERT_GT(observed[0], observed[1]);
  ASSERT_GT(observed[1], observed[2]);
  Numbers selected{0, 0, 0, 1, 1};
  std::vector<double> reached(3, 0.0);
  int choices = 0;
  do
  {
    ++choices;
    double largest = 0.0;
    for (std::size_t parameter = 3; parameter-- > 0;)
    {
      largest = std::max(largest,
                         study.parameters[parameter].statistic(ComparedBy::distribution, selected));
      reached[parameter] += largest >= observed[parameter] * (1.0 - 1e-12) ? 1.0 : 0.0;
    }
  } while (std::next_permutation(selected.begin(), selected.end()));
  const std::vector<double> adjusted = maxTAdjusted(study.counts(plan(20000)), observed);
  double expected = 0.0;
  for (std::size_t parameter = 0; parameter < 3; ++parameter)
  {
    expected = std::max(expected, reached[parameter] / choices);
    EXPECT_NEAR(adjusted[parameter], expected, tolerance(expected, 20000)) << parameter;
  }
}

TEST(SelectionPermutation, AdjustsCopiesOfAParameterByNothing)
{
  const SimulatedStudy study = simulateStudy(StudyDesign::fiveReplicates, false, 4);
  const std::vector<double>& column = study.columns[1];
  const Permuted copies({column, column, column}, study.selected);
  const PermutationCounts counts = copies.counts(plan(999));
  EXPECT_EQ(maxTAdjusted(counts, copies.observed()), permutationP(counts));
}

TEST(SelectionPermutation, DependsOnTheSeedAndNotOnOtherParametersOrThreads)
{
  const Permuted study = simulated(StudyDesign::saltelli, false, 1);
  const PermutationCounts counts = study.counts(plan(999, 5));
  for (int again = 0; again < 5; ++again)
    EXPECT_EQ(study.counts(plan(999, 5)).reached, counts.reached);
  EXPECT_NE(study.counts(plan(999, 6)).reached, counts.reached);
  for (std::size_t parameter = 0; parameter < 3; ++parameter)
  {
    const PermutationCounts alone =
        permuteSelection(study.units, {study.parameters[parameter]}, study.selected, plan(999, 5));
    EXPECT_EQ(alone.reached.front(), counts.reached[parameter]);
  }
}

TEST(SelectionPermutation, CountsTheObservedSelectionAsOneOfThem)
{
  PermutationCounts counts;
  counts.permutations = 9999;
  counts.reached = {0, 499, 9999};
  EXPECT_EQ(permutationP(counts), (std::vector<double>{0.0001, 0.05, 1.0}));
}

TEST(SelectionPermutation, EndsWhenCancelledAndTellsHowFarItIs)
{
  const Permuted study = simulated(StudyDesign::fiveReplicates, false, 1);
  PermutationPlan cancelled = plan(100000);
  std::atomic<int> calls{0};
  cancelled.progress = [&calls](double) { return ++calls < 3; };
  const PermutationCounts nothing = study.counts(cancelled);
  EXPECT_EQ(nothing.permutations, 0U);
  EXPECT_TRUE(nothing.reached.empty());
  EXPECT_EQ(calls, 3);

  PermutationPlan whole = plan(100);
  std::vector<double> parts;
  whole.progress = [&parts](double part)
  {
    parts.push_back(part);
    return true;
  };
  EXPECT_EQ(study.counts(whole).permutations, 100U);
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
  ASSERT_FALSE(parts.empty());
  EXPECT_EQ(parts.back(), 1.0);
}

#include "stats/RankedParameter.h"

#include "stats/RankedSamples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Talmesh::stats;
using namespace RankedSamples;

namespace
{
ColumnValue valuesOf(const List& column)
{
  return [&column](std::size_t row) { return column.at(row); };
}

RankedParameters rank(Lists lists, const std::vector<std::pair<double, double>>& bounds = {})
{
  KernelCalls calls;
  return rankParameters(std::move(lists), bounds, calls.exact());
}
} // namespace

TEST(RankedParameter, ThinsTheOwnDataAndKeepsDuplicates)
{
  const List column{5, 9, 3, 9, 5, 9, 1};
  EXPECT_EQ(thinnedValues(column.size(), 2, valuesOf(column)), (List{1, 3, 5, 5}));
  EXPECT_EQ(thinnedValues(column.size(), 4, valuesOf(column)), (List{5, 5}));
  EXPECT_EQ(thinnedValues(column.size(), 100, valuesOf(column)), (List{5}));
  EXPECT_EQ(thinnedValues(column.size(), std::numeric_limits<int>::max(), valuesOf(column)),
            (List{5}));
}

TEST(RankedParameter, CountsAStrideBelowOneAsOne)
{
  const List column{2, 1, 2};
  for (int stride : {1, 0, -3, std::numeric_limits<int>::min()})
  {
    EXPECT_EQ(thinnedValues(column.size(), stride, valuesOf(column)), (List{1, 2, 2}));
  }
}

TEST(RankedParameter, RemovesDuplicatesOfExternalData)
{
  const List column{5, 9, 3, 9, 5, -0.0, 0.0};
  EXPECT_EQ(distinctValues(column.size(), valuesOf(column)), (List{0, 3, 5, 9}));
}

TEST(RankedParameter, LeavesOutNaNAndSortsInfinitiesInPlace)
{
  const List column{notANumber, 2, -infinity, notANumber, infinity, 1, 2};
  EXPECT_EQ(thinnedValues(column.size(), 1, valuesOf(column)),
            (List{-infinity, 1, 2, 2, infinity}));
  EXPECT_EQ(distinctValues(column.size(), valuesOf(column)), (List{-infinity, 1, 2, infinity}));
}

TEST(RankedParameter, CollectsNothingFromAnEmptyColumn)
{
  const List column;
  EXPECT_TRUE(thinnedValues(0, 3, valuesOf(column)).empty());
  EXPECT_TRUE(distinctValues(0, valuesOf(column)).empty());
}

TEST(ParameterSupport, IsTheExtentOfTheValuesWithoutBounds)
{
  const ParameterSupport support = parameterSupport({-1, 2, 5}, std::nullopt);
  EXPECT_EQ(support.lower, -1.0);
  EXPECT_EQ(support.upper, 5.0);
  EXPECT_EQ(support.range, 6.0);
  EXPECT_FALSE(support.degenerate);
}

TEST(ParameterSupport, WidensOnlyTheUpperBoundByTheData)
{
  const ParameterSupport inside = parameterSupport({1, 2}, std::make_pair(0.0, 10.0));
  EXPECT_EQ(inside.lower, 0.0);
  EXPECT_EQ(inside.upper, 10.0);
  const ParameterSupport outside = parameterSupport({-5, 12}, std::make_pair(0.0, 10.0));
  EXPECT_EQ(outside.lower, 0.0);
  EXPECT_EQ(outside.upper, 12.0);
  EXPECT_EQ(outside.range, 12.0);
}

TEST(ParameterSupport, HasAFiniteRangeBelowAnInfiniteUpperBound)
{
  const ParameterSupport support = parameterSupport({2, 10}, std::make_pair(1.0, infinity));
  EXPECT_EQ(support.upper, infinity);
  EXPECT_EQ(support.range, 1.1 * 10.0 - 1.0);
  EXPECT_FALSE(support.degenerate);
  EXPECT_EQ(
      parameterSupport({2, 10}, std::make_pair(1.0, std::numeric_limits<double>::max())).upper,
      std::numeric_limits<double>::max());
}

TEST(ParameterSupport, WidensAnEmptyRange)
{
  const ParameterSupport support = parameterSupport({4, 4}, std::make_pair(4.0, 4.0));
  EXPECT_TRUE(support.degenerate);
  EXPECT_EQ(support.lower, 0.95 * 4.0);
  EXPECT_EQ(support.upper, 1.05 * 4.0);
  EXPECT_EQ(support.range, 1.05 * 4.0 - 0.95 * 4.0);
  EXPECT_FALSE(parameterSupport({4, 4}, std::make_pair(0.0, 4.0)).degenerate);
}

TEST(ParameterSupport, KeepsTheArithmeticForNegativeAndZeroConstants)
{
  const ParameterSupport negative = parameterSupport({-2}, std::nullopt);
  EXPECT_TRUE(negative.degenerate);
  EXPECT_EQ(negative.lower, 0.95 * -2.0);
  EXPECT_EQ(negative.upper, 1.05 * -2.0);
  EXPECT_LT(negative.range, 0.0);
  const ParameterSupport zero = parameterSupport({0}, std::nullopt);
  EXPECT_TRUE(zero.degenerate);
  EXPECT_EQ(zero.range, 0.0);
}

TEST(ParameterSupport, IgnoresNaNUnlessNothingElseIsThere)
{
  const ParameterSupport support = parameterSupport({1, 3, notANumber}, std::nullopt);
  EXPECT_EQ(support.upper, 3.0);
  EXPECT_EQ(parameterSupport({1, 3, notANumber}, std::make_pair(0.0, 2.0)).upper, 3.0);
  for (const List& values : {List{}, List{notANumber, notANumber}})
  {
    EXPECT_TRUE(std::isnan(parameterSupport(values, std::nullopt).range));
    EXPECT_EQ(parameterSupport(values, std::make_pair(0.0, 2.0)).range, 2.0);
  }
}

TEST(RankedParameter, RanksAreCumulativeFractionsOfTheSortedValues)
{
  const RankedParameters result = rank({List{1, 2, 2, 7}});
  ASSERT_EQ(result.parameters.size(), 1u);
  EXPECT_EQ(result.positions, 4u);
  EXPECT_EQ(copy(result.parameters[0]->ranks), (List{0.25, 0.5, 0.75, 1.0}));
  EXPECT_EQ(copy(result.parameters[0]->sortedValues), (List{1, 2, 2, 7}));
  EXPECT_EQ(result.parameters[0]->densities.size(), densityLocations);
  EXPECT_EQ(result.parameters[0]->locations.size(), densityLocations);
}

TEST(RankedParameter, FillsShorterListsWithTheirLastValue)
{
  const RankedParameters result = rank({List{1, 2}, List{1, 2, 3, 4}});
  EXPECT_EQ(result.positions, 4u);
  EXPECT_EQ(result.parameters[0]->valueCount, 2u);
  EXPECT_EQ(result.parameters[1]->valueCount, 4u);
  EXPECT_EQ(copy(result.parameters[0]->sortedValues), (List{1, 2, 2, 2}));
  EXPECT_EQ(copy(result.parameters[0]->ranks), (List{0.25, 0.5, 0.75, 1.0}));
}

TEST(RankedParameter, EstimatesTheDensityOfAShorterListFromItsOwnValues)
{
  // Half as many values of the same distribution, so that every one counts twice.
  List half;
  List whole;
  for (int i = 0; i < 20; ++i)
  {
    half.push_back(i);
    whole.insert(whole.end(), {1.0 * i, 1.0 * i});
  }
  const RankedParameters result = rank({half, whole}, {{-1, 20}, {-1, 20}});
  ASSERT_EQ(result.parameters[0]->valueCount, 20u);
  EXPECT_EQ(copy(result.parameters[0]->densities), copy(result.parameters[1]->densities));
}

TEST(RankedParameter, StepsTheRanksOfAConstantAtItsMiddle)
{
  const RankedParameters result = rank({List{4, 4, 4, 4, 4}});
  const double range = 1.05 * 4.0 - 0.95 * 4.0;
  EXPECT_EQ(copy(result.parameters[0]->ranks), (List{0, 0, 1, 1, 1}));
  const List sorted = copy(result.parameters[0]->sortedValues);
  for (std::size_t i = 0; i < 5; ++i)
  {
    EXPECT_DOUBLE_EQ(sorted[i], 0.95 * 4.0 + static_cast<double>(i) * range / 5.0);
    EXPECT_LT(sorted[i], 1.05 * 4.0);
  }
}

TEST(RankedParameter, RanksOneDistinctValueAsOne)
{
  const RankedParameters result = rank({List{4}});
  EXPECT_EQ(copy(result.parameters[0]->ranks), (List{1}));
}

TEST(RankedParameter, ReportsBoundsOfAnotherCountAndUsesTheExtent)
{
  const RankedParameters ignored = rank({List{1, 3}}, {{0, 10}, {0, 10}});
  EXPECT_TRUE(ignored.boundsIgnored);
  EXPECT_DOUBLE_EQ(ignored.parameters[0]->locations[0], 1.0);
  EXPECT_DOUBLE_EQ(ignored.parameters[0]->locations[199], 3.0);
  const RankedParameters used = rank({List{1, 3}}, {{0, 10}});
  EXPECT_FALSE(used.boundsIgnored);
  EXPECT_DOUBLE_EQ(used.parameters[0]->locations[0], 0.0);
  EXPECT_DOUBLE_EQ(used.parameters[0]->locations[199], 10.0);
}

TEST(RankedParameter, SkipsAbsentListsButKeepsTheirBounds)
{
  const RankedParameters result = rank({std::nullopt, List{1, 3}}, {{0, 1}, {-5, 10}});
  EXPECT_FALSE(result.boundsIgnored);
  ASSERT_EQ(result.parameters.size(), 2u);
  EXPECT_FALSE(result.parameters[0].has_value());
  EXPECT_DOUBLE_EQ(result.parameters[1]->locations[0], -5.0);
  EXPECT_EQ(result.positions, 2u);
}

TEST(RankedParameter, DoesNothingWithoutParameters)
{
  const RankedParameters result = rank({});
  EXPECT_TRUE(result.parameters.empty());
  EXPECT_EQ(result.positions, 0u);
  EXPECT_FALSE(result.boundsIgnored);
}

TEST(RankedParameter, SurvivesEmptyLists)
{
  const RankedParameters alone = rank({List{}});
  EXPECT_EQ(alone.positions, 0u);
  EXPECT_EQ(alone.parameters[0]->ranks.size(), 0u);
  EXPECT_EQ(copy(alone.parameters[0]->densities), List(densityLocations, 0.0));

  const RankedParameters degenerate = rank({List{}}, {{2, 2}});
  EXPECT_EQ(copy(degenerate.parameters[0]->densities), List(densityLocations, 0.0));

  const RankedParameters beside = rank({List{}, countingList(20)}, {{0, 1}, {0, 30}});
  EXPECT_EQ(beside.parameters[0]->valueCount, 0u);
  EXPECT_EQ(beside.parameters[0]->ranks[19], 1.0);
  EXPECT_TRUE(std::isnan(beside.parameters[0]->sortedValues[0]));
}

TEST(RankedParameter, SurvivesInfinitiesAndNaN)
{
  for (const List& values : {List{-infinity, 1, infinity}, List{1, notANumber}, List(20, infinity),
                             List(20, -infinity), List(20, notANumber)})
  {
    const RankedParameters result = rank({values});
    EXPECT_EQ(result.parameters[0]->ranks.size(), values.size());
    EXPECT_EQ(rank({values}, {{0, infinity}}).positions, values.size());
  }
}

TEST(RankedParameter, HandsItsMemoryOver)
{
  RankedParameters result = rank({List{1, 2}});
  DoubleBuffer& buffer = result.parameters[0]->sortedValues;
  const double* before = buffer.data();
  const std::unique_ptr<double[]> owner(buffer.release());
  EXPECT_EQ(owner.get(), before);
  EXPECT_EQ(owner[1], 2.0);
  EXPECT_EQ(buffer.size(), 0u);
  EXPECT_EQ(buffer.data(), nullptr);
}

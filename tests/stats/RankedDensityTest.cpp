#include "stats/RankedDensity.h"

#include "stats/RankedSamples.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::stats;
using namespace RankedSamples;

TEST(RankedDensity, ArrangesTheReflectionsInBlocks)
{
  const ReflectedReferences both =
      reflectedReferences({0, 5, 10}, parameterSupport({0, 5, 10}, std::nullopt));
  EXPECT_EQ(both.blocks, 3u);
  EXPECT_EQ(both.count, 3u);
  EXPECT_EQ(both.start, 1.0 / 3.0);
  EXPECT_EQ(both.points, (List{0.0, 0.5 / 3.0, 1.0 / 3.0, 1.0 / 3.0, 1.5 / 3.0, 2.0 / 3.0,
                               2.0 / 3.0, 2.5 / 3.0, 1.0}));
  EXPECT_DOUBLE_EQ(both.mean, 0.5);

  const List values{2, 10};
  const ReflectedReferences lower =
      reflectedReferences(values, parameterSupport(values, std::make_pair(1.0, infinity)));
  EXPECT_EQ(lower.blocks, 2u);
  EXPECT_EQ(lower.start, 0.5);
  EXPECT_EQ(lower.points,
            (List{(1.0 - 0.9) / 2.0, (1.0 - 0.1) / 2.0, (1.0 + 0.1) / 2.0, (1.0 + 0.9) / 2.0}));
}

TEST(RankedDensity, ThinsToFewerThanEightHundredReferences)
{
  const std::size_t sizesAndCounts[][2] = {{399, 399},  {400, 400},   {799, 799},  {800, 400},
                                           {801, 400},  {999, 499},   {1000, 500}, {1199, 599},
                                           {1200, 400}, {100000, 400}};
  for (const auto& row : sizesAndCounts)
  {
    const List values = countingList(row[0]);
    const ReflectedReferences references =
        reflectedReferences(values, parameterSupport(values, std::nullopt));
    EXPECT_EQ(references.count, row[1]);
    EXPECT_EQ(references.points.size(), 3 * row[1]);
    // Every place is taken, and the mean counts all values, thinned or not.
    EXPECT_NEAR(references.mean, 0.5, 1e-9);
    EXPECT_GT(references.points.back(), 0.0);
    EXPECT_GT(references.points.front(), -1e-12);
  }
}

TEST(RankedDensity, TakesEverySecondOfAThousandValues)
{
  const List values = countingList(1000);
  const ReflectedReferences references =
      reflectedReferences(values, parameterSupport(values, std::nullopt));
  EXPECT_EQ(references.points[500], 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(references.points[501], (1.0 + 2.0 / 999.0) / 3.0);
  EXPECT_DOUBLE_EQ(references.points[999], (1.0 + 998.0 / 999.0) / 3.0);
}

TEST(RankedDensity, LimitsTheBandwidthToAFifthOfAStep)
{
  // Both quartiles equal: the spread is 0, and with it the rule of thumb.
  List values(20, 5.0);
  values.front() = 0.0;
  values.back() = 10.0;
  EXPECT_NEAR(estimate(values).calls.bandwidth, 0.2 / (199.0 * 3.0), 1e-15);
}

TEST(RankedDensity, UsesTheSmallerOfDeviationAndSpread)
{
  // The numbers 0..15 on the middle third: spread (12 - 4) / 45 / 1.34, deviation sqrt(255 / 12)
  // / 45.
  List values = countingList(16);
  const double deviation = std::sqrt(255.0 / 12.0) / 45.0;
  const double spread = 8.0 / 45.0 / 1.34;
  ASSERT_LT(deviation, spread);
  EXPECT_NEAR(estimate(values).calls.bandwidth, 1.06 * deviation * std::pow(16.0, -0.2), 1e-14);
}

TEST(RankedDensity, UsesTheSpreadOfTheQuartilesWhenOutliersWidenTheDeviation)
{
  // 0, 45, 46, ..., 58, 100 on the middle third: the values at the positions 12 and 4 are 56
  // and 48.
  List values{0.0};
  for (int value = 45; value <= 58; ++value)
  {
    values.push_back(value);
  }
  values.push_back(100.0);
  const double spread = 8.0 / 300.0 / 1.34;
  EXPECT_NEAR(estimate(values).calls.bandwidth, 1.06 * spread * std::pow(16.0, -0.2), 1e-14);
}

TEST(RankedDensity, NeedsElevenValuesForAKernel)
{
  const Density ten = estimate(countingList(10));
  EXPECT_EQ(ten.calls.count, 0);
  double marks = 0.0;
  for (double value : ten.densities)
  {
    EXPECT_TRUE(value == 0.0 || value == 1.0);
    marks += value;
  }
  EXPECT_EQ(marks, 10.0);
  const Density eleven = estimate(countingList(11));
  EXPECT_EQ(eleven.calls.count, 1);
  EXPECT_NE(eleven.densities[100], std::floor(eleven.densities[100]));
}

TEST(RankedDensity, MarksFewValuesAtTheirPlaces)
{
  // Steps of one: the values lie on the locations 0, 3 and 199.
  const Density density = estimate({0, 3, 199});
  for (std::size_t i = 0; i < densityLocations; ++i)
  {
    EXPECT_DOUBLE_EQ(density.locations[i], static_cast<double>(i));
    EXPECT_EQ(density.densities[i], i == 0 || i == 3 || i == 199 ? 1.0 : 0.0) << i;
  }
}

TEST(RankedDensity, LetsAPassedValueBlockThoseBehindIt)
{
  // The second 3 would need location 3 again; at 4 it lies below the window and stays there.
  const Density density = estimate({0, 3, 3, 10, 199});
  for (std::size_t i = 0; i < densityLocations; ++i)
  {
    EXPECT_EQ(density.densities[i], i == 0 || i == 3 ? 1.0 : 0.0) << i;
  }
  // So does a value below the lower bound.
  const Density below = estimate({-7, 20}, std::make_pair(0.0, 199.0));
  EXPECT_EQ(below.densities, List(densityLocations, 0.0));
}

TEST(RankedDensity, MarksTwoValuesWithinOneStepAtNeighbouringLocations)
{
  // 3.5 lies at the end of the windows of both 3 and 4.
  const Density density = estimate({0, 3, 3.5, 199});
  EXPECT_EQ(density.densities[3], 1.0);
  EXPECT_EQ(density.densities[4], 1.0);
  EXPECT_EQ(density.densities[199], 1.0);
}

TEST(RankedDensity, MarksAConstantWithinHalfAStep)
{
  for (std::size_t count : {1u, 5u, 500u})
  {
    const Density density = estimate(List(count, 4.0));
    EXPECT_EQ(density.calls.count, 0);
    const double lower = 0.95 * 4.0;
    const double range = 1.05 * 4.0 - lower;
    for (std::size_t i = 0; i < densityLocations; ++i)
    {
      const double location = static_cast<double>(i) * range / 199.0 + lower;
      EXPECT_EQ(density.locations[i], location);
      EXPECT_EQ(density.densities[i], std::abs(location - 4.0) <= 0.5 * range / 199.0 ? 1.0 : 0.0);
    }
    // The value lies halfway between two locations, so that rounding decides which of them count.
    EXPECT_EQ(density.densities[98] + density.densities[101], 0.0);
    EXPECT_GE(density.densities[99] + density.densities[100], 1.0);
  }
}

TEST(RankedDensity, MarksNothingOfANegativeAndEverythingOfAZeroConstant)
{
  EXPECT_EQ(estimate(List(3, -2.0)).densities, List(densityLocations, 0.0));
  const Density zero = estimate(List(3, 0.0));
  EXPECT_EQ(zero.densities, List(densityLocations, 1.0));
  EXPECT_EQ(zero.locations, List(densityLocations, 0.0));
}

TEST(RankedDensity, HasAMeanOfNaNWithoutValues)
{
  const ReflectedReferences references =
      reflectedReferences({}, parameterSupport({}, std::make_pair(0.0, 1.0)));
  EXPECT_EQ(references.count, 0u);
  EXPECT_TRUE(std::isnan(references.mean));
}

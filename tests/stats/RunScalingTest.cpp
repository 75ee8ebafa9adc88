#include "stats/RunScaling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

using namespace Talmesh::stats;

namespace
{
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
} // namespace

TEST(RunScaling, CountsWholeRunsOnly)
{
  EXPECT_EQ(wholeRuns(12, 4), 3u);
  EXPECT_EQ(wholeRuns(11, 4), 2u);
  EXPECT_EQ(wholeRuns(3, 4), 0u);
  EXPECT_EQ(wholeRuns(0, 4), 0u);
  EXPECT_EQ(wholeRuns(12, 0), 0u);
  EXPECT_EQ(wholeRuns(12, -4), 0u);
  EXPECT_EQ(wholeRuns(12, std::numeric_limits<int>::min()), 0u);
}

TEST(RunScaling, ScalesEachRunByItsFactorAndLeavesThePartialRun)
{
  std::vector<double> values{1, 2, 3, 4, 5};
  const double factors[] = {10.0, -0.5};
  scaleRuns(values.data(), values.size(), 2, factors);
  EXPECT_EQ(values, (std::vector<double>{10, 20, -1.5, -2, 5}));
}

TEST(RunScaling, MultipliesByTheRulesOfIeee)
{
  std::vector<double> values{0.0, 2.0, -1.0};
  const double factors[] = {infinity};
  scaleRuns(values.data(), values.size(), 3, factors);
  EXPECT_TRUE(std::isnan(values[0]));
  EXPECT_EQ(values[1], infinity);
  EXPECT_EQ(values[2], -infinity);
}

TEST(RunScaling, ChangesNothingWithoutAWholeRun)
{
  const std::vector<double> original{1, 2, 3};
  for (int stride : {4, 0, -1, std::numeric_limits<int>::min()})
  {
    std::vector<double> values = original;
    scaleRuns(values.data(), values.size(), stride, nullptr);
    normaliseRunsToMaximum(values.data(), values.size(), stride);
    EXPECT_EQ(values, original) << "stride " << stride;
  }
}

TEST(RunScaling, NormalisesEachRunToItsLargestNumber)
{
  std::vector<double> values{2, 4, notANumber, -1, 10, 5, 1, 0, 7};
  normaliseRunsToMaximum(values.data(), values.size(), 4);
  EXPECT_EQ(values[0], 0.5);
  EXPECT_EQ(values[1], 1.0);
  EXPECT_TRUE(std::isnan(values[2]));
  EXPECT_EQ(values[3], -0.25);
  EXPECT_EQ(values[4], 1.0);
  EXPECT_EQ(values[5], 0.5);
  EXPECT_EQ(values[6], 0.1);
  EXPECT_EQ(values[7], 0.0);
  EXPECT_EQ(values[8], 7.0);
}

TEST(RunScaling, MakesInfinitiesOfRunsWithoutAPositiveValue)
{
  std::vector<double> values{0, 0, -2, 0};
  normaliseRunsToMaximum(values.data(), values.size(), 2);
  EXPECT_TRUE(std::isnan(values[0]));
  EXPECT_TRUE(std::isnan(values[1]));
  EXPECT_EQ(values[2], -infinity);
  EXPECT_TRUE(std::isnan(values[3]));
}

TEST(RunScaling, MultipliesByTheReciprocalOfTheMaximum)
{
  // 5 * (1 / 49) and 5 / 49 differ in the last bit; so does 49 * (1 / 49) from 1.
  std::vector<double> values{49.0, 5.0};
  const double reciprocal = 1.0 / 49.0;
  ASSERT_NE(49.0 * reciprocal, 1.0);
  normaliseRunsToMaximum(values.data(), values.size(), 2);
  EXPECT_EQ(values[0], 49.0 * reciprocal);
  EXPECT_EQ(values[1], 5.0 * reciprocal);
}

TEST(RunScaling, MultipliesAndDividesElementwise)
{
  const std::vector<double> by{2, 0, 0, -4, infinity};
  std::vector<double> product{3, 1, 0, 2, 0};
  std::vector<double> quotient = product;
  multiplyElementwise(product.data(), by.data(), product.size());
  divideElementwise(quotient.data(), by.data(), quotient.size());
  EXPECT_EQ(product[0], 6.0);
  EXPECT_EQ(product[1], 0.0);
  EXPECT_EQ(product[3], -8.0);
  EXPECT_TRUE(std::isnan(product[4]));
  EXPECT_EQ(quotient[0], 1.5);
  EXPECT_EQ(quotient[1], infinity);
  EXPECT_TRUE(std::isnan(quotient[2]));
  EXPECT_EQ(quotient[3], -0.5);
  EXPECT_EQ(quotient[4], 0.0);
}

TEST(RunScaling, MayScaleAColumnByItself)
{
  std::vector<double> values{3, -2};
  multiplyElementwise(values.data(), values.data(), values.size());
  EXPECT_EQ(values, (std::vector<double>{9, 4}));
  divideElementwise(values.data(), values.data(), values.size());
  EXPECT_EQ(values, (std::vector<double>{1, 1}));
}

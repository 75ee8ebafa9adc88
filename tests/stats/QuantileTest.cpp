#include "stats/Quantile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

using Talmesh::stats::averagedQuantile;
using Talmesh::stats::FiveNumbers;
using Talmesh::stats::fiveNumbers;
using Talmesh::stats::fiveNumbersOfPositions;

TEST(Quantile, AgreesWithAReferenceForEveryCountUpToForty)
{
  // R 4.2.2: for (n in 1:40) quantile((1:n)^2, c(0.25, 0.5, 0.75), type = 2)
  const double quartiles[][3] = {
      {1, 1, 1},       {1, 2.5, 4},       {1, 4, 9},       {2.5, 6.5, 12.5},
      {4, 9, 16},      {4, 12.5, 25},     {4, 16, 36},     {6.5, 20.5, 42.5},
      {9, 25, 49},     {9, 30.5, 64},     {9, 36, 81},     {12.5, 42.5, 90.5},
      {16, 49, 100},   {16, 56.5, 121},   {16, 64, 144},   {20.5, 72.5, 156.5},
      {25, 81, 169},   {25, 90.5, 196},   {25, 100, 225},  {30.5, 110.5, 240.5},
      {36, 121, 256},  {36, 132.5, 289},  {36, 144, 324},  {42.5, 156.5, 342.5},
      {49, 169, 361},  {49, 182.5, 400},  {49, 196, 441},  {56.5, 210.5, 462.5},
      {64, 225, 484},  {64, 240.5, 529},  {64, 256, 576},  {72.5, 272.5, 600.5},
      {81, 289, 625},  {81, 306.5, 676},  {81, 324, 729},  {90.5, 342.5, 756.5},
      {100, 361, 784}, {100, 380.5, 841}, {100, 400, 900}, {110.5, 420.5, 930.5}};
  std::vector<double> squares;
  for (const auto& expected : quartiles)
  {
    const auto next = static_cast<double>(squares.size() + 1);
    squares.push_back(next * next);
    EXPECT_EQ(averagedQuantile(squares, 0.25), expected[0]) << next;
    EXPECT_EQ(averagedQuantile(squares, 0.5), expected[1]) << next;
    EXPECT_EQ(averagedQuantile(squares, 0.75), expected[2]) << next;
  }
  EXPECT_EQ(squares.size(), 40u);
}

TEST(Quantile, AgreesWithAReferenceOnTiedValues)
{
  // R 4.2.2: quantile(c(-3.5, 0, 0.25, 2, 7, 7, 11.5), c(0, .1, .25, .5, .75, .9, 1), type = 2)
  const std::vector<double> values{-3.5, 0, 0.25, 2, 7, 7, 11.5};
  const double expected[][2] = {{0, -3.5}, {0.1, -3.5}, {0.25, 0}, {0.5, 2},
                                {0.75, 7}, {0.9, 11.5}, {1, 11.5}};
  for (const auto& row : expected)
  {
    EXPECT_EQ(averagedQuantile(values, row[0]), row[1]) << row[0];
  }
}

TEST(Quantile, TakesTheUpperLowerQuartileOfAnOddCount)
{
  EXPECT_EQ(averagedQuantile({1, 2, 3, 4, 5}, 0.25), 2.0);
  EXPECT_EQ(averagedQuantile({1, 2, 3, 4}, 0.25), 1.5);
}

TEST(Quantile, KeepsToTheEndsOutsideTheProbabilities)
{
  const std::vector<double> values{1, 2, 3};
  EXPECT_EQ(averagedQuantile(values, -0.1), 1.0);
  EXPECT_EQ(averagedQuantile(values, 0.0), 1.0);
  EXPECT_EQ(averagedQuantile(values, 1e-300), 1.0);
  EXPECT_EQ(averagedQuantile(values, std::nextafter(1.0, 0.0)), 3.0);
  EXPECT_EQ(averagedQuantile(values, 2.0), 3.0);
}

TEST(Quantile, IsNotANumberWithoutValuesOrProbability)
{
  EXPECT_TRUE(std::isnan(averagedQuantile({}, 0.5)));
  EXPECT_TRUE(std::isnan(averagedQuantile({1, 2}, std::numeric_limits<double>::quiet_NaN())));
}

TEST(Quantile, AveragesTheLargestAndTheSmallestNumbers)
{
  EXPECT_DOUBLE_EQ(averagedQuantile({1e308, 1.5e308}, 0.5), 1.25e308);
  EXPECT_DOUBLE_EQ(averagedQuantile({-1.6e308, -1.2e308}, 0.5), -1.4e308);
  EXPECT_EQ(averagedQuantile({-1.7e308, 1.7e308}, 0.5), 0.0);
  EXPECT_EQ(averagedQuantile({5e-324, 5e-324}, 0.5), 5e-324);
}

TEST(FiveNumbers, AreTheQuartilesOfValuesInAnyOrder)
{
  // Sorting first is the plain way.
  std::vector<double> values;
  for (int count = 1; count <= 60; ++count)
  {
    values.push_back((37 * count) % 23 - 7.5);
    std::vector<double> sorted = values;
    std::sort(sorted.begin(), sorted.end());
    std::vector<double> shuffled = values;
    const FiveNumbers numbers = fiveNumbers(shuffled);
    for (int quarter = 0; quarter <= 4; ++quarter)
      EXPECT_EQ(numbers[static_cast<std::size_t>(quarter)], averagedQuantile(sorted, quarter / 4.0))
          << count << ", " << quarter;
  }
}

TEST(FiveNumbers, LeaveNanOut)
{
  std::vector<double> values = {3, std::nan(""), 1, std::nan(""), 2};
  EXPECT_EQ(fiveNumbers(values), (FiveNumbers{1, 1, 2, 3, 3}));
  values = {std::nan("")};
  EXPECT_TRUE(std::isnan(fiveNumbers(values)[2]));
  values = {};
  EXPECT_TRUE(std::isnan(fiveNumbers(values)[0]));
}

TEST(FiveNumbers, OfPositionsGoAcrossTheRuns)
{
  std::vector<double> runs;
  for (int run = 0; run < 5; ++run)
  {
    for (int position = 0; position < 19; ++position)
      runs.push_back(100.0 * position + (run * 2) % 5);
  }
  const std::vector<FiveNumbers> summary = fiveNumbersOfPositions(runs.data(), 5, 19);
  ASSERT_EQ(summary.size(), 19U);
  for (std::size_t position = 0; position < 19; ++position)
  {
    const double base = 100.0 * static_cast<double>(position);
    EXPECT_EQ(summary[position], (FiveNumbers{base, base + 1, base + 2, base + 3, base + 4}));
  }
}

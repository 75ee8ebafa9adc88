#include "stats/SaltelliDesign.h"

#include "stats/SimulatedStudies.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::stats;

namespace
{
/// Positions in the order that SALib writes, with second order: A, AB_1 .. AB_k, BA_1 .. BA_k, B.
ParameterColumns secondOrderPoints(std::size_t baseSamples, std::size_t parameters)
{
  const ParameterColumns first = saltelliPoints(baseSamples, parameters, 5);
  ParameterColumns columns(parameters);
  for (std::size_t sample = 0; sample < baseSamples; ++sample)
  {
    for (std::size_t parameter = 0; parameter < parameters; ++parameter)
    {
      const auto begin = first[parameter].begin() + std::ptrdiff_t(sample * (parameters + 2));
      const double a = *begin;
      const double b = *(begin + std::ptrdiff_t(parameters + 1));
      std::vector<double>& column = columns[parameter];
      column.insert(column.end(), begin, begin + std::ptrdiff_t(parameters + 1));
      column.insert(column.end(), parameters + 1, b);
      column[column.size() - parameters - 1 + parameter] = a;
    }
  }
  return columns;
}

/// The runs in another order, the same in all columns.
ParameterColumns reordered(const ParameterColumns& columns, const std::vector<std::size_t>& order)
{
  ParameterColumns result(columns.size());
  for (std::size_t parameter = 0; parameter < columns.size(); ++parameter)
  {
    for (const std::size_t run : order)
      result[parameter].push_back(columns[parameter][run]);
  }
  return result;
}

/// Interleaved runs in blocks, with the positions of a base sample in the given order.
ParameterColumns inBlocks(const ParameterColumns& columns,
                          const std::vector<std::size_t>& positions)
{
  std::vector<std::size_t> order;
  const std::size_t samples = columns.front().size() / positions.size();
  for (const std::size_t position : positions)
  {
    for (std::size_t sample = 0; sample < samples; ++sample)
      order.push_back(sample * positions.size() + position);
  }
  return reordered(columns, order);
}

void expectDesign(const ParameterColumns& columns, std::size_t samples, std::size_t width,
                  bool interleaved)
{
  const auto design = recogniseSaltelliDesign(columns);
  ASSERT_TRUE(design);
  EXPECT_EQ(design->baseSamples, samples);
  EXPECT_EQ(design->runsPerSample, width);
  EXPECT_EQ(design->interleaved, interleaved);
}
} // namespace

TEST(SaltelliDesign, IsRecognisedAsSALibWritesIt)
{
  expectDesign(saltelliPoints(8, 3, 1), 8, 5, true);
  expectDesign(saltelliPoints(2, 2, 1), 2, 4, true);
  expectDesign(secondOrderPoints(8, 3), 8, 8, true);
}

TEST(SaltelliDesign, IsRecognisedInBlocksAsRWritesIt)
{
  // rbind(X1, X2, X1 with its first column from X2, ...)
  expectDesign(inBlocks(saltelliPoints(8, 3, 1), {0, 4, 1, 2, 3}), 8, 5, false);
  expectDesign(inBlocks(secondOrderPoints(6, 3), {0, 7, 1, 2, 3, 4, 5, 6}), 6, 8, false);
}

TEST(SaltelliDesign, IsRecognisedWithBFirstAndCoordinatesInAnotherOrder)
{
  expectDesign(inBlocks(saltelliPoints(8, 3, 1), {4, 0, 1, 2, 3}), 8, 5, false);
  expectDesign(inBlocks(saltelliPoints(8, 3, 1), {0, 4, 3, 1, 2}), 8, 5, false);
  const ParameterColumns columns = saltelliPoints(8, 3, 1);
  expectDesign({columns[2], columns[0], columns[1]}, 8, 5, true);
}

TEST(SaltelliDesign, KnowsItsRuns)
{
  const SaltelliDesign interleaved{8, 5, true};
  EXPECT_EQ(interleaved.run(3, 2), 17U);
  const SaltelliDesign blocks{8, 5, false};
  EXPECT_EQ(blocks.run(3, 2), 19U);
}

TEST(SaltelliDesign, IgnoresParametersThatDoNotVary)
{
  ParameterColumns columns = saltelliPoints(8, 3, 1);
  columns.insert(columns.begin() + 1, std::vector<double>(40, 7.0));
  expectDesign(columns, 8, 5, true);
}

TEST(SaltelliDesign, AllowsCoordinatesThatCoincide)
{
  // One of three parameters has two levels, so that some points are equal.
  ParameterColumns columns = saltelliPoints(8, 3, 1);
  for (double& value : columns[1])
    value = std::floor(2 * value);
  expectDesign(columns, 8, 5, true);
}

TEST(SaltelliDesign, IsNotSeenInOtherDesigns)
{
  for (const StudyDesign design :
       {StudyDesign::singleRuns, StudyDesign::fiveReplicates, StudyDesign::grid})
    EXPECT_FALSE(recogniseSaltelliDesign(designPoints(design, 3))) << nameOf(design);
  // 2 by 4 levels have the places of a design of two base samples in blocks.
  EXPECT_FALSE(recogniseSaltelliDesign({{0, 0, 0, 0, 1, 1, 1, 1}, {0, 1, 2, 3, 0, 1, 2, 3}}));
  EXPECT_FALSE(recogniseSaltelliDesign({}));
  EXPECT_FALSE(recogniseSaltelliDesign({{1, 2, 3, 4}}));
}

TEST(SaltelliDesign, IsNotSeenWhereARunIsMissingOrDiffers)
{
  ParameterColumns shorter = saltelliPoints(8, 3, 1);
  for (std::vector<double>& column : shorter)
    column.pop_back();
  EXPECT_FALSE(recogniseSaltelliDesign(shorter));
  for (std::size_t run = 0; run < 40; ++run)
  {
    ParameterColumns columns = saltelliPoints(8, 3, 1);
    columns[1][run] += 1e-9;
    EXPECT_FALSE(recogniseSaltelliDesign(columns)) << run;
    columns[1][run] = std::nan("");
    EXPECT_FALSE(recogniseSaltelliDesign(columns)) << run;
  }
}

TEST(SaltelliDesign, IsNotSeenWhereOneCoordinateIsTakenTwice)
{
  ParameterColumns columns = saltelliPoints(8, 2, 1);
  ASSERT_TRUE(recogniseSaltelliDesign(columns));
  for (std::vector<double>& column : columns)
  {
    for (std::size_t sample = 0; sample < 8; ++sample)
      column[sample * 4 + 2] = column[sample * 4 + 1];
  }
  EXPECT_FALSE(recogniseSaltelliDesign(columns));
}

TEST(SaltelliDesign, IsTakenAsNamedWhereFurtherColumnsHideIt)
{
  ParameterColumns columns = saltelliPoints(20, 3, 7);
  columns.push_back(columns[0]);
  for (std::size_t run = 0; run < columns[0].size(); ++run)
    columns[3][run] += columns[1][run];
  EXPECT_FALSE(recogniseSaltelliDesign(columns));
  const auto named = namedSaltelliDesign(columns, 3);
  ASSERT_TRUE(named);
  EXPECT_EQ(named->baseSamples, 20U);
  EXPECT_EQ(named->runsPerSample, 5U);
  EXPECT_TRUE(named->interleaved);
}

TEST(SaltelliDesign, IsNamedInBlocksAndOfSecondOrderToo)
{
  const auto blocks = namedSaltelliDesign(inBlocks(saltelliPoints(16, 3, 7), {0, 1, 2, 3, 4}), 3);
  ASSERT_TRUE(blocks);
  EXPECT_EQ(blocks->baseSamples, 16U);
  EXPECT_FALSE(blocks->interleaved);
  // 40 runs are also 8 times 3 + 2.
  const auto second = namedSaltelliDesign(secondOrderPoints(5, 3), 0);
  ASSERT_TRUE(second);
  EXPECT_EQ(second->runsPerSample, 8U);
  EXPECT_EQ(second->baseSamples, 5U);
}

TEST(SaltelliDesign, CannotBeNamedOfAnotherNumberOfRuns)
{
  const ParameterColumns columns = saltelliPoints(20, 3, 7);
  EXPECT_FALSE(namedSaltelliDesign(columns, 7)) << "100 runs are no multiple of 9 or 16";
  EXPECT_FALSE(namedSaltelliDesign(columns, 98)) << "a single base sample";
  EXPECT_FALSE(namedSaltelliDesign(columns, ~std::size_t{0}));
  EXPECT_FALSE(namedSaltelliDesign({}, 3));
}

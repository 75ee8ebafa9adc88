#include "stats/ExchangeUnits.h"

#include "stats/SimulatedStudies.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Talmesh::stats;

namespace
{
using Numbers = std::vector<std::uint32_t>;

ParameterColumns repeated(const ParameterColumns& columns, std::size_t times)
{
  ParameterColumns result(columns.size());
  for (std::size_t parameter = 0; parameter < columns.size(); ++parameter)
  {
    for (std::size_t time = 0; time < times; ++time)
      result[parameter].insert(result[parameter].end(), columns[parameter].begin(),
                               columns[parameter].end());
  }
  return result;
}
} // namespace

TEST(ExchangeUnits, AreRunsWhereAllDiffer)
{
  const ExchangeUnits units = exchangeUnits({{3, 1, 3}, {1, 1, 2}});
  EXPECT_EQ(units.kind, IndependentUnit::run);
  EXPECT_EQ(units.units(), 3U);
  EXPECT_EQ(units.cellOfRun, (Numbers{0, 1, 2}));
  EXPECT_EQ(units.classes, (std::vector<Numbers>{{0, 1, 2}}));
  EXPECT_EQ(units.arrangements(), 6.0);
  EXPECT_EQ(exchangeUnits(designPoints(StudyDesign::grid, 1)).kind, IndependentUnit::run);
}

TEST(ExchangeUnits, AreSetsInClassesOfTheirSize)
{
  const ExchangeUnits units = exchangeUnits({{1, 2, 1, 3, 2, 4, 5, 5, 5}});
  EXPECT_EQ(units.kind, IndependentUnit::parameterSet);
  EXPECT_EQ(units.runsOfCell, (Numbers{2, 2, 1, 1, 3}));
  EXPECT_EQ(units.classes, (std::vector<Numbers>{{2, 3}, {0, 1}, {4}}));
  EXPECT_EQ(units.arrangements(), 4.0);
  EXPECT_EQ(units.runsOfUnit(4), 3U);
  EXPECT_TRUE(std::isinf(exchangeUnits(designPoints(StudyDesign::singleRuns, 1)).arrangements()));
}

TEST(ExchangeUnits, AreBaseSamplesOfASaltelliDesign)
{
  const ExchangeUnits units = exchangeUnits(saltelliPoints(4, 3, 2));
  EXPECT_EQ(units.kind, IndependentUnit::baseSample);
  EXPECT_EQ(units.units(), 4U);
  EXPECT_EQ(units.runsOfUnit(2), 5U);
  EXPECT_EQ(units.cellOfRun[7], 7U);
  EXPECT_EQ(units.arrangements(), 24.0);
}

TEST(ExchangeUnits, KeepPointsOfADesignApartThatCoincide)
{
  ParameterColumns columns = saltelliPoints(8, 3, 1);
  for (double& value : columns[1])
    value = std::floor(2 * value);
  ASSERT_TRUE(parameterSets(columns).replicated());
  const ExchangeUnits units = exchangeUnits(columns);
  EXPECT_EQ(units.kind, IndependentUnit::baseSample);
  EXPECT_EQ(units.runsOfCell, Numbers(40, 1));
}

TEST(ExchangeUnits, AreBaseSamplesOfAReplicatedSaltelliDesign)
{
  const ExchangeUnits units = exchangeUnits(repeated(saltelliPoints(6, 3, 2), 4));
  EXPECT_EQ(units.kind, IndependentUnit::baseSample);
  EXPECT_EQ(units.units(), 6U);
  EXPECT_EQ(units.runsOfUnit(5), 20U);
  EXPECT_EQ(units.cellOfRun[7], 7U);
  EXPECT_EQ(units.cellOfRun[37], 7U);
}

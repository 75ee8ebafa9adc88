#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/SampleTables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "RankedTablesFixture.h"

namespace
{

using Values = std::vector<double>;

const std::string boundsWarning =
    "Warning void PlotContainer::generateRankedParameters(vtkSmartPointer<vtkTable>, std::size_t): "
    "the number of parameter columns does not match the number of parameter bounds\n";

class RankedTables : public RankedTablesFixture
{
};

TEST_F(RankedTables, HoldOnePairOfColumnsPerParameterInSelectionOrder)
{
  rank();
  ASSERT_EQ(container.getDerivedTables().size(), 2U);
  EXPECT_EQ(columnNames(slot(0)),
            (std::vector<std::string>{"Rank of Parameter: k1", "Sorted Parameter: k1",
                                      "Rank of Parameter: k2", "Sorted Parameter: k2"}));
  EXPECT_EQ(columnNames(slot(1)),
            (std::vector<std::string>{"Density of Parameter: k1", "Locations of Parameter: k1",
                                      "Density of Parameter: k2", "Locations of Parameter: k2"}));
  EXPECT_EQ(values(1, "Density of Parameter: k1").size(), 200U);
  EXPECT_EQ(values(1, "Locations of Parameter: k2").size(), 200U);
  EXPECT_EQ(values(1, "Locations of Parameter: k2").front(), 0.0);
  EXPECT_EQ(values(1, "Locations of Parameter: k2").back(), 100.0);
}

TEST_F(RankedTables, OfTheOwnRunsTakeOneRowPerRunAndKeepDuplicates)
{
  rank();
  EXPECT_EQ(values(0, "Sorted Parameter: k1"), (Values{2, 5, 5}));
  EXPECT_EQ(values(0, "Sorted Parameter: k2"), (Values{10, 20, 30}));
  EXPECT_EQ(values(0, "Rank of Parameter: k1"), (Values{1.0 / 3.0, 2.0 / 3.0, 1.0}));
}

TEST_F(RankedTables, OfAStrideBelowOneTakeEveryRow)
{
  settings().setStride(0);
  rank();
  EXPECT_EQ(values(0, "Sorted Parameter: k1"), (Values{2, 2, 5, 5, 5, 5}));
}

TEST_F(RankedTables, OfOtherDataTakeEveryRowWithoutDuplicates)
{
  CapturedOutput output(std::cout);
  auto other = threeRuns();
  container.generateRankedParameters(other, 3);
  EXPECT_EQ(values(3, "Sorted Parameter: k2"), (Values{10, 20, 30}));
  EXPECT_EQ(values(3, "Sorted Parameter: k1"), (Values{2, 5, 5}))
      << "the shorter list is filled with its last value";
  EXPECT_EQ(values(3, "Rank of Parameter: k1"), (Values{1.0 / 3.0, 2.0 / 3.0, 1.0}));
  EXPECT_EQ(output.text(), "Huston we have a problem. Encountered a parameter list with size 2, "
                           "expected 3\n");
}

TEST_F(RankedTables, OfOtherDataTakeTheNumbersOnlyWhenARunLacksAParameter)
{
  CapturedOutput output(std::cout);
  const double missing = std::numeric_limits<double>::quiet_NaN();
  container.generateRankedParameters(
      tableOf({{"Time", {0, 1, 2, 0, 1, 2, 0, 1, 2}},
               {"Parameter: k1", {4, 4, 4, missing, missing, missing, 2, 2, 2}},
               {"Parameter: k2", {10, 10, 10, 30, 30, 30, 20, 20, 20}}}),
      3);
  EXPECT_EQ(values(3, "Sorted Parameter: k2"), (Values{10, 20, 30}));
  EXPECT_EQ(values(3, "Rank of Parameter: k2"), (Values{1.0 / 3.0, 2.0 / 3.0, 1.0}));
  EXPECT_EQ(values(3, "Sorted Parameter: k1"), (Values{2, 4, 4}));
  EXPECT_EQ(output.text(), "Huston we have a problem. Encountered a parameter list with size 2, "
                           "expected 3\n");
}

TEST_F(RankedTables, OfTheOwnRunsTakeTheNumbersOnlyWhenARunLacksAParameter)
{
  CapturedOutput output(std::cout);
  container.getTable()->SetValueByName(0, "Parameter: k2",
                                       std::numeric_limits<double>::quiet_NaN());
  rank();
  EXPECT_EQ(values(0, "Sorted Parameter: k2"), (Values{20, 30, 30}));
  const Values densities = values(1, "Density of Parameter: k2");
  EXPECT_EQ(std::count(densities.begin(), densities.end(), 1.0), 2);
  EXPECT_EQ(output.text(), "Huston we have a problem. Encountered a parameter list with size 2, "
                           "expected 3\n");
}

TEST_F(RankedTables, GrowTheListWithoutTouchingItsEntries)
{
  auto kept = plainTable();
  state().derivedTables = {kept, nullptr};
  container.generateRankedParameters(container.getTable(), 4);
  ASSERT_EQ(container.getDerivedTables().size(), 6U);
  EXPECT_EQ(slot(0), kept);
  EXPECT_EQ(slot(1), nullptr);
  EXPECT_EQ(slot(2), nullptr);
  EXPECT_EQ(slot(3), nullptr);
  EXPECT_EQ(slot(4)->GetNumberOfColumns(), 4);
  EXPECT_EQ(slot(5)->GetNumberOfColumns(), 4);
}

TEST_F(RankedTables, RankedTwiceHoldEveryColumnOnce)
{
  rank();
  vtkTable* ranks = slot(0);
  vtkTable* densities = slot(1);
  settings().setStride(1);
  rank();
  EXPECT_EQ(slot(0), ranks);
  EXPECT_EQ(slot(1), densities);
  EXPECT_EQ(columnNames(slot(0)),
            (std::vector<std::string>{"Rank of Parameter: k1", "Sorted Parameter: k1",
                                      "Rank of Parameter: k2", "Sorted Parameter: k2"}));
  auto sorted = columnNames(slot(1));
  std::sort(sorted.begin(), sorted.end());
  EXPECT_EQ(sorted,
            (std::vector<std::string>{"Density of Parameter: k1", "Density of Parameter: k2",
                                      "Locations of Parameter: k1", "Locations of Parameter: k2"}));
  EXPECT_EQ(values(0, "Sorted Parameter: k1"), (Values{2, 2, 5, 5, 5, 5}));
}

TEST_F(RankedTables, ReplaceForeignTablesAndLeaveThemAsTheyAre)
{
  auto foreignRanks = plainTable();
  auto foreignDensities = plainTable();
  foreignDensities->AddColumn(Talmesh::plot::makeColumn("Density of Parameter: k1", Values(5)));
  state().derivedTables = {foreignRanks, foreignDensities};
  rank();
  EXPECT_NE(slot(0), foreignRanks);
  EXPECT_NE(slot(1), foreignDensities);
  EXPECT_EQ(slot(0)->GetNumberOfColumns(), 4);
  EXPECT_EQ(slot(1)->GetNumberOfColumns(), 4);
  EXPECT_EQ(foreignRanks->GetNumberOfColumns(), 4);
  EXPECT_EQ(foreignDensities->GetNumberOfColumns(), 5);
}

TEST_F(RankedTables, ReplaceATableWithLocationsOfAnotherLength)
{
  auto odd = tableOf({{"Locations of Parameter: k1", Values(7)}});
  state().derivedTables = {nullptr, odd};
  rank();
  EXPECT_NE(slot(1), odd);
  EXPECT_EQ(values(1, "Locations of Parameter: k1").size(), 200U);
}

TEST_F(RankedTables, ForgetAParameterThatIsNoLongerSelected)
{
  rank();
  settings().parameterColumns = {2};
  state().parameterBounds = {{0, 100}};
  rank();
  EXPECT_EQ(columnNames(slot(0)),
            (std::vector<std::string>{"Rank of Parameter: k2", "Sorted Parameter: k2"}));
  EXPECT_EQ(columnNames(slot(1)),
            (std::vector<std::string>{"Density of Parameter: k2", "Locations of Parameter: k2"}));
}

TEST_F(RankedTables, TakeTheExtentOfTheDataWhenBoundsDoNotMatchAndSaySoOnce)
{
  CapturedOutput errors(std::cerr);
  state().parameterBounds = {{0, 10}};
  rank();
  EXPECT_EQ(errors.text(), boundsWarning);
  EXPECT_EQ(values(1, "Locations of Parameter: k2").front(), 10.0);
  EXPECT_EQ(values(1, "Locations of Parameter: k2").back(), 30.0);
}

TEST_F(RankedTables, KeepSilentWhenBoundsMatchOrNothingIsSelected)
{
  CapturedOutput errors(std::cerr);
  CapturedOutput output(std::cout);
  rank();
  settings().parameterColumns.clear();
  rank();
  EXPECT_EQ(errors.text() + output.text(), "");
  EXPECT_EQ(slot(0)->GetNumberOfColumns(), 0);
  EXPECT_EQ(slot(1)->GetNumberOfColumns(), 0);
  EXPECT_TRUE(settings().rankedDataCurrent);
}

TEST_F(RankedTables, SkipParametersThatCannotBeRead)
{
  addStringColumn(container.getTable(), "text");
  state().columnItems.push_back({Talmesh::Parameter, "text"});
  settings().parameterColumns = {-1, 1, 3, 99, std::numeric_limits<int>::max()};
  state().parameterBounds.assign(5, {0, 10});
  rank();
  EXPECT_EQ(columnNames(slot(0)),
            (std::vector<std::string>{"Rank of Parameter: k1", "Sorted Parameter: k1"}));
  EXPECT_EQ(columnNames(slot(1)),
            (std::vector<std::string>{"Density of Parameter: k1", "Locations of Parameter: k1"}));
}

TEST_F(RankedTables, OfNoTableAreEmpty)
{
  container.generateRankedParameters(nullptr, 2);
  EXPECT_EQ(slot(2)->GetNumberOfColumns(), 0);
  EXPECT_EQ(slot(3)->GetNumberOfColumns(), 0);
  EXPECT_FALSE(settings().rankedDataCurrent);
}

TEST_F(RankedTables, OfATableWithoutRowsHaveColumnsWithoutRows)
{
  container.generateRankedParameters(
      tableOf({{"Time", {}}, {"Parameter: k1", {}}, {"Parameter: k2", {}}}), 2);
  EXPECT_EQ(columnNames(slot(2)).size(), 4U);
  EXPECT_EQ(slot(2)->GetNumberOfRows(), 0);
  EXPECT_EQ(values(3, "Density of Parameter: k1"), Values(200, 0.0));
}

TEST_F(RankedTables, ReadColumnsOfWholeNumbers)
{
  auto source = threeRuns();
  vtkNew<vtkIntArray> integers;
  integers->SetName("Parameter: k2");
  for (const int value : {3, 1, 2, 3, 1, 2})
    integers->InsertNextValue(value);
  source->AddColumn(integers);
  container.generateRankedParameters(source, 2);
  EXPECT_EQ(values(2, "Sorted Parameter: k2"), (Values{1, 2, 3}));
}

TEST_F(RankedTables, OfAConstantParameterAreAStepAndASpike)
{
  settings().parameterColumns = {1};
  state().parameterBounds = {{2, 2}};
  container.generateRankedParameters(
      tableOf({{"Time", {0, 0, 0, 0, 0, 0, 0}}, {"Parameter: k1", Values(7, 2.0)}}), 0);
  EXPECT_EQ(values(0, "Rank of Parameter: k1"), (Values{0, 0, 1, 1}));
  EXPECT_DOUBLE_EQ(values(0, "Sorted Parameter: k1").front(), 1.9);
  const Values density = values(1, "Density of Parameter: k1");
  const Values locations = values(1, "Locations of Parameter: k1");
  const double halfStep = 0.5 * (2.1 - 1.9) / 199.0;
  for (std::size_t i = 0; i < density.size(); ++i)
    EXPECT_EQ(density[i], std::abs(locations[i] - 2.0) <= halfStep * 1.000001 ? 1.0 : 0.0) << i;
}

// R 4.2.2:
//   v <- c(1, 2, 2.5, 3, 4, 5, 5.5, 6, 7, 8, 9, 11); L <- 0; R <- 12; z <- (v - L) / R
//   mid <- (1 + z) / 3; ref <- c(rev((1 - z) / 3), mid, rev((3 - z) / 3)); M <- length(v)
//   s <- sqrt(sum((mid - mean(mid))^2) / M)
//   spread <- (mid[floor(3 * M / 4) + 1] - mid[floor(M / 4) + 1]) / 1.34
//   t <- (0:199) / 199 / 3 + 1 / 3
//   h <- max(0.2 * abs(t[2] - t[1]), 1.06 * min(s, spread) * M^-0.2)
//   d <- sapply(t, function(u) mean(dnorm(u, ref, h))) / R; d[c(1, 51, 101, 151, 200)]
TEST_F(RankedTables, EstimateTheDensityBetweenTheBounds)
{
  settings().parameterColumns = {1};
  state().parameterBounds = {{0, 12}};
  settings().setStride(1);
  const Values sample = {9, 1, 2, 2.5, 3, 11, 4, 5, 5.5, 6, 7, 8};
  container.generateRankedParameters(tableOf({{"Time", Values(12)}, {"Parameter: k1", sample}}), 0);
  const Values density = values(1, "Density of Parameter: k1");
  EXPECT_NEAR(density[0], 0.0806157966058852, 1e-14);
  EXPECT_NEAR(density[50], 0.103148962862703, 1e-14);
  EXPECT_NEAR(density[100], 0.101306610816732, 1e-14);
  EXPECT_NEAR(density[150], 0.0650916406331703, 1e-14);
  EXPECT_NEAR(density[199], 0.0455909870394309, 1e-14);
  EXPECT_NEAR(values(1, "Locations of Parameter: k1")[150], 9.04522613065327, 1e-13);
}

} // namespace

#include "plot/ContainerAccess.h"

#include <gtest/gtest.h>

#include "PageProbes.h"
#include "SelectionPageFixture.h"

namespace
{

/// The curves of the parameter charts, and the axes of the page.
class SelectionPageCurves : public SelectionPageFixture
{
protected:
  /// Gives the list of derived tables this length, with the ranks of all runs in every slot for
  /// ranks, the densities in every slot for densities and the plot table in the others.
  void fillSlots(std::size_t count)
  {
    const auto own = container.getDerivedTables();
    auto& tables = stateOf(container).derivedTables;
    tables.clear();
    for (std::size_t slot = 0; slot < count; ++slot)
      tables.push_back(slot % 3 < 2 ? own[slot % 3] : stateOf(container).table);
    container.redraw();
  }

  vtkAxis* left(int column) { return cell(column, 0)->GetAxis(vtkAxis::LEFT); }
};

TEST_F(SelectionPageCurves, NeedRanksAndDensitiesOfAFurtherDataSet)
{
  draw(3);
  for (const auto& [tables, curves] : {std::pair<std::size_t, vtkIdType>{3, 1}, {4, 1}, {5, 2}})
  {
    fillSlots(tables);
    EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), curves) << tables;
  }
}

TEST_F(SelectionPageCurves, TakeTheirColorsInTurnInEveryChart)
{
  draw(2);
  fillSlots(14);
  const std::array<int, 3> expected[] = {
      {0, 0, 0}, {255, 51, 0}, {12, 153, 229}, {12, 229, 153}, {255, 51, 0}};
  for (int column = 0; column < 2; ++column)
  {
    ASSERT_EQ(cell(column, 0)->GetNumberOfPlots(), 5);
    for (int i = 0; i < 5; ++i)
      EXPECT_EQ(colorOf(cell(column, 0)->GetPlot(i)), expected[i]) << i;
  }
}

TEST_F(SelectionPageCurves, AreDensityLinesOfTheSlotsBehindTheRanks)
{
  draw(3);
  settings().setUseDensity(true);
  selectFirstRuns(5);
  const std::size_t densities[] = {1, 4, 7};
  ASSERT_EQ(cell(1, 0)->GetNumberOfPlots(), 3);
  for (int i = 0; i < 3; ++i)
  {
    vtkPlot* curve = cell(1, 0)->GetPlot(i);
    EXPECT_STREQ(curve->GetClassName(), "vtkPlotLine");
    EXPECT_EQ(curve->GetInput(), container.getDerivedTables()[densities[i]]);
    EXPECT_EQ(plottedName(curve, 0), "Locations of Parameter: k2");
    EXPECT_EQ(plottedName(curve, 1), "Density of Parameter: k2");
  }
  scene.render(container);
}

TEST_F(SelectionPageCurves, ShowBothParametersOfAStudyOfTwo)
{
  draw(2);
  for (int i = 0; i < 2; ++i)
  {
    const std::string name = "k" + std::to_string(i + 1);
    ASSERT_EQ(cell(i, 0)->GetNumberOfPlots(), 1);
    EXPECT_EQ(plottedName(cell(i, 0)->GetPlot(0), 0), "Sorted Parameter: " + name);
    EXPECT_EQ(cell(i, 0)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), name);
    EXPECT_EQ(matrix()->GetChartSpan(vtkVector2i(i, 0)), vtkVector2i(1, 1));
  }
  EXPECT_EQ(cell(1, 1)->GetNumberOfPlots(), 0) << "the trajectories lie over it";
}

TEST_F(SelectionPageCurves, RunFromZeroToOneInEveryChart)
{
  draw(4);
  selectFirstRuns(3);
  scene.render(container);
  for (int column = 0; column < 4; ++column)
  {
    EXPECT_EQ(left(column)->GetBehavior(), vtkAxis::FIXED);
    EXPECT_EQ(left(column)->GetMinimum(), 0.0);
    EXPECT_EQ(left(column)->GetMaximum(), 1.0);
    EXPECT_EQ(cell(column, 0)->GetAxis(vtkAxis::BOTTOM)->GetBehavior(), vtkAxis::AUTO);
  }
}

TEST_F(SelectionPageCurves, AreHeadedByAProbabilityOfZeroInFixedNotation)
{
  draw(4);
  stateOf(container).ksResults.assign(4, {0.0, 0.9});
  stateOf(container).ksResults[3].pValue = 0.00999;
  container.redraw();
  for (int column = 0; column < 3; ++column)
    EXPECT_EQ(cell(column, 0)->GetTitle(), "p = 0.00");
  EXPECT_EQ(cell(3, 0)->GetTitle(), "p = 9.99e-03");
}

TEST_F(SelectionPageCurves, StandBelowATimeAxisWhoseFactorsIgnoreTheSign)
{
  draw(3);
  vtkAbstractArray* time = container.getTable()->GetColumnByName(": Time [s]");
  for (int row = 0; row < runs * points; ++row)
    time->SetVariantValue(row, -10.0 + 2.0 * (row % points));
  time->Modified();
  container.redraw();
  vtkAxis* bottom = container.getChartXY()->GetAxis(vtkAxis::BOTTOM);
  // From -10 to -2: below zero the factors cut into the data on the left.
  EXPECT_DOUBLE_EQ(bottom->GetMinimum(), -9.95);
  EXPECT_DOUBLE_EQ(bottom->GetMaximum(), -2.01);
  scene.render(container);
  EXPECT_DOUBLE_EQ(bottom->GetMinimum(), -9.95);
  EXPECT_DOUBLE_EQ(bottom->GetMaximum(), -2.01);
}

} // namespace

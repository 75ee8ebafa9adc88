#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"

#include <vtkAxis.h>

#include <gtest/gtest.h>

#include "SelectionPageFixture.h"

namespace
{

class SelectionPage : public SelectionPageFixture
{
};

TEST_F(SelectionPage, ShowsFourParametersBelowTheTrajectories)
{
  draw(6);
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(4, 2));
  EXPECT_EQ(container.getChartXY(), cell(0, 1));
  EXPECT_EQ(matrix()->GetChartSpan(vtkVector2i(0, 1)), vtkVector2i(4, 1));
  for (int i = 0; i < 4; ++i)
  {
    EXPECT_EQ(cell(i, 0)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "k" + std::to_string(i + 1));
    EXPECT_EQ(cell(i, 0)->GetNumberOfPlots(), 1);
    EXPECT_EQ(cell(i, 0)->GetTitle(), "") << "no test, no p-value";
  }
  ASSERT_EQ(scene.scene()->GetNumberOfItems(), 1U);
  EXPECT_EQ(scene.scene()->GetItem(0), matrix());
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 5000);
}

TEST_F(SelectionPage, FillsNoCellThatHasNoParameter)
{
  draw(2);
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(2, 2));
  EXPECT_EQ(matrix()->GetChartSpan(vtkVector2i(0, 1)), vtkVector2i(2, 1));
}

TEST_F(SelectionPage, ShowsOnlyTheTrajectoriesWithoutParameters)
{
  draw(0);
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(1, 2));
  EXPECT_EQ(container.getChartXY(), cell(0, 1));
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 0);
  scene.render(container);
}

TEST_F(SelectionPage, PutsSignificantParametersFirst)
{
  draw(10);
  stateOf(container).ksResults.assign(10, {0.5, 0.2});
  for (const std::size_t i : {1U, 3U, 5U, 7U, 9U})
    stateOf(container).ksResults[i] = {0.001, 0.7};
  container.redraw();
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(4, 4));
  EXPECT_EQ(container.getChartXY(), cell(0, 2));
  EXPECT_EQ(matrix()->GetChartSpan(vtkVector2i(0, 2)), vtkVector2i(4, 2));
  const char* order[] = {"k2", "k4", "k6", "k8", "k10", "k1", "k3", "k5"};
  for (int i = 0; i < 8; ++i)
    EXPECT_EQ(cell(i % 4, i / 4)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), order[i]);
  EXPECT_EQ(cell(0, 0)->GetTitle(), "p = 1.00e-03");
  EXPECT_EQ(cell(1, 1)->GetTitle(), "p = 0.50");
  scene.render(container);
}

TEST_F(SelectionPage, MakesRoomForTheHeadings)
{
  draw(4);
  EXPECT_EQ(matrix()->GetGutter(), vtkVector2f(28, 28 + 25));
  int borders[4];
  matrix()->GetBorders(borders);
  EXPECT_EQ(borders[vtkAxis::TOP], 45);
  container.setTopMargin(30);
  matrix()->GetBorders(borders);
  EXPECT_EQ(borders[vtkAxis::TOP], 55);
}

TEST_F(SelectionPage, RunsAPendingUpdateOnceAndFillsThePageOnce)
{
  draw(3);
  selectFirstRuns(5);
  stateOf(container).derivedTables.resize(2);
  stateOf(container).ksResults.clear();
  stateOf(container).selectionUpdatePending = true;
  container.redraw();
  EXPECT_FALSE(stateOf(container).selectionUpdatePending);
  EXPECT_EQ(container.getKsResults().size(), 3U);
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 3);
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 1);
  EXPECT_EQ(scene.scene()->GetNumberOfItems(), 1U);
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(SelectionPage, SkipsResultsOfParametersThatAreGone)
{
  draw(2);
  stateOf(container).ksResults.assign(9, {0.001, 0.9});
  container.redraw();
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(2, 2));
  scene.render(container);
}

TEST_F(SelectionPage, RefusesAShortParameterNameBeforeAnythingChanges)
{
  draw(3);
  container.getTable()->GetColumnByName("Parameter: k2")->SetName("k2");
  EXPECT_THROW(container.redraw(), std::out_of_range);
  EXPECT_FALSE(settings().signalsBlocked());
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(3, 2));
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 1);
}

TEST_F(SelectionPage, DiffersFromOtherPagesInItsCells)
{
  draw(3);
  container.setPlotStyle(multiPlot);
  scene.render(container);
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(3, 3));
  EXPECT_EQ(cell(0, 0)->GetTitle(), "");
  EXPECT_TRUE(cell(0, 0)->GetAxis(vtkAxis::LEFT)->GetLabelsVisible());
  container.setPlotStyle(selectionCdfPlot);
  scene.render(container);
  container.setPlotStyle(xyPlot);
  EXPECT_NE(container.getChartXY()->GetParent(), matrix());
  scene.render(container);
}

} // namespace

#include "plot/ContainerAccess.h"
#include "support/PlotFixture.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkPlotParallelCoordinates.h>
#include <vtkPlotPoints.h>
#include <vtkPlotPoints3D.h>

#include <gtest/gtest.h>

#include <limits>

namespace
{

class RedrawDetails : public PlotFixture
{
};

TEST_F(RedrawDetails, GiveLinesTheStrideAndShowAllOfThem)
{
  settings().blockSignals(true);
  settings().setStride(2);
  settings().setPlotLine(true);
  settings().xColumns = {3};
  settings().yColumns = {2};
  container.redraw();
  ASSERT_EQ(chart()->GetNumberOfPlots(), 1);
  auto* lines = vtkPlotLineSet::SafeDownCast(chart()->GetPlot(0));
  ASSERT_NE(lines, nullptr);
  EXPECT_EQ(lines->GetStride(), 2);
  EXPECT_EQ(lines->GetOnlyShowSelected(), 0);
  EXPECT_EQ(plottedColumn(lines, 0), container.getTable()->GetColumn(3));
  EXPECT_EQ(plottedColumn(lines, 1), container.getTable()->GetColumn(2));
  container.redraw();
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
}

TEST_F(RedrawDetails, BreakLinesAtGapsWhereAsked)
{
  settings().setPlotLine(true);
  const auto breaks = [this]
  { return vtkPlotLineSet::SafeDownCast(chart()->GetPlot(0))->GetBreakAtGaps(); };
  EXPECT_FALSE(breaks());
  PlotOptions options;
  options.breaksLinesAtGaps = true;
  container.setOptions(options);
  container.redraw();
  EXPECT_TRUE(breaks());
  EXPECT_TRUE(PlotContainer(container).getOptions().breaksLinesAtGaps);
}

TEST_F(RedrawDetails, ReturnToPointsWhenLinesAreSwitchedOff)
{
  settings().setPlotLine(true);
  settings().setPlotLine(false);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 1);
  EXPECT_STREQ(chart()->GetPlot(0)->GetClassName(), "vtkPlotPoints");
}

TEST_F(RedrawDetails, ApplyLabelsTitleMarkersAndLogarithmWithoutAnnouncement)
{
  settings().xLabel = "x";
  settings().yLabel = "y";
  settings().markerStyle = vtkPlotPoints::CROSS;
  settings().blockSignals(true);
  settings().setLogX(true);
  container.redraw();
  EXPECT_EQ(bottom()->GetTitle(), "x");
  EXPECT_EQ(left()->GetTitle(), "y");
  EXPECT_TRUE(bottom()->GetLogScale());
  EXPECT_EQ(vtkPlotPoints::SafeDownCast(chart()->GetPlot(0))->GetMarkerStyle(),
            vtkPlotPoints::CROSS);
}

TEST_F(RedrawDetails, PadTheFinitePartOfTheBottomAxis)
{
  const double infinity = std::numeric_limits<double>::infinity();
  container.setPlotData(tableOf({{"a", {0, -infinity, 10, infinity}}, {"b", {1, 2, 3, 4}}}));
  container.redraw();
  EXPECT_EQ(bottom()->GetMinimum(), -0.5);
  EXPECT_EQ(bottom()->GetMaximum(), 10.5);
  scene.render(container);
  EXPECT_EQ(bottom()->GetMinimum(), 0.0);
  EXPECT_EQ(bottom()->GetMaximum(), 10.0);
}

TEST_F(RedrawDetails, FeedTheScatterPlotMatrixFromTheTable)
{
  drawStyle(3);
  EXPECT_EQ(stateOf(container).scatterPlotMatrix->GetColumnName(0), "a");
  container.setPlotData(tableOf({{"p", {1, 2}}, {"q", {3, 4}}, {"r", {5, 6}}}));
  container.redraw();
  vtkStringArray* shown = stateOf(container).scatterPlotMatrix->GetVisibleColumns();
  ASSERT_EQ(shown->GetNumberOfValues(), 3);
  EXPECT_EQ(shown->GetValue(0), "p");
  EXPECT_EQ(shown->GetValue(2), "r");
  scene.render(container);
}

TEST_F(RedrawDetails, GiveThePointsInSpaceBlackAxesAndOnePlot)
{
  settings().xColumns = {3};
  for (int drawn = 0; drawn < 2; ++drawn)
  {
    drawStyle(4);
    vtkChartXYZ* space = stateOf(container).chartXYZ;
    EXPECT_EQ(space->GetAxisColor(), vtkColor4ub(0, 0, 0, 255));
    EXPECT_EQ(space->GetNumberOfItems(), 1U);
    scene.render(container);
  }
}

TEST_F(RedrawDetails, FeedParallelCoordinatesFromTheTable)
{
  for (int drawn = 0; drawn < 2; ++drawn)
  {
    drawStyle(9);
    vtkChartParallelCoordinates* axes = stateOf(container).parallelCoordinates;
    EXPECT_EQ(container.getItem(), axes);
    ASSERT_EQ(axes->GetNumberOfPlots(), 1);
    EXPECT_EQ(axes->GetPlot(0)->GetInput(), container.getTable());
    container.setPlotData(plainTable());
  }
}

TEST_F(RedrawDetails, RememberWindowsOfTheStyleAsWell)
{
  stateOf(container).coordinateWindows[{0, 1, 0}] = {1, 2, 3, 4, true};
  container.redraw();
  EXPECT_EQ(bottom()->GetMaximum(), 3.0);
  container.setPlotCols(0, 2, 0, false);
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
  scene.render(container);
  EXPECT_GE(bottom()->GetMaximum(), 4.0);
  container.setPlotCols(0, 1, 0, false);
  scene.render(container);
  EXPECT_EQ(bottom()->GetMaximum(), 3.0);
  EXPECT_EQ(left()->GetMinimum(), 2.0);
}

/// Only the bottom axis is given back to the chart where no window is remembered.
TEST_F(RedrawDetails, KeepTheLeftAxisFixedAfterARememberedWindow)
{
  stateOf(container).coordinateWindows[{0, 1, 0}] = {1, 2, 3, 4, true};
  container.redraw();
  ASSERT_EQ(left()->GetBehavior(), vtkAxis::FIXED);
  container.setPlotCols(0, 2, 0, false);
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
  EXPECT_EQ(left()->GetBehavior(), vtkAxis::FIXED);
  scene.render(container);
  EXPECT_EQ(left()->GetMinimum(), 2.0);
  EXPECT_EQ(left()->GetMaximum(), 4.0);
}

} // namespace

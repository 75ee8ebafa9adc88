#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "vtk/vtkPlotLineSet.h"
#include "vtk/vtkPlotShiftedBag.h"

#include <vtkAxis.h>
#include <vtkCommand.h>
#include <vtkContextMouseEvent.h>
#include <vtkPlotFunctionalBag.h>

#include <gtest/gtest.h>

#include "SelectionPageFixture.h"

namespace
{

class SelectionTrajectories : public SelectionPageFixture
{
};

TEST_F(SelectionTrajectories, BindsSelectionAndWindowMemoryToTheTrajectories)
{
  draw(3);
  EXPECT_EQ(container.getChartXY()->GetAnnotationLink(), container.getAnnotationLink());
  EXPECT_EQ(container.getChartXY()->GetActionToButton(vtkChart::SELECT),
            vtkContextMouseEvent::RIGHT_BUTTON);
  EXPECT_EQ(cell(0, 0)->GetActionToButton(vtkChart::PAN), -1);
  EXPECT_EQ(cell(0, 0)->GetActionToButton(vtkChart::ZOOM), -1);
  container.getChartXY()->InvokeEvent(vtkCommand::InteractionEvent);
  EXPECT_EQ(stateOf(container).coordinateWindows.size(), 1U);
}

TEST_F(SelectionTrajectories, FixesTheTimeAxisJustBeyondTheData)
{
  draw(3);
  vtkAxis* bottom = container.getChartXY()->GetAxis(vtkAxis::BOTTOM);
  EXPECT_EQ(bottom->GetBehavior(), vtkAxis::FIXED);
  EXPECT_DOUBLE_EQ(bottom->GetMinimum(), 0.995 * 10.0);
  EXPECT_DOUBLE_EQ(bottom->GetMaximum(), 1.005 * 14.0);
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::LEFT)->GetBehavior(), vtkAxis::AUTO);
}

TEST_F(SelectionTrajectories, ShowsTheRememberedWindow)
{
  draw(3);
  stateOf(container).coordinateWindows[{1, 0, 6}] = {11, 2, 12, 5, true};
  container.redraw();
  scene.render(container);
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::BOTTOM)->GetMinimum(), 11.0);
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::LEFT)->GetMaximum(), 5.0);
}

TEST_F(SelectionTrajectories, DrawsQuantileBandsBehindTheRuns)
{
  draw(3);
  settings().setShowQuantiles(true);
  vtkChartXY* chart = container.getChartXY();
  ASSERT_EQ(chart->GetNumberOfPlots(), 4);
  const char* columns[] = {"Range", "QRange", "Median"};
  for (int i = 0; i < 3; ++i)
  {
    auto* band = vtkPlotFunctionalBag::SafeDownCast(chart->GetPlot(i));
    ASSERT_NE(band, nullptr);
    EXPECT_EQ(plottedName(band, 0), "Time");
    EXPECT_EQ(plottedName(band, 1), columns[i]);
    EXPECT_FALSE(band->GetSelectable());
  }
  EXPECT_EQ(colorOf(chart->GetPlot(0)), (std::array<int, 3>{148, 148, 255}));
  EXPECT_EQ(colorOf(chart->GetPlot(1)), (std::array<int, 3>{64, 64, 255}));
  selectFirstRuns(5);
  scene.render(container);
}

TEST_F(SelectionTrajectories, DrawsQuantileBandsThatFollowAShiftedChart)
{
  draw(3);
  settings().setShowQuantiles(true);
  for (int i = 0; i < 3; ++i)
    EXPECT_NE(dynamic_cast<vtkPlotShiftedBag*>(container.getChartXY()->GetPlot(i)), nullptr);
}

TEST_F(SelectionTrajectories, DrawsRunsAsALineSetOrAsPoints)
{
  draw(3);
  EXPECT_STREQ(container.getChartXY()->GetPlot(0)->GetClassName(), "vtkPlotInvisiblePoints");
  settings().setPlotLine(true);
  EXPECT_STREQ(container.getChartXY()->GetPlot(0)->GetClassName(), "vtkPlotLineSet");
}

TEST_F(SelectionTrajectories, BreaksLinesAtGapsWhereAsked)
{
  draw(3);
  PlotOptions options;
  options.breaksLinesAtGaps = true;
  container.setOptions(options);
  settings().setPlotLine(true);
  auto* lines = vtkPlotLineSet::SafeDownCast(container.getChartXY()->GetPlot(0));
  ASSERT_NE(lines, nullptr);
  EXPECT_TRUE(lines->GetBreakAtGaps());
}

TEST_F(SelectionTrajectories, TitlesTheTrajectories)
{
  draw(3);
  container.setPlotTitle("All runs");
  container.redraw();
  EXPECT_EQ(container.getChartXY()->GetTitle(), "All runs");
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "Time [s]");
  EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::LEFT)->GetTitle(), "A");
}

TEST_F(SelectionTrajectories, KeepALogarithmicAxisThroughBandsOfSmallValues)
{
  draw(3);
  vtkTable* table = container.getTable();
  for (vtkIdType row = 0; row < table->GetNumberOfRows(); ++row)
    table->SetValue(row, 0, 0.001 * static_cast<double>(row + 1));
  table->GetColumn(0)->Modified();
  container.generateQuartiles();
  settings().setShowQuantiles(true);
  container.setLogScaleY(true);
  for (int painted = 0; painted < 3; ++painted)
  {
    container.redraw();
    scene.render(container);
    scene.render(container);
    vtkAxis* left = container.getChartXY()->GetAxis(vtkAxis::LEFT);
    ASSERT_TRUE(left->GetLogScaleActive());
    EXPECT_NEAR(left->GetMinimum(), -3.0, 0.1);
    EXPECT_NEAR(left->GetMaximum(), -1.0, 0.1);
  }
}

} // namespace

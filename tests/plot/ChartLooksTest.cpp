#include "external/PlotMetaData.h"
#include "support/PlotFixture.h"
#include "support/SoundPicture.h"

#include <vtkCommand.h>

#include <gtest/gtest.h>

namespace
{

/// The looks that the settings do not keep, from one style to the next.
class ChartLooks : public PlotFixture
{
protected:
  ChartLooks()
  {
    container.setPlotData(tableOf({{"Parameter: k1", {1, 2, 3, 4}},
                                   {"Parameter: k2", {2, 3, 5, 7}},
                                   {"x", {1, 2, 3, 4}},
                                   {"y", {120, 100, 80, 100}}}));
    settings().parameterColumns = {0, 1};
    settings().xColumns = {2};
    settings().yColumns = {3};
    drawStyle(xyPlot);
    container.setLogScaleY(true);
    container.setShowLegend(true);
  }

  void expectLooks(bool log, bool legend)
  {
    expectSoundPicture(scene, container);
    ASSERT_NE(chart(), nullptr);
    EXPECT_EQ(left()->GetLogScale(), log);
    EXPECT_EQ(left()->GetLogScaleActive(), log);
    EXPECT_EQ(chart()->GetShowLegend(), legend);
  }
};

TEST_F(ChartLooks, StayInEveryStyleWithAnXYChart)
{
  for (const plotStyles style : {xyPlot, multiPlot, selectionCdfPlot, multiPlot, xyPlot})
  {
    SCOPED_TRACE(style);
    drawStyle(style);
    expectLooks(true, true);
    container.redraw();
    expectLooks(true, true);
  }
  drawStyle(selectionCdfPlot);
  container.setLogScaleY(false);
  container.setShowLegend(false);
  container.redraw();
  expectLooks(false, false);
}

TEST_F(ChartLooks, StayWhileErrorBarsRefuseLogarithms)
{
  for (int i = 0; i < 2; ++i)
  {
    drawStyle(scatterWithErrorBars);
    EXPECT_FALSE(container.showsLogScaleY()) << "also before it is painted";
    expectSoundPicture(scene, container);
    EXPECT_FALSE(left()->GetLogScaleActive());
    EXPECT_TRUE(chart()->GetShowLegend());
    EXPECT_GT(left()->GetMinimum(), 10) << "bars of 100 +- 20";
    EXPECT_LE(left()->GetMaximum(), 200);
    drawStyle(xyPlot);
    expectLooks(true, true);
    drawStyle(selectionCdfPlot);
    expectLooks(true, true);
  }
}

TEST_F(ChartLooks, LeaveErrorBarsLinearWhenTheyAreAskedFor)
{
  drawStyle(scatterWithErrorBars);
  container.setLogScaleY(true);
  expectSoundPicture(scene, container);
  EXPECT_TRUE(left()->GetLogScale());
  EXPECT_FALSE(left()->GetLogScaleActive()) << "bars of 100 +- 20 would span 40 decades";
  EXPECT_LE(left()->GetMaximum(), 200);
}

TEST_F(ChartLooks, EndWithAStyleThatHasNoXYChart)
{
  for (const plotStyles style :
       {scatterPlotMatrix, xyzPlot, fitParameterDistribution, parallelCoordinates})
  {
    SCOPED_TRACE(style);
    drawStyle(xyPlot);
    container.setLogScaleY(true);
    container.setShowLegend(true);
    drawStyle(style);
    drawStyle(xyPlot);
    expectLooks(false, false);
  }
}

TEST_F(ChartLooks, PaintDecaysToNothingOnThePagesOfRuns)
{
  Talmesh::plot::doubleColumn(container.getTable(), 3)->SetValue(3, 1e-306);
  container.getTable()->GetColumn(3)->Modified();
  for (const plotStyles style : {multiPlot, selectionCdfPlot})
  {
    drawStyle(style);
    expectLooks(true, true);
    EXPECT_LE(left()->GetMinimum(), -306.0);
  }
}

TEST_F(ChartLooks, KeepAWindowOnALogarithmicAxisOfAPage)
{
  drawStyle(selectionCdfPlot);
  expectLooks(true, true);
  left()->SetRange(1.9, 2.1);
  chart()->InvokeEvent(vtkCommand::InteractionEvent);
  for (int i = 0; i < 2; ++i)
  {
    container.redraw();
    expectLooks(true, true);
    EXPECT_EQ(left()->GetMinimum(), 1.9);
    EXPECT_EQ(left()->GetMaximum(), 2.1);
  }
}

} // namespace

#include "external/PlotMetaData.h"
#include "support/PlotFixture.h"
#include "support/SoundPicture.h"

#include <vtkCommand.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace
{

using Values = std::vector<double>;

/// Column 0 counts, the others are given.
class LogScales : public PlotFixture
{
protected:
  void show(const Values& y, const Values& x = {1, 2, 3, 4, 5})
  {
    container.setPlotData(tableOf({{"x", Values(x.begin(), x.begin() + y.size())}, {"y", y}}));
    settings().xColumns = {0};
    settings().yColumns = {1};
    container.redraw();
  }

  void render() { expectSoundPicture(scene, container); }

  void expectLogarithmic(double low, double high)
  {
    EXPECT_TRUE(container.showsLogScaleY());
    EXPECT_TRUE(left()->GetLogScaleActive());
    EXPECT_LE(left()->GetMinimum(), std::log10(low));
    EXPECT_GE(left()->GetMaximum(), std::log10(high));
  }

  void expectLinear(double low, double high)
  {
    EXPECT_FALSE(container.showsLogScaleY());
    EXPECT_FALSE(left()->GetLogScaleActive());
    EXPECT_LE(left()->GetMinimum(), low);
    EXPECT_GE(left()->GetMaximum(), high);
  }
};

TEST_F(LogScales, PaintDecaysToNothing)
{
  container.setLogScaleY(true);
  for (const double last : {1e-299, 1e-306, 1e-310, std::numeric_limits<double>::denorm_min()})
  {
    show({1.0, 1e-5, last});
    render();
    expectLogarithmic(1e-299, 1.0);
    EXPECT_GE(left()->GetMinimum(), -307.0);
  }
}

TEST_F(LogScales, PaintDecaysToNothingAlongTheBottomAxis)
{
  settings().setLogX(true);
  show({1.0, 2.0, 3.0}, {1e-310, 1e-5, 1.0});
  render();
  EXPECT_TRUE(bottom()->GetLogScaleActive());
  EXPECT_TRUE(container.showsLogScaleX());
  EXPECT_LE(bottom()->GetMinimum(), -299.0);
}

TEST_F(LogScales, AreLinearForValuesWithoutLogarithmsInSinglePrecision)
{
  container.setLogScaleY(true);
  show({1e-200, 2e-200, 3e-200});
  render();
  EXPECT_FALSE(container.showsLogScaleY());
  show({1e100, 2e100, 3e100});
  render();
  EXPECT_FALSE(container.showsLogScaleY());
}

TEST_F(LogScales, OfPaintedDataComeWithTheNextPicture)
{
  show({1.0, 10.0, 1000.0});
  render();
  ASSERT_EQ(left()->GetMinimum(), 0.0) << "rounded";
  container.setLogScaleY(true);
  expectLogarithmic(1.0, 1000.0);
  render();
  expectLogarithmic(1.0, 1000.0);
  EXPECT_EQ(left()->GetMinimum(), 0.0);
  EXPECT_EQ(left()->GetMaximum(), 3.0);
  container.setLogScaleY(false);
  render();
  expectLinear(1.0, 1000.0);
}

TEST_F(LogScales, EndWithDataThatCrossZeroAndComeBackWithoutThem)
{
  container.setLogScaleY(true);
  show({1.0, 10.0, 1000.0});
  render();
  expectLogarithmic(1.0, 1000.0);
  for (const Values& refused : {Values{0, 1, 2, 0, -1}, Values{-3, -2, -1}, Values{0, 0, 0}})
  {
    show(refused);
    EXPECT_FALSE(container.showsLogScaleY()) << "also before it is painted";
    render();
    expectLinear(*std::min_element(refused.begin(), refused.end()),
                 *std::max_element(refused.begin(), refused.end()));
    EXPECT_TRUE(left()->GetLogScale()) << "still asked for";
    show({2.0, 20.0, 200.0});
    EXPECT_TRUE(container.showsLogScaleY());
    render();
    expectLogarithmic(2.0, 200.0);
  }
}

TEST_F(LogScales, ShowEveryValueOfARefusedAxis)
{
  show({0, 1, 2, 0, -1});
  render();
  const int painted = scene.paintedPixels();
  show({1, 10, 1000, 10, 1});
  container.setLogScaleY(true);
  render();
  show({0, 1, 2, 0, -1});
  render();
  EXPECT_EQ(scene.paintedPixels(), painted) << "the picture that a linear axis gives";
}

TEST_F(LogScales, OfARefusedAxisDoNotComeWithAWindowBesideZero)
{
  container.setLogScaleY(true);
  show({0, 1, 2, 0, -1});
  render();
  left()->SetRange(0.5, 2.0);
  render();
  EXPECT_FALSE(left()->GetLogScaleActive());
  EXPECT_EQ(left()->GetMinimum(), 0.5);
}

TEST_F(LogScales, StartAWindowThatReachesZeroAtTheData)
{
  show({1.0, 10.0, 1000.0});
  render();
  left()->SetRange(-10.0, 500.0);
  left()->SetBehavior(vtkAxis::FIXED);
  container.setLogScaleY(true);
  render();
  EXPECT_TRUE(left()->GetLogScaleActive());
  EXPECT_DOUBLE_EQ(left()->GetUnscaledMinimum(), 1.0);
  EXPECT_DOUBLE_EQ(left()->GetUnscaledMaximum(), 500.0);
}

TEST_F(LogScales, TakeAnInfiniteValueForNone)
{
  container.setLogScaleY(true);
  show({1.0, std::numeric_limits<double>::infinity(), 1000.0, std::nan("")});
  render();
  expectLogarithmic(1.0, 1000.0);
}

TEST_F(LogScales, AreRefusedWithoutAnXYChart)
{
  drawStyle(scatterPlotMatrix);
  container.setLogScaleY(true);
  EXPECT_FALSE(container.showsLogScaleY());
  EXPECT_FALSE(container.showsLogScaleX());
}

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

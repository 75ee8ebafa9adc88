#include "plot/AxisWindows.h"

#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/vtkShiftScaleCallback.h"
#include "support/PlotScene.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>
#include <vtkChartParallelCoordinates.h>
#include <vtkCommand.h>
#include <vtkContextMouseEvent.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

class AxisWindows : public ::testing::Test
{
protected:
  AxisWindows()
  {
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 0; i < 50; ++i)
    {
      x.push_back(std::pow(10.0, 0.08 * i));
      y.push_back(1.0 + i);
    }
    container.setPlotData(tableOf({{"x", x}, {"y", y}, {"z", y}}));
    container.setScene(scene.scene());
    draw();
  }

  void draw()
  {
    container.redraw();
    scene.render(container);
  }

  /// What VTK does at the end of a pan or zoom.
  void zoom(double xMin, double xMax, double yMin, double yMax)
  {
    bottom()->SetRange(xMin, xMax);
    left()->SetRange(yMin, yMax);
    container.getChartXY()->InvokeEvent(vtkCommand::InteractionEvent);
  }

  void expectWindow(double xMin, double xMax, double yMin, double yMax)
  {
    EXPECT_DOUBLE_EQ(bottom()->GetMinimum(), xMin);
    EXPECT_DOUBLE_EQ(bottom()->GetMaximum(), xMax);
    EXPECT_DOUBLE_EQ(left()->GetMinimum(), yMin);
    EXPECT_DOUBLE_EQ(left()->GetMaximum(), yMax);
  }

  Talmesh::plot::PlotState& state() { return stateOf(container); }
  PlotMetaData& settings() { return *container.getMetaData(); }
  vtkAxis* bottom() { return container.getChartXY()->GetAxis(vtkAxis::BOTTOM); }
  vtkAxis* left() { return container.getChartXY()->GetAxis(vtkAxis::LEFT); }
  CoordinateWindow& window() { return state().coordinateWindows.at({0, 1, 0}); }

  PlotScene scene;
  PlotContainer container{nullptr};
};

TEST_F(AxisWindows, RememberWhereTheUserZoomedTo)
{
  EXPECT_TRUE(state().coordinateWindows.empty());
  zoom(2, 5, 10, 20);
  ASSERT_EQ(state().coordinateWindows.size(), 1U);
  EXPECT_EQ(window().xMin, 2.0);
  EXPECT_EQ(window().xMax, 5.0);
  EXPECT_EQ(window().yMin, 10.0);
  EXPECT_EQ(window().yMax, 20.0);
  EXPECT_TRUE(window().valid);
  draw();
  expectWindow(2, 5, 10, 20);
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::FIXED);
  EXPECT_EQ(left()->GetBehavior(), vtkAxis::FIXED);
}

TEST_F(AxisWindows, KeepTheLastWindowOfEveryConfiguration)
{
  zoom(2, 5, 10, 20);
  zoom(3, 4, 11, 12);
  ASSERT_EQ(state().coordinateWindows.size(), 1U);
  EXPECT_EQ(window().xMin, 3.0);
  settings().blockSignals(true);
  settings().setPlotStyle(scatterWithErrorBars);
  zoom(6, 7, 8, 9);
  EXPECT_EQ(state().coordinateWindows.size(), 2U);
  settings().setPlotStyle(xyPlot);
  settings().yColumns = {2};
  zoom(6, 7, 8, 9);
  EXPECT_EQ(state().coordinateWindows.size(), 3U);
  EXPECT_EQ(window().xMin, 3.0);
}

TEST_F(AxisWindows, SurviveARealTurnOfTheMouseWheel)
{
  vtkContextMouseEvent mouse;
  mouse.SetInteractor(nullptr);
  mouse.SetScreenPos(vtkVector2i(300, 200));
  container.getChartXY()->MouseWheelEvent(mouse, 3);
  ASSERT_EQ(state().coordinateWindows.size(), 1U);
  const CoordinateWindow zoomed = window();
  EXPECT_LT(zoomed.xMin, zoomed.xMax);
  draw();
  expectWindow(zoomed.xMin, zoomed.xMax, zoomed.yMin, zoomed.yMax);
}

TEST_F(AxisWindows, StayTheSameThroughRedrawsOnALogarithmicBottomAxis)
{
  settings().setLogX(true);
  draw();
  ASSERT_TRUE(bottom()->GetLogScaleActive());
  zoom(0.5, 1.5, 10, 20);
  for (int i = 0; i < 3; ++i)
  {
    draw();
    EXPECT_TRUE(bottom()->GetLogScaleActive());
    expectWindow(0.5, 1.5, 10, 20);
    EXPECT_NEAR(bottom()->GetUnscaledMinimum(), std::pow(10.0, 0.5), 1e-12);
    EXPECT_NEAR(bottom()->GetUnscaledMaximum(), std::pow(10.0, 1.5), 1e-12);
  }
}

TEST_F(AxisWindows, StayTheSameThroughRedrawsOnALogarithmicLeftAxis)
{
  container.setLogScaleY(true);
  draw();
  ASSERT_TRUE(left()->GetLogScaleActive());
  zoom(2, 5, 0.25, 1.25);
  for (int i = 0; i < 3; ++i)
  {
    draw();
    EXPECT_TRUE(left()->GetLogScaleActive());
    expectWindow(2, 5, 0.25, 1.25);
  }
}

TEST_F(AxisWindows, BelowOneOnALogarithmicAxisStayTheSame)
{
  settings().setLogX(true);
  draw();
  zoom(-0.75, 0.5, 10, 20);
  draw();
  draw();
  expectWindow(-0.75, 0.5, 10, 20);
}

TEST_F(AxisWindows, ShowTheSamePartWhenTheScaleChanges)
{
  zoom(10, 100, 10, 20);
  settings().setLogX(true);
  draw();
  ASSERT_TRUE(bottom()->GetLogScaleActive());
  EXPECT_NEAR(bottom()->GetMinimum(), 1.0, 1e-12);
  EXPECT_NEAR(bottom()->GetMaximum(), 2.0, 1e-12);
  settings().setLogX(false);
  draw();
  expectWindow(10, 100, 10, 20);
}

TEST_F(AxisWindows, SurviveAnotherStyleInBetween)
{
  settings().setLogX(true);
  draw();
  zoom(0.5, 1.5, 10, 20);
  settings().setPlotStyle(scatterPlotMatrix);
  draw();
  settings().setPlotStyle(xyPlot);
  draw();
  expectWindow(0.5, 1.5, 10, 20);
}

TEST_F(AxisWindows, OfColumnsThatHaveChangedAreForgotten)
{
  using Key = ReducedMetaData;
  auto& windows = state().coordinateWindows;
  for (const Key& key : {Key{0, 1, 0}, Key{0, 2, 0}, Key{0, 2, 6}, Key{1, 0, 0}, Key{3, 4, 0}})
  {
    windows[key] = {1, 2, 3, 4, true};
    state().windowScales[key] = {};
  }
  Talmesh::plot::forgetWindows(state(), {2, 5});
  EXPECT_EQ(windows.size(), 3U);
  EXPECT_EQ(state().windowScales.size(), 3U);
  EXPECT_EQ(windows.count({0, 2, 0}) + windows.count({0, 2, 6}), 0U);
  Talmesh::plot::forgetWindows(state(), {1});
  EXPECT_EQ(windows.size(), 1U);
  EXPECT_EQ(windows.count({3, 4, 0}), 1U);
  EXPECT_EQ(state().windowScales.count({3, 4, 0}), 1U);
  Talmesh::plot::forgetWindows(state(), {});
  EXPECT_EQ(windows.size(), 1U);
}

TEST_F(AxisWindows, ThatAreNotFiniteAreIgnored)
{
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double odd : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN()})
  {
    state().coordinateWindows[{0, 1, 0}] = {odd, 0, 1, 1, true};
    EXPECT_EQ(Talmesh::plot::rememberedWindow(state()), nullptr);
    draw();
    EXPECT_TRUE(std::isfinite(bottom()->GetMinimum()));
    EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
  }
}

class ShiftScaleCallback : public AxisWindows
{
protected:
  void execute(vtkObject* caller) { state().shiftScaleCallback->Execute(caller, 0, nullptr); }
};

TEST_F(ShiftScaleCallback, IgnoresEverythingButCharts)
{
  execute(nullptr);
  execute(container.getTable());
  execute(vtkNew<vtkAxis>());
  EXPECT_TRUE(state().coordinateWindows.empty());
  execute(container.getChartXY());
  EXPECT_EQ(state().coordinateWindows.size(), 1U);
}

TEST_F(ShiftScaleCallback, IgnoresChartsWithoutAxes)
{
  vtkNew<vtkChartParallelCoordinates> lines;
  ASSERT_EQ(lines->GetAxis(vtkAxis::BOTTOM), nullptr);
  execute(lines);
  EXPECT_TRUE(state().coordinateWindows.empty());
}

TEST_F(ShiftScaleCallback, IgnoresClicksOnPoints)
{
  vtkChartPlotData clicked;
  container.getChartXY()->InvokeEvent(vtkCommand::InteractionEvent, &clicked);
  EXPECT_TRUE(state().coordinateWindows.empty());
}

TEST_F(ShiftScaleCallback, WithoutContainerDoesNothing)
{
  vtkNew<vtkShiftScaleCallback> callback;
  EXPECT_EQ(callback->Container, nullptr);
  callback->Execute(container.getChartXY(), 0, nullptr);
  EXPECT_TRUE(state().coordinateWindows.empty());
}

TEST_F(ShiftScaleCallback, WithoutPlottedColumnsDoesNothing)
{
  settings().xColumns.clear();
  execute(container.getChartXY());
  settings().xColumns = {0};
  settings().yColumns.clear();
  execute(container.getChartXY());
  EXPECT_TRUE(state().coordinateWindows.empty());
}

TEST_F(ShiftScaleCallback, OutlivesItsContainer)
{
  vtkSmartPointer<vtkShiftScaleCallback> callback;
  vtkSmartPointer<vtkChartXY> chart;
  {
    PlotContainer gone(nullptr);
    callback = stateOf(gone).shiftScaleCallback;
    chart = gone.getChartXY();
  }
  EXPECT_EQ(callback->Container, nullptr);
  callback->Execute(chart, 0, nullptr);
}

TEST_F(ShiftScaleCallback, NeitherDrawsNorAbortsTheEvent)
{
  const unsigned long before = state().drawings;
  state().shiftScaleCallback->AbortFlagOff();
  zoom(2, 5, 10, 20);
  EXPECT_EQ(state().drawings, before);
  EXPECT_EQ(state().shiftScaleCallback->GetAbortFlag(), 0);
}

} // namespace

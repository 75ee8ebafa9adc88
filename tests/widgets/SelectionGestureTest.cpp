#include "vtk/SelectionGesture.h"

#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"

#include <vtkTooltipItem.h>

#include <gtest/gtest.h>

#include <QImage>

#include <cmath>
#include <optional>
#include <vector>

#include "SelectionMouse.h"

namespace
{

using Talmesh::SelectionGesture;
using Talmesh::SelectionTool;
using Kind = SelectionGesture::Kind;
using Mode = SelectionGesture::Mode;
using Values = std::vector<double>;

/// A program that takes gestures in the XY chart, in which the runs are drawn as lines.
class SelectionGestureInChart : public SelectionMouse
{
protected:
  SelectionGestureInChart()
  {
    container().getMetaData()->setPlotLine(true);
    container().redraw();
    takeAs(true);
    widget.updatePlot(true);
  }

  void takeAs(bool answer)
  {
    container().setGestureHandler(
        [this, answer](const SelectionGesture& gesture)
        {
          gestures.push_back(gesture);
          return answer;
        });
  }

  void useTool(SelectionTool tool) { container().setSelectionTool(tool); }

  QPoint at(const DataPoint& point)
  {
    vtkChart* chart = container().getChartXY();
    return pixelOf(point, chart->GetAxis(vtkAxis::BOTTOM), chart->GetAxis(vtkAxis::LEFT));
  }

  /// Presses, moves through all points and releases.
  void draw(const std::vector<QPoint>& pixels)
  {
    QTest::mousePress(&widget, Qt::RightButton, Qt::NoModifier, pixels.front());
    for (const QPoint& pixel : pixels)
      move(pixel, Qt::RightButton);
    QTest::mouseRelease(&widget, Qt::RightButton, Qt::NoModifier, pixels.back());
    widget.updatePlot(true);
  }

  /// The points are those of the data, as exactly as there are pixels.
  void expectPoints(const SelectionGesture& gesture, const std::vector<DataPoint>& points)
  {
    ASSERT_EQ(gesture.points.size(), points.size());
    for (std::size_t i = 0; i < points.size(); ++i)
    {
      const auto place = [](double value, bool log) { return log ? std::log10(value) : value; };
      EXPECT_NEAR(place(gesture.points[i].x, gesture.logX), place(points[i].x, gesture.logX),
                  gesture.unitsX)
          << i;
      EXPECT_NEAR(place(gesture.points[i].y, gesture.logY), place(points[i].y, gesture.logY),
                  gesture.unitsY)
          << i;
    }
  }

  vtkTooltipItem* tooltip() { return container().getChartXY()->GetTooltip(); }

  std::vector<SelectionGesture> gestures;
};

} // namespace

TEST_F(SelectionGestureInChart, IsTakenInPlaceOfRows)
{
  drag({0.7, 9.0}, {2.3, 13.0});
  ASSERT_EQ(gestures.size(), 1U);
  const SelectionGesture& gesture = gestures.front();
  EXPECT_EQ(gesture.kind, Kind::Rectangle);
  expectPoints(gesture, {{0.7, 9.0}, {2.0, 13.0}});
  EXPECT_EQ(gesture.table, container().getTable());
  ASSERT_EQ(gesture.series.size(), 1U);
  EXPECT_EQ(gesture.series.front().x, ": Time [s]");
  EXPECT_EQ(gesture.series.front().y, "Complex: A");
  EXPECT_TRUE(gesture.series.front().lines);
  EXPECT_EQ(announcements(), 0);
}

TEST_F(SelectionGestureInChart, SelectsRowsWhereItIsNotTaken)
{
  takeAs(false);
  drag({0.7, 9.0}, {2.3, 13.0});
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 1, 0, 0, 0}));
  useTool(SelectionTool::Lasso);
  draw({at({0.7, 0.5}), at({1.3, 0.5}), at({1.3, 1.5}), at({0.7, 1.5})});
  EXPECT_EQ(flags(), Values({0, 1, 0, 0, 0, 0, 0, 0, 0})) << "the points in the lasso";
  useTool(SelectionTool::Line);
  draw({at({0.5, 0.5}), at({1.5, 20})});
  EXPECT_EQ(flags(), Values({0, 1, 0, 0, 0, 0, 0, 0, 0})) << "no points on a line";
}

TEST_F(SelectionGestureInChart, TellsWhatTheModifiersMean)
{
  for (const auto modifiers :
       {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ControlModifier),
        Qt::KeyboardModifiers(Qt::ShiftModifier), Qt::ControlModifier | Qt::ShiftModifier})
    drag({0.7, 9.0}, {1.3, 13.0}, modifiers);
  ASSERT_EQ(gestures.size(), 4U);
  EXPECT_EQ(gestures[0].mode, Mode::Replace);
  EXPECT_EQ(gestures[1].mode, Mode::Add);
  EXPECT_EQ(gestures[2].mode, Mode::Subtract);
  EXPECT_EQ(gestures[3].mode, Mode::Toggle);
}

TEST_F(SelectionGestureInChart, EndsAtTheAxesAndMayBeginBesideThem)
{
  vtkChart* chart = container().getChartXY();
  vtkAxis* x = chart->GetAxis(vtkAxis::BOTTOM);
  vtkAxis* y = chart->GetAxis(vtkAxis::LEFT);
  const QPoint aboveAxes = at({0.5, y->GetMaximum()}) - QPoint(0, 8);
  dragPixels(aboveAxes, at({x->GetMaximum(), 5.0}) + QPoint(300, 0));
  ASSERT_EQ(gestures.size(), 1U);
  expectPoints(gestures.front(), {{0.5, y->GetMaximum()}, {x->GetMaximum(), 5.0}});
  dragPixels(aboveAxes - QPoint(0, 30), at({1.0, 5.0}));
  EXPECT_EQ(gestures.size(), 1U) << "too far away";
  // Nobody is asked: the axes are where a selection begins.
  container().setGestureHandler(nullptr);
  dragPixels(aboveAxes, at({x->GetMaximum(), 5.0}));
  EXPECT_EQ(announcements(), 0);
}

TEST_F(SelectionGestureInChart, IsAClickWhereTheMouseHardlyMoves)
{
  dragPixels(at({1.0, 11.0}), at({1.0, 11.0}) + QPoint(2, 1));
  ASSERT_EQ(gestures.size(), 1U);
  EXPECT_EQ(gestures.front().kind, Kind::Click);
  ASSERT_EQ(gestures.front().points.size(), 1U);
  EXPECT_NEAR(gestures.front().points.front().x, 1.0, 3 * gestures.front().unitsX);
  dragPixels(at({1.0, 5.0}), at({1.0, 5.0}) + QPoint(0, 40));
  ASSERT_EQ(gestures.size(), 2U);
  EXPECT_EQ(gestures.back().kind, Kind::Rectangle) << "narrow as it is, lines pass through it";
}

TEST_F(SelectionGestureInChart, IsInUnitsOfTheDataOnLogarithmicAxes)
{
  auto* times = Talmesh::plot::doubleColumn(container().getTable(), SampleRuns::timeColumn);
  auto* values = Talmesh::plot::doubleColumn(container().getTable(), SampleRuns::complexColumn);
  for (vtkIdType row = 0; row < times->GetNumberOfValues(); ++row)
  {
    times->SetValue(row, std::pow(100.0, times->GetValue(row)));
    values->SetValue(row, 1e-9 * (1 + values->GetValue(row)));
  }
  times->Modified();
  values->Modified();
  container().getMetaData()->setLogX(true);
  container().redraw();
  container().setLogScaleY(true);
  widget.updatePlot(true);
  QTest::mousePress(&widget, Qt::RightButton, Qt::NoModifier, QPoint(200, 100));
  QTest::mouseRelease(&widget, Qt::RightButton, Qt::NoModifier, QPoint(400, 250));
  ASSERT_EQ(gestures.size(), 1U);
  EXPECT_TRUE(gestures.front().logX);
  EXPECT_TRUE(gestures.front().logY);
  vtkChart* chart = container().getChartXY();
  const auto valueAt = [](vtkAxis* axis, double pixel, int i)
  {
    const double part =
        (pixel - axis->GetPoint1()[i]) / (axis->GetPoint2()[i] - axis->GetPoint1()[i]);
    return axis->GetUnscaledMinimum() *
           std::pow(axis->GetUnscaledMaximum() / axis->GetUnscaledMinimum(), part);
  };
  vtkAxis* x = chart->GetAxis(vtkAxis::BOTTOM);
  vtkAxis* y = chart->GetAxis(vtkAxis::LEFT);
  expectPoints(gestures.front(), {{valueAt(x, 200, 0), valueAt(y, widget.height() - 1 - 100, 1)},
                                  {valueAt(x, 400, 0), valueAt(y, widget.height() - 1 - 250, 1)}});
}

TEST_F(SelectionGestureInChart, IsInUnitsOfTheDataWhereTheChartShiftsAndScales)
{
  auto* times = Talmesh::plot::doubleColumn(container().getTable(), SampleRuns::timeColumn);
  auto* values = Talmesh::plot::doubleColumn(container().getTable(), SampleRuns::complexColumn);
  for (vtkIdType row = 0; row < times->GetNumberOfValues(); ++row)
  {
    times->SetValue(row, 1e9 + 1e-3 * times->GetValue(row));
    values->SetValue(row, 1e-20 * values->GetValue(row));
  }
  times->Modified();
  values->Modified();
  container().redraw();
  widget.updatePlot(true);
  vtkAxis* bottom = container().getChartXY()->GetAxis(vtkAxis::BOTTOM);
  ASSERT_TRUE(bottom->GetShift() != 0 || bottom->GetScalingFactor() != 1);
  drag({1e9 + 0.7e-3, 9e-20}, {1e9 + 1.3e-3, 13e-20});
  ASSERT_EQ(gestures.size(), 1U);
  expectPoints(gestures.front(), {{1e9 + 0.7e-3, 9e-20}, {1e9 + 1.3e-3, 13e-20}});
}

TEST_F(SelectionGestureInChart, DrawsALassoOrALine)
{
  useTool(SelectionTool::Lasso);
  const std::vector<DataPoint> corners = {{0.5, 5}, {1.5, 5}, {1.5, 15}};
  draw({at(corners[0]), at(corners[1]), at(corners[2])});
  ASSERT_EQ(gestures.size(), 1U);
  EXPECT_EQ(gestures.back().kind, Kind::Lasso);
  expectPoints(gestures.back(), corners);
  useTool(SelectionTool::Line);
  draw({at({0.5, 5}), at({1.9, 5}), at({1.5, 15})});
  ASSERT_EQ(gestures.size(), 2U);
  EXPECT_EQ(gestures.back().kind, Kind::Line);
  expectPoints(gestures.back(), {{0.5, 5}, {1.5, 15}});
}

TEST_F(SelectionGestureInChart, ShowsALassoUntilItIsGivenUp)
{
  for (const SelectionTool tool : {SelectionTool::Lasso, SelectionTool::Line})
  {
    useTool(tool);
    const QImage before = widget.grabFramebuffer();
    QTest::mousePress(&widget, Qt::RightButton, Qt::NoModifier, at({0.5, 5}));
    move(at({1.5, 5}), Qt::RightButton);
    move(at({1.5, 12}), Qt::RightButton);
    widget.updatePlot(false);
    EXPECT_NE(widget.grabFramebuffer(), before);
    EXPECT_TRUE(widget.cancelDrag());
    EXPECT_EQ(widget.grabFramebuffer(), before);
    QTest::mouseRelease(&widget, Qt::RightButton, Qt::NoModifier, at({1.5, 12}));
    EXPECT_TRUE(gestures.empty());
  }
}

TEST_F(SelectionGestureInChart, SaysBesideTheMouseWhatTheProgramKnows)
{
  std::optional<std::string> answer = "run 1";
  container().setHoverText([&answer](const SelectionGesture&) { return answer; });
  move(at({0.5, 10.5}), Qt::NoButton);
  EXPECT_TRUE(tooltip()->GetVisible());
  EXPECT_EQ(tooltip()->GetText(), "run 1");
  answer = "";
  move(at({0.5, 10.6}), Qt::NoButton);
  EXPECT_FALSE(tooltip()->GetVisible());
  // What charts say by themselves, at a point.
  answer.reset();
  move(at({1.0, 11.0}), Qt::NoButton);
  EXPECT_TRUE(tooltip()->GetVisible());
  EXPECT_NE(tooltip()->GetText(), "run 1");
}

TEST_F(SelectionGestureInChart, IsAskedForInTheScatterPlotMatrix)
{
  container().getMetaData()->setLimitColumVisibility(true);
  showStyle(scatterPlotMatrix);
  widget.updatePlot(true);
  vtkChart* large = stateOf(container()).scatterPlotMatrix->GetMainChart();
  dragIn(large, {0.7, 9.0}, {1.3, 13.0}, Qt::NoModifier, vtkAxis::TOP, vtkAxis::RIGHT);
  ASSERT_EQ(gestures.size(), 1U);
  expectPoints(gestures.front(), {{0.7, 9.0}, {1.3, 13.0}});
  EXPECT_EQ(gestures.front().series.front().x, ": Time [s]");
  EXPECT_FALSE(gestures.front().series.front().lines);
}

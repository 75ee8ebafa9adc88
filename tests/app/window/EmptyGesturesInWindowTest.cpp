#include <vtkChartParallelCoordinates.h>
#include <vtkScatterPlotMatrix.h>

#include <string>
#include <vector>

#include "window/GesturesInWindow.h"

namespace
{

using namespace Talmesh::app;

const Qt::KeyboardModifiers withKeys[] = {Qt::ControlModifier, Qt::ShiftModifier,
                                          Qt::ControlModifier | Qt::ShiftModifier};

/// Gestures that meet no run, while the first two are selected.
class EmptyGesturesInWindow : public GesturesInWindow
{
protected:
  /// A chart and a place in it that no run comes to, in parts of its axes.
  struct EmptyPlace
  {
    const char* name;
    plotStyles style;
    bool lines;
    bool ofRuns; ///< a parameter on x
    Place from;
    Place to;
  };
  void show(const EmptyPlace& place)
  {
    PlotChoice choice = window.plotDock()->choice();
    choice.style = place.style;
    choice.lines = place.lines;
    choice.x = place.ofRuns ? parameterK : time;
    window.plotDock()->setChoice(choice);
    emit window.plotDock()->choiceChanged();
    plot().updatePlot(true);
  }

  vtkChart* chart()
  {
    auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container().getItem());
    return matrix ? matrix->GetMainChart() : container().getChartXY();
  }

  QPoint pixelAt(double right, double up)
  {
    const int* low = chart()->GetPoint1();
    const int* high = chart()->GetPoint2();
    return pixelOfScene(plot(), low[0] + right * (high[0] - low[0]),
                        low[1] + up * (high[1] - low[1]));
  }

  void drawAt(const EmptyPlace& place, Tool tool, Qt::KeyboardModifiers modifiers)
  {
    choose(tool);
    const QPoint from = pixelAt(place.from.x, place.from.y);
    const QPoint to = pixelAt(place.to.x, place.to.y);
    if (tool == Tool::Lasso)
      drawPixels({from, {to.x(), from.y()}, to, {from.x(), to.y()}}, modifiers);
    else
      drawPixels({from, to}, modifiers);
  }

  void expectNothing(int before, const std::string& what)
  {
    EXPECT_EQ(runs(), Runs{}) << what;
    EXPECT_EQ(steps(), before + 1) << what;
    press(QKeySequence::Undo);
    EXPECT_EQ(runs(), (Runs{0, 1})) << what;
  }

  void expectUnchanged(int before, const std::string& what)
  {
    EXPECT_EQ(runs(), (Runs{0, 1})) << what;
    EXPECT_EQ(steps(), before) << what;
  }

  QPoint onAxis(int index, double value)
  {
    vtkAxis* axis =
        vtkChartParallelCoordinates::SafeDownCast(container().getItem())->GetAxis(index);
    const double part = (value - axis->GetMinimum()) / (axis->GetMaximum() - axis->GetMinimum());
    const double y = axis->GetPoint1()[1] + part * (axis->GetPoint2()[1] - axis->GetPoint1()[1]);
    return pixelOfScene(plot(), axis->GetPoint1()[0], y);
  }

  static constexpr int time = 2;
  static constexpr int parameterK = 4;
  const std::vector<EmptyPlace> emptyPlaces = {
      {"lines", xyPlot, true, false, {0.9, 0.02}, {0.98, 0.06}},
      {"points of rows", xyPlot, false, false, {0.9, 0.02}, {0.98, 0.06}},
      {"points of runs", xyPlot, true, true, {0.15, 0.02}, {0.35, 0.98}},
      {"lines beside distributions", selectionCdfPlot, true, false, {0.9, 0.02}, {0.98, 0.06}},
      {"the matrix", scatterPlotMatrix, true, false, {0.25, 0.02}, {0.42, 0.98}},
  };
};

} // namespace

TEST_F(EmptyGesturesInWindow, SelectNothingAnewAndChangeNothingWithKeys)
{
  for (const EmptyPlace& place : emptyPlaces)
  {
    show(place);
    ASSERT_TRUE(chart()) << place.name;
    for (const Tool tool : {Tool::Rectangle, Tool::Lasso, Tool::Line})
    {
      const std::string what = std::string(place.name) + ", tool " + std::to_string(int(tool));
      select("runs(0, 1)");
      const int before = steps();
      drawAt(place, tool, Qt::NoModifier);
      expectNothing(before, what);
      for (const Qt::KeyboardModifiers keys : withKeys)
      {
        drawAt(place, tool, keys);
        expectUnchanged(before, what + " with " + std::to_string(int(keys)));
      }
    }
  }
}

TEST_F(EmptyGesturesInWindow, SelectNothingWithALassoOfTwoCorners)
{
  show(emptyPlaces[0]);
  select("runs(0, 1)");
  const int before = steps();
  choose(Tool::Lasso);
  drawPixels({pixelAt(0.9, 0.02), pixelAt(0.98, 0.06)});
  expectNothing(before, "there and back");
}

TEST_F(EmptyGesturesInWindow, SelectNothingOnAnAxisBetweenTheRuns)
{
  choose(parallelCoordinates);
  select("runs(0, 1)");
  const int before = steps();
  drag(plot(), Qt::RightButton, onAxis(0, 0.8), onAxis(0, 1.2));
  expectNothing(before, "a brush");
  for (const Qt::KeyboardModifiers keys : withKeys)
  {
    drag(plot(), Qt::RightButton, onAxis(0, 0.8), onAxis(0, 1.2), keys);
    expectUnchanged(before, "a brush");
  }
}

TEST_F(EmptyGesturesInWindow, ChangeNothingByAClickBesideEveryRun)
{
  for (const EmptyPlace& place : emptyPlaces)
  {
    show(place);
    select("runs(0, 1)");
    const int before = steps();
    drawPixels({pixelAt(place.from.x, place.from.y)});
    expectUnchanged(before, place.name);
  }
  choose(parallelCoordinates);
  select("runs(0, 1)");
  const int before = steps();
  drag(plot(), Qt::RightButton, onAxis(0, 1.0), onAxis(0, 1.0));
  expectUnchanged(before, "on an axis");
}

TEST_F(EmptyGesturesInWindow, MeetARunByAClickOnAnAxis)
{
  choose(parallelCoordinates);
  select("runs(0)");
  // k of run 1 is 1.5, and the mouse must go down within the axis.
  drag(plot(), Qt::RightButton, onAxis(0, 1.5) + QPoint(0, 2), onAxis(0, 1.5) + QPoint(0, 1));
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(lastStep(), "Select 1 run: runs(1)");
  drag(plot(), Qt::RightButton, onAxis(0, 1.5), onAxis(0, 1.5), Qt::ControlModifier);
  drag(plot(), Qt::RightButton, onAxis(0, 1.5), onAxis(0, 1.5), Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{});
}

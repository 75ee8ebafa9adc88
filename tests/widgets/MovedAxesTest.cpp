#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "vtk/CancelledDrags.h"

#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SelectionMouse.h"

namespace
{

using Names = std::vector<std::string>;

const std::string complexName = "Complex: A";
const std::string timeName = ": Time [s]";
const std::string parameterName = "Parameter: k1";

/// Parallel coordinates of "Complex: A", ": Time [s]" and "Parameter: k1", whose axes can be moved.
class MovedAxes : public SelectionMouse
{
protected:
  MovedAxes()
  {
    PlotOptions options;
    options.movesParallelAxes = true;
    container().setOptions(options);
    container().getMetaData()->yColumns = {SampleRuns::complexColumn, SampleRuns::timeColumn,
                                           SampleRuns::firstParameterColumn};
    showStyle(parallelCoordinates);
    chart()->AddObserver(vtkCommand::InteractionEvent, this, &MovedAxes::noteMove);
  }

  vtkChartParallelCoordinates* chart() { return stateOf(container()).parallelCoordinates; }

  Names names()
  {
    Names names;
    for (int i = 0; i < chart()->GetNumberOfAxes(); ++i)
      names.push_back(chart()->GetVisibleColumns()->GetValue(i));
    return names;
  }

  /// What the axes say that they are.
  Names titles()
  {
    Names titles;
    for (int i = 0; i < chart()->GetNumberOfAxes(); ++i)
      titles.push_back(chart()->GetAxis(i)->GetTitle());
    return titles;
  }

  QPoint onAxis(int axis)
  {
    return {qRound(chart()->GetAxis(axis)->GetPoint1()[0]), widget.height() / 2};
  }

  void press(const QPoint& at) { QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, at); }

  void drag(const QPoint& from, const QPoint& to)
  {
    press(from);
    // The mouse passes every pixel on its way or few of them.
    move(from + (to - from) / 2, Qt::LeftButton);
    move(to, Qt::LeftButton);
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, to);
    widget.updatePlot(true);
  }

  int moves = 0;

private:
  void noteMove() { ++moves; }
};

} // namespace

TEST_F(MovedAxes, ComeInTheOrderInWhichTheMousePutsThem)
{
  drag(onAxis(0), onAxis(1) + QPoint(15, 0));
  EXPECT_EQ(names(), Names({timeName, complexName, parameterName}));
  drag(onAxis(2), onAxis(0) - QPoint(15, 0));
  EXPECT_EQ(names(), Names({parameterName, timeName, complexName}));
  EXPECT_EQ(titles(), names());
  EXPECT_EQ(moves, 2);
}

TEST_F(MovedAxes, StandAtEqualDistancesAgain)
{
  const QPoint places[] = {onAxis(0), onAxis(1), onAxis(2)};
  drag(onAxis(1), onAxis(2) + QPoint(40, 0));
  drag(onAxis(0), onAxis(0) + QPoint(37, 0));
  EXPECT_EQ(names(), Names({complexName, parameterName, timeName}));
  for (int axis = 0; axis < 3; ++axis)
    EXPECT_EQ(onAxis(axis), places[axis]);
}

TEST_F(MovedAxes, KeepTheirRanges)
{
  // VTK's chart changes the range of an axis that is dragged near its end.
  vtkAxis* axis = chart()->GetAxis(2);
  const QPoint end(qRound(axis->GetPoint1()[0]),
                   widget.height() - 1 - qRound(axis->GetPoint1()[1]));
  drag(end - QPoint(0, 8), onAxis(0) - QPoint(9, 60));
  EXPECT_EQ(names().front(), parameterName);
  EXPECT_EQ(chart()->GetAxis(0)->GetMinimum(), 1);
  EXPECT_EQ(chart()->GetAxis(0)->GetMaximum(), 3);
}

TEST_F(MovedAxes, SelectNothing)
{
  drag(onAxis(0), onAxis(1) + QPoint(15, 50));
  EXPECT_EQ(flags(), std::vector<double>(9, 0.0));
  EXPECT_EQ(announcements(), 0);
}

TEST_F(MovedAxes, StayWhereTheMouseIsBesideThem)
{
  const QPoint between = (onAxis(0) + onAxis(1)) / 2;
  drag(between, onAxis(2));
  EXPECT_EQ(names(), Names({complexName, timeName, parameterName}));
  EXPECT_EQ(moves, 0);
}

TEST_F(MovedAxes, GoBackWhenTheDragIsGivenUp)
{
  const QPoint from = onAxis(0);
  press(from);
  move(onAxis(1) + QPoint(20, 0), Qt::LeftButton);
  ASSERT_EQ(names(), Names({timeName, complexName, parameterName}));
  EXPECT_TRUE(Talmesh::cancelDrags(*chart()->GetScene()));
  move(onAxis(1) + QPoint(90, 0), Qt::LeftButton);
  QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, onAxis(2));
  widget.updatePlot(true);
  EXPECT_EQ(names(), Names({complexName, timeName, parameterName}));
  EXPECT_EQ(titles(), names());
  EXPECT_EQ(onAxis(0), from);
  EXPECT_EQ(moves, 0);
}

TEST_F(MovedAxes, SurviveADrawingUnderTheMouse)
{
  press(onAxis(2));
  move(onAxis(2) - QPoint(30, 0), Qt::LeftButton);
  container().getMetaData()->yColumns = {SampleRuns::complexColumn, SampleRuns::moleculeColumn,
                                         SampleRuns::timeColumn};
  container().redraw();
  widget.updatePlot(true);
  move(onAxis(0) - QPoint(20, 0), Qt::LeftButton);
  QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, onAxis(0));
  widget.updatePlot(true);
  EXPECT_EQ(names(), Names({complexName, "Molecule: B", timeName}));
}

TEST_F(MovedAxes, AreNotMovedUnlessTheProgramWantsThat)
{
  container().setOptions({});
  showStyle(xyPlot);
  showStyle(parallelCoordinates);
  drag(onAxis(0), onAxis(1) + QPoint(15, 0));
  EXPECT_EQ(names(), Names({complexName, timeName, parameterName}));
}

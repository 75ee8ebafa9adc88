#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"

#include <gtest/gtest.h>

#include <QImage>

#include <vector>

#include "SelectionMouse.h"

namespace
{

using Values = std::vector<double>;

/// Selections that the mouse begins and the user gives up.
class CancelledDrag : public SelectionMouse
{
protected:
  void press(const QPoint& at) { QTest::mousePress(&widget, Qt::RightButton, Qt::NoModifier, at); }
  void release(const QPoint& at)
  {
    QTest::mouseRelease(&widget, Qt::RightButton, Qt::NoModifier, at);
  }

  /// In the XY chart: around the second point of the second run.
  QPoint start() { return at(0.7, 10.6); }
  QPoint end() { return at(1.3, 11.4); }

private:
  QPoint at(double x, double y)
  {
    vtkChart* chart = container().getChartXY();
    return pixelOf({x, y}, chart->GetAxis(vtkAxis::BOTTOM), chart->GetAxis(vtkAxis::LEFT));
  }
};

TEST_F(CancelledDrag, SelectsNothingAndKeepsWhatIsSelected)
{
  dragAround(0, 1);
  const Values before = flags();
  const int told = announcements();
  press(start());
  move(end(), Qt::RightButton);
  EXPECT_TRUE(widget.cancelDrag());
  move(end() + QPoint(5, 5), Qt::RightButton);
  release(end());
  EXPECT_EQ(flags(), before);
  EXPECT_EQ(announcements(), told);
  EXPECT_FALSE(widget.cancelDrag()) << "nothing is under way any more";
}

TEST_F(CancelledDrag, TakesItsRectangleAway)
{
  widget.updatePlot(true);
  const QImage before = widget.grabFramebuffer();
  press(start());
  move(end(), Qt::RightButton);
  widget.updatePlot(false);
  EXPECT_NE(widget.grabFramebuffer(), before);
  widget.cancelDrag();
  EXPECT_EQ(widget.grabFramebuffer(), before);
  release(end());
}

TEST_F(CancelledDrag, IsForgottenByTheNextOne)
{
  press(start());
  move(end(), Qt::RightButton);
  widget.cancelDrag();
  release(end());
  dragAround(1, 1);
  EXPECT_EQ(flags(), (Values{0, 0, 0, 0, 1, 0, 0, 0, 0}));
}

TEST_F(CancelledDrag, IsNoneWithoutAButton)
{
  EXPECT_FALSE(widget.cancelDrag());
  dragAround(1, 1);
  EXPECT_FALSE(widget.cancelDrag());
}

TEST_F(CancelledDrag, InACellOfAPageSelectsNothing)
{
  showStyle(selectionCdfPlot);
  press(start());
  move(end(), Qt::RightButton);
  EXPECT_TRUE(widget.cancelDrag());
  release(end());
  EXPECT_EQ(flags(), Values(9, 0.0));
}

TEST_F(CancelledDrag, AlongAnAxisSelectsNothing)
{
  showStyle(parallelCoordinates);
  vtkAxis* axis = stateOf(container()).parallelCoordinates->GetAxis(0);
  const QPoint onAxis(qRound(axis->GetPoint1()[0]), widget.height() / 2);
  press(onAxis);
  move(onAxis + QPoint(0, 40), Qt::RightButton);
  EXPECT_TRUE(widget.cancelDrag());
  move(onAxis + QPoint(0, 60), Qt::RightButton);
  release(onAxis + QPoint(0, 60));
  EXPECT_EQ(flags(), Values(9, 0.0));
  EXPECT_EQ(announcements(), 0);
  press(onAxis);
  move(onAxis + QPoint(0, 90), Qt::RightButton);
  release(onAxis + QPoint(0, 90));
  EXPECT_EQ(announcements(), 1) << "the next brush is one again";
}

} // namespace

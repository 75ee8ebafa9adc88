#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "support/DrawnStyles.h"

#include <vtkRenderWindowInteractor.h>

#include <gtest/gtest.h>

#include <vector>

#include "SelectionMouse.h"

namespace
{

using Values = std::vector<double>;

/// Buttons pressed in a chart that is gone when they are released.
class LostDrag : public SelectionMouse, public ::testing::WithParamInterface<Qt::MouseButton>
{
protected:
  void press(const QPoint& at) { QTest::mousePress(&widget, GetParam(), Qt::NoModifier, at); }
  void release(const QPoint& at) { QTest::mouseRelease(&widget, GetParam(), Qt::NoModifier, at); }

  QPoint middle() const { return {widget.width() / 2, widget.height() / 2}; }
};

INSTANTIATE_TEST_SUITE_P(Buttons, LostDrag,
                         ::testing::Values(Qt::LeftButton, Qt::MiddleButton, Qt::RightButton));

} // namespace

TEST_P(LostDrag, EndsWithTheChartOfAnotherStyle)
{
  for (const plotStyles from : drawnStyles)
  {
    for (const plotStyles to : drawnStyles)
    {
      showStyle(from);
      press(middle());
      move(middle() + QPoint(40, 30), GetParam());
      if (to != from)
        showStyle(to);
      release(middle() + QPoint(60, 50));
      widget.updatePlot(true);
      if (to != from)
      {
        EXPECT_EQ(flags(), Values(9, 0.0)) << from << " to " << to;
      }
      container().getAnnotationLink()->SetCurrentSelection(nullptr);
    }
  }
}

TEST_P(LostDrag, EndsWithItsContainer)
{
  press(middle());
  PlotContainer other(nullptr);
  SampleRuns::load(other, SampleRuns::runs(3, 3));
  widget.setPlotContainer(&other);
  release(middle() + QPoint(60, 50));
  EXPECT_EQ(SampleRuns::selectedRows(other), std::set<vtkIdType>());
}

TEST_P(LostDrag, InTheParallelCoordinatesEndsOnTheirAxis)
{
  showStyle(parallelCoordinates);
  vtkAxis* axis = stateOf(container()).parallelCoordinates->GetAxis(0);
  const QPoint onAxis(qRound(axis->GetPoint1()[0]), widget.height() / 2);
  press(onAxis);
  showStyle(xyPlot);
  release(onAxis + QPoint(0, 40));
  EXPECT_EQ(flags(), Values(9, 0.0));
}

TEST_P(LostDrag, LeavesNoTurningMatrixBehind)
{
  container().getMetaData()->setLimitColumVisibility(true);
  showStyle(scatterPlotMatrix);
  vtkScatterPlotMatrix* matrix = stateOf(container()).scatterPlotMatrix;
  vtkChart* pair = matrix->GetChart(vtkVector2i(1, 0));
  ASSERT_NE(matrix->GetActivePlot(), vtkVector2i(1, 0));
  clickPixel({qRound((pair->GetPoint1()[0] + pair->GetPoint2()[0]) / 2.0),
              widget.height() - qRound((pair->GetPoint1()[1] + pair->GetPoint2()[1]) / 2.0)},
             Qt::NoModifier, GetParam());
  EXPECT_EQ(matrix->GetActivePlot() == vtkVector2i(1, 0), GetParam() != Qt::MiddleButton);
  showStyle(xyPlot);
  // The time in which VTK's matrix turns.
  QTest::qWait(200);
}

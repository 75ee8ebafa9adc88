#include "support/Reaction.h"
#include "vtk/PictureStore.h"
#include "vtk/vtkPlotLineSet.h"

#include <vtkCommand.h>
#include <vtkNew.h>
#include <vtkRenderWindow.h>

#include <utility>

#include "window/SelectionInWindow.h"

/// What a selection by the mouse has the window paint and count.
namespace
{
class SelectionFrames : public SelectionInWindow, public ::testing::WithParamInterface<plotStyles>
{
protected:
  static constexpr int longEnough = 400; ///< milliseconds, longer than any timer of VTK

  SelectionFrames()
  {
    counter->react = [this] { ++frames; };
    choose(GetParam());
    QTest::qWait(longEnough);
    plot().renderWindow()->AddObserver(vtkCommand::EndEvent, counter);
  }
  ~SelectionFrames() override { plot().renderWindow()->RemoveObserver(counter); }

  void move(const QPoint& to)
  {
    QMouseEvent event(QEvent::MouseMove, to, plot().mapToGlobal(to), Qt::NoButton, Qt::RightButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&plot(), &event);
  }

  int framesUntilIdle()
  {
    QTest::qWait(longEnough);
    return std::exchange(frames, 0);
  }

  /// Lines that the pictures of runs were made of.
  std::int64_t counted()
  {
    vtkChartXY* chart = container().getChartXY();
    for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
      if (auto* runs = vtkPlotLineSet::SafeDownCast(chart->GetPlot(i)))
        return runs->GetPictureStore()->countedLines();
    return -1; // drawn as points
  }

  vtkNew<Reaction> counter;
  int frames = 0;
};
} // namespace

TEST_P(SelectionFrames, AreOneForEachSelection)
{
  const double y = 2.0 + std::sin(0.3 + 1);
  const QPoint from = pixelOf(0.8, y - 0.03);
  QTest::mousePress(&plot(), Qt::RightButton, Qt::NoModifier, from);
  framesUntilIdle();
  const std::int64_t before = counted();
  for (int step = 1; step <= 5; ++step)
  {
    move(pixelOf(0.8 + 0.08 * step, y - 0.03 + 0.012 * step));
    EXPECT_EQ(framesUntilIdle(), 1) << "with a rectangle";
  }
  EXPECT_EQ(counted(), before) << "while the rectangle grows, nothing is counted";
  QTest::mouseRelease(&plot(), Qt::RightButton, Qt::NoModifier, pixelOf(1.2, y + 0.03));
  EXPECT_EQ(framesUntilIdle(), 1);
  EXPECT_EQ(runs(), Runs{1});
  if (before >= 0)
  {
    EXPECT_EQ(counted(), before + 1) << "the selected run alone";
  }
}

INSTANTIATE_TEST_SUITE_P(Styles, SelectionFrames,
                         ::testing::Values(xyPlot, multiPlot, selectionCdfPlot));

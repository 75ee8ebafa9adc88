#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "vtk/RowSelections.h"

#include <vtkIdTypeArray.h>
#include <vtkPlot.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>

#include <set>
#include <vector>

#include "SelectionMouse.h"

namespace
{

using Values = std::vector<double>;
using Runs = std::set<int>;

/// Three runs of three points over three axes: "Complex: A", ": Time [s]" and "Parameter: k1", of
/// which the last is run + 1.
class SelectionInParallelCoordinates : public SelectionMouse
{
protected:
  static constexpr int timeAxis = 1;
  static constexpr int parameterAxis = 2;

  SelectionInParallelCoordinates()
  {
    container().getMetaData()->yColumns = {SampleRuns::complexColumn, SampleRuns::timeColumn,
                                           SampleRuns::firstParameterColumn};
    showStyle(parallelCoordinates);
  }

  vtkChartParallelCoordinates* chart() { return stateOf(container()).parallelCoordinates; }

  void brush(int axisIndex, double from, double to,
             Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    vtkAxis* axis = chart()->GetAxis(axisIndex);
    const int x = qRound(axis->GetPoint1()[0]);
    dragPixels({x, pixelOf({0.0, from}, axis, axis).y()}, {x, pixelOf({0.0, to}, axis, axis).y()},
               modifiers);
  }

  void brushRun(int run, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    // The mouse must go down within the axis, which runs from the first to the last run.
    const double inner = run == 2 ? -0.3 : 0.3;
    brush(parameterAxis, run + 1 + inner, run + 1 - inner, modifiers);
  }

  Values highlighted() { return SampleRuns::valuesOf(chart()->GetPlot(0)->GetSelection()); }

  void select(const std::vector<vtkIdType>& rows)
  {
    container().getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection(rows));
    widget.updatePlot(true);
  }

  /// Pixels of highlighted lines, of which nothing else here has the colour.
  int redPixels()
  {
    const QImage picture = widget.grabFramebuffer();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
      {
        const QColor color = picture.pixelColor(x, y);
        count += color.red() > color.green() + 60 && color.red() > color.blue() + 60;
      }
    return count;
  }
};

} // namespace

TEST_F(SelectionInParallelCoordinates, AddsSubtractsAndTogglesWithTheModifiers)
{
  brushRun(1);
  EXPECT_EQ(flags(), Values({0, 0, 0, 1, 1, 1, 0, 0, 0}));
  brushRun(2, Qt::ControlModifier);
  EXPECT_EQ(flags(), Values({0, 0, 0, 1, 1, 1, 1, 1, 1}));
  brushRun(1, Qt::ShiftModifier);
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 0, 0, 1, 1, 1}));
  brush(timeAxis, 0.5, 2.1, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(flags(), Values({0, 1, 1, 0, 1, 1, 1, 0, 0}));
  brushRun(0);
  EXPECT_EQ(flags(), Values({1, 1, 1, 0, 0, 0, 0, 0, 0}));
}

TEST_F(SelectionInParallelCoordinates, AnnouncesEachBrushOnce)
{
  brushRun(1);
  EXPECT_EQ(announcements(), 1);
  brushRun(2, Qt::ControlModifier);
  EXPECT_EQ(announcements(), 2);
  vtkSelection* selection = container().getAnnotationLink()->GetCurrentSelection();
  ASSERT_EQ(selection->GetNumberOfNodes(), 1U);
  EXPECT_EQ(selection->GetNode(0)->GetFieldType(), vtkSelectionNode::ROW);
}

TEST_F(SelectionInParallelCoordinates, HighlightsTheRowsSelected)
{
  ASSERT_EQ(redPixels(), 0);
  brushRun(1);
  EXPECT_EQ(highlighted(), Values({3, 4, 5}));
  EXPECT_GT(redPixels(), 100);
  select({});
  EXPECT_EQ(highlighted(), Values());
  EXPECT_EQ(redPixels(), 0);
}

TEST_F(SelectionInParallelCoordinates, HighlightsAnOlderSelection)
{
  showStyle(xyPlot);
  select({0, 4});
  showStyle(parallelCoordinates);
  EXPECT_EQ(highlighted(), Values({0, 4}));
  EXPECT_GT(redPixels(), 100);
  container().redraw();
  widget.updatePlot(true);
  EXPECT_EQ(highlighted(), Values({0, 4}));
}

TEST_F(SelectionInParallelCoordinates, HighlightsEveryNodeAndSkipsRowsThatAreNotThere)
{
  const auto two = Talmesh::makeRowSelection({7});
  two->AddNode(Talmesh::makeRowSelection({2, 500})->GetNode(0));
  container().getAnnotationLink()->SetCurrentSelection(two);
  widget.updatePlot(true);
  EXPECT_EQ(highlighted(), Values({2, 7}));
}

TEST_F(SelectionInParallelCoordinates, HighlightsWithoutParametersThatSplitRuns)
{
  container().getMetaData()->parameterColumns.clear();
  brushRun(1);
  EXPECT_EQ(highlighted(), Values({3, 4, 5}));
  brush(timeAxis, 1.5, 2.1, Qt::ControlModifier);
  EXPECT_EQ(highlighted(), Values({2, 3, 4, 5, 8}));
  EXPECT_EQ(flags(), Values({0, 0, 1, 1, 1, 1, 0, 0, 1}));
  container().getAnnotationLink()->SetCurrentSelection(nullptr);
  widget.updatePlot(true);
  EXPECT_EQ(highlighted(), Values());
}

TEST_F(SelectionInParallelCoordinates, LeavesTheListsOfOthersAlone)
{
  vtkNew<vtkIdTypeArray> rows;
  rows->InsertNextValue(0);
  container().getMetaData()->parameterColumns.clear();
  container().getAnnotationLink()->SetCurrentSelection(Talmesh::wrapRowSelection(rows));
  widget.updatePlot(true);
  brushRun(1);
  EXPECT_EQ(SampleRuns::valuesOf(rows), Values({0}));
}

TEST_F(SelectionInParallelCoordinates, ClickedOnAnAxisSelectsNothing)
{
  select({4});
  vtkAxis* axis = chart()->GetAxis(parameterAxis);
  const QPoint at(qRound(axis->GetPoint1()[0]), widget.height() / 2);
  clickPixel(at, Qt::ControlModifier);
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 0, 0}));
  clickPixel(at);
  EXPECT_EQ(flags(), Values(9, 0.0));
}

TEST_F(SelectionInParallelCoordinates, StaysWhenTheMouseIsDraggedBesideTheAxes)
{
  select({4});
  const int before = announcements();
  const QPoint between(
      qRound((chart()->GetAxis(0)->GetPoint1()[0] + chart()->GetAxis(1)->GetPoint1()[0]) / 2.0F),
      widget.height() / 2);
  for (const Qt::KeyboardModifiers modifiers :
       {Qt::KeyboardModifiers(Qt::NoModifier), Qt::KeyboardModifiers(Qt::ShiftModifier)})
    dragPixels(between, between + QPoint(3, 40), modifiers);
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 0, 0}));
  EXPECT_EQ(announcements(), before);
  EXPECT_EQ(highlighted(), Values({4}));
}

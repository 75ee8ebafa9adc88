#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/SampleRuns.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAnnotationLink.h>
#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkIdTypeArray.h>
#include <vtkIntArray.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <gtest/gtest.h>

#include <QPoint>
#include <QTest>

#include <memory>
#include <set>
#include <vector>

using SampleRuns::valuesOf;

namespace
{

using Values = std::vector<double>;

struct DataPoint
{
  double x;
  double y;
};

/// A shown widget with three runs of three points, over which a mouse is dragged.
class SelectionMouse : public ::testing::Test
{
protected:
  SelectionMouse()
  {
    PlotMetaData& settings = *container().getMetaData();
    settings.xColumns = {SampleRuns::timeColumn};
    settings.yColumns = {SampleRuns::complexColumn};
    SampleRuns::load(container(), SampleRuns::runs(3, 3));
    container().redraw();
    widget.updatePlot(true);
    widget.resize(600, 400);
    widget.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
    widget.updatePlot(true);
  }

  PlotContainer& container() { return *widget.plotContainer(); }

  /// Where the widget shows a point of the data.
  QPoint pixelOf(const DataPoint& point)
  {
    vtkAxis* bottom = container().getChartXY()->GetAxis(vtkAxis::BOTTOM);
    vtkAxis* left = container().getChartXY()->GetAxis(vtkAxis::LEFT);
    const auto along = [](vtkAxis* axis, double value)
    { return (value - axis->GetMinimum()) / (axis->GetMaximum() - axis->GetMinimum()); };
    const double x = bottom->GetPoint1()[0] +
                     along(bottom, point.x) * (bottom->GetPoint2()[0] - bottom->GetPoint1()[0]);
    const double y =
        left->GetPoint1()[1] + along(left, point.y) * (left->GetPoint2()[1] - left->GetPoint1()[1]);
    return {qRound(x), widget.height() - 1 - qRound(y)};
  }

  void drag(const DataPoint& from, const DataPoint& to,
            Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    const QPoint start = pixelOf(from);
    const QPoint end = pixelOf(to);
    QTest::mousePress(&widget, Qt::RightButton, modifiers, start);
    QMouseEvent move(QEvent::MouseMove, end, widget.mapToGlobal(end), Qt::NoButton, Qt::RightButton,
                     modifiers);
    QCoreApplication::sendEvent(&widget, &move);
    QTest::mouseRelease(&widget, Qt::RightButton, modifiers, end);
    widget.updatePlot(true);
  }

  /// Drags a rectangle around the point of `run` at `point`.
  void dragAround(int run, int point, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    const double y = 10 * run + point;
    drag({point - 0.3, y - 0.4}, {point + 0.3, y + 0.4}, modifiers);
  }

  Values flags() { return valuesOf(vtk::TakeSmartPointer(container().getCurrentSelection())); }

  std::set<int> runs()
  {
    return std::unique_ptr<ParameterSelection>(container().getSelection())->runs;
  }

  VtkPlotWidget widget;
};

/// The same for both ways of drawing runs.
class SelectionMouseOverRuns : public SelectionMouse, public ::testing::WithParamInterface<bool>
{
protected:
  SelectionMouseOverRuns()
  {
    container().getMetaData()->setPlotLine(GetParam());
    widget.updatePlot(true);
  }
};

INSTANTIATE_TEST_SUITE_P(PointsAndLines, SelectionMouseOverRuns, ::testing::Bool());

} // namespace

TEST_P(SelectionMouseOverRuns, SelectsTheRowsInTheRectangle)
{
  drag({0.7, 9.0}, {2.3, 13.0});
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 1, 0, 0, 0}));
  EXPECT_EQ(runs(), std::set<int>({1}));
  vtkSelection* selection = container().getAnnotationLink()->GetCurrentSelection();
  ASSERT_EQ(selection->GetNumberOfNodes(), 1U);
  EXPECT_EQ(selection->GetNode(0)->GetContentType(), vtkSelectionNode::INDICES);
  EXPECT_EQ(valuesOf(selection->GetNode(0)->GetSelectionList()), Values({4, 5}));
}

TEST_P(SelectionMouseOverRuns, SplitsTheTable)
{
  dragAround(0, 0);
  for (const int run : {0, 1, 2})
    dragAround(run, 1, Qt::ControlModifier);
  // Rows 0, 1, 4 and 7: run 0 is selected at both times, the others at the second only.
  EXPECT_EQ(flags(), Values({1, 1, 0, 0, 1, 0, 0, 1, 0}));
  const auto& tables = container().getDerivedTables();
  EXPECT_EQ(valuesOf(tables.at(2), "Complex: A"), Values({0, 1}));
  EXPECT_EQ(valuesOf(tables.at(5), "Complex: A"), Values({10, 11, 20, 21}));
  EXPECT_EQ(valuesOf(container().getTable(), "vtkRemainderSelection"),
            Values({1, 1, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(valuesOf(container().getTable(), "vtkReducedSelection"),
            Values({0, 0, 0, 0, 1, 0, 0, 1, 0}));
  EXPECT_EQ(valuesOf(container().getTable(), "vtkComplementSelection"),
            Values({0, 0, 0, 1, 0, 0, 1, 0, 0}));
}

TEST_P(SelectionMouseOverRuns, AddsSubtractsAndTogglesWithTheModifiers)
{
  dragAround(0, 1);
  dragAround(1, 1, Qt::ControlModifier);
  EXPECT_EQ(runs(), std::set<int>({0, 1}));
  dragAround(0, 1, Qt::ShiftModifier);
  EXPECT_EQ(runs(), std::set<int>({1}));
  drag({0.7, -1.0}, {1.3, 23.0}, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), std::set<int>({0, 2}));
}

TEST_P(SelectionMouseOverRuns, SelectsNothingInAnEmptyPlace)
{
  dragAround(1, 1);
  drag({0.3, 5.0}, {0.7, 7.0});
  EXPECT_EQ(flags(), Values(9, 0.0));
  EXPECT_EQ(container().getDerivedTables().size(), 2U);
}

#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"

#include <vtkAnnotationLink.h>
#include <vtkIdTypeArray.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "SelectionMouse.h"

namespace
{

using Runs = std::set<int>;
using Values = std::vector<double>;

/// Three runs of three points in the charts of other styles. Parameter k1 is run + 1, k2 twice
/// that.
class SelectionMouseInStyles : public SelectionMouse
{
protected:
  vtkScatterPlotMatrix* matrix() { return stateOf(container()).scatterPlotMatrix; }

  /// Drags in the large chart of the scatter-plot matrix, whose axes stand right and above.
  void dragInMatrix(const DataPoint& from, const DataPoint& to,
                    Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    dragIn(matrix()->GetMainChart(), from, to, modifiers, vtkAxis::TOP, vtkAxis::RIGHT);
  }

  void showMatrix()
  {
    container().getMetaData()->setLimitColumVisibility(true);
    showStyle(scatterPlotMatrix);
    widget.updatePlot(true);
  }

  Values marked() { return SampleRuns::valuesOf(container().getTable(), "vtkRemainderSelection"); }
};

} // namespace

TEST_F(SelectionMouseInStyles, SelectsInTheScatterPlotMatrix)
{
  showMatrix();
  dragInMatrix({0.7, 9.0}, {2.3, 13.0});
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 1, 0, 0, 0}));
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(marked(), Values({0, 0, 0, 0, 1, 1, 0, 0, 0}));
  EXPECT_EQ(container().getDerivedTables().size(), 8U);
}

TEST_F(SelectionMouseInStyles, AddsAndSubtractsInTheScatterPlotMatrix)
{
  showMatrix();
  dragInMatrix({0.7, 9.0}, {1.3, 13.0});
  dragInMatrix({0.7, 19.0}, {1.3, 21.5}, Qt::ControlModifier);
  EXPECT_EQ(runs(), Runs({1, 2}));
  dragInMatrix({0.7, 9.0}, {1.3, 13.0}, Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{2});
  dragInMatrix({0.3, 4.0}, {0.7, 7.0});
  EXPECT_EQ(flags(), Values(9, 0.0));
  EXPECT_EQ(marked(), Values(9, 0.0));
}

TEST_F(SelectionMouseInStyles, TogglesInTheScatterPlotMatrix)
{
  showMatrix();
  dragInMatrix({0.7, 9.0}, {1.3, 13.0});
  dragInMatrix({0.7, 0.5}, {1.3, 23.0}, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(flags(), Values({0, 1, 0, 0, 0, 0, 0, 1, 0}));
}

TEST_F(SelectionMouseInStyles, PansTheLargeChartOfTheMatrixWithItsAxes)
{
  showMatrix();
  vtkChart* chart = matrix()->GetMainChart();
  vtkAxis* x = chart->GetAxis(vtkAxis::TOP);
  vtkAxis* y = chart->GetAxis(vtkAxis::RIGHT);
  const QPoint point = pixelOf({1.0, 11.0}, x, y);
  const double width = x->GetMaximum() - x->GetMinimum();
  const double left = x->GetMinimum();
  const QPoint by(24, -18);
  QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, point);
  move(point + by, Qt::LeftButton);
  QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, point + by);
  widget.updatePlot(true);
  const double pixels = x->GetPoint2()[0] - x->GetPoint1()[0];
  EXPECT_NEAR(x->GetMinimum(), left - 24.0 / pixels * width, 1e-6 * width);
  EXPECT_NEAR(x->GetMaximum() - x->GetMinimum(), width, 1e-6 * width);
  EXPECT_LE((pixelOf({1.0, 11.0}, x, y) - (point + by)).manhattanLength(), 2);
  // The points are where the axes say.
  dragPixels(point + by - QPoint(5, 5), point + by + QPoint(5, 5));
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 0, 0}));
}

TEST_F(SelectionMouseInStyles, KeepsThePairOfTheMatrixThroughASelection)
{
  PlotOptions options;
  options.keepsScatterPair = true;
  container().setOptions(options);
  showMatrix();
  const vtkVector2i chosen(0, 0);
  ASSERT_NE(matrix()->GetActivePlot(), chosen);
  ASSERT_TRUE(matrix()->SetActivePlot(chosen));
  widget.updatePlot(true);
  // The time and the second parameter, which is 2, 4 and 6.
  dragInMatrix({0.7, 3.5}, {1.3, 4.5});
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 0, 0}));
  EXPECT_EQ(matrix()->GetActivePlot(), chosen);
  EXPECT_EQ(matrix()->GetMainChart()->GetNumberOfPlots(), 1);
  dragInMatrix({0.7, 5.5}, {1.3, 6.5}, Qt::ControlModifier);
  EXPECT_EQ(runs(), Runs({1, 2}));
  // Drawn afresh, the columns to plot are the pair.
  showStyle(xyPlot);
  showStyle(scatterPlotMatrix);
  EXPECT_NE(matrix()->GetActivePlot(), chosen);
}

TEST_F(SelectionMouseInStyles, KeepsThePairAmongAllColumns)
{
  showStyle(scatterPlotMatrix);
  const vtkVector2i chosen(2, 0);
  ASSERT_TRUE(matrix()->SetActivePlot(chosen));
  container().redraw();
  widget.updatePlot(true);
  EXPECT_EQ(matrix()->GetActivePlot(), chosen);
}

TEST_F(SelectionMouseInStyles, ShowsASelectionOfTheMatrixInOtherStyles)
{
  showMatrix();
  dragInMatrix({0.7, 9.0}, {2.3, 13.0});
  showStyle(xyPlot);
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 1, 0, 0, 0}));
  drag({0.7, 19.0}, {1.3, 21.5}, Qt::ControlModifier);
  EXPECT_EQ(runs(), Runs({1, 2}));
  showStyle(scatterPlotMatrix);
  dragInMatrix({0.7, 9.0}, {2.3, 13.0}, Qt::ShiftModifier);
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 0, 0, 0, 1, 0}));
}

TEST_F(SelectionMouseInStyles, SelectsInTheMainChartOfTheMultiPlotPage)
{
  showStyle(multiPlot);
  drag({0.7, 9.0}, {2.3, 13.0});
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 1, 0, 0, 0}));
  EXPECT_EQ(container().getDerivedTables().size(), 8U);
  drag({0.7, 19.0}, {1.3, 21.5}, Qt::ControlModifier);
  EXPECT_EQ(runs(), Runs({1, 2}));
  drag({0.7, 9.0}, {1.3, 11.5}, Qt::ShiftModifier);
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 0, 1, 0, 1, 0}));
  drag({0.7, 9.0}, {2.3, 13.0}, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 1, 0}));
}

TEST_F(SelectionMouseInStyles, SelectsRunsByTheirParametersInTheMultiPlotPage)
{
  showStyle(multiPlot);
  vtkChart* pair = container().getChartMatrix()->GetChart(vtkVector2i(0, 0));
  ASSERT_NE(pair, container().getChartXY());
  // Every point of the run stands at the same place.
  dragIn(pair, {1.7, 3.5}, {2.3, 4.5});
  EXPECT_EQ(flags(), Values({0, 0, 0, 1, 1, 1, 0, 0, 0}));
  EXPECT_EQ(marked(), Values({0, 0, 0, 1, 1, 1, 0, 0, 0}));
}

TEST_F(SelectionMouseInStyles, SelectsAmongTheTrajectoriesOfTheSelectionPage)
{
  for (const bool lines : {false, true})
  {
    container().getMetaData()->setPlotLine(lines);
    showStyle(selectionCdfPlot);
    drag({0.7, 9.0}, {2.3, 13.0});
    EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 1, 0, 0, 0})) << lines;
    EXPECT_EQ(runs(), Runs{1}) << lines;
    EXPECT_EQ(container().getKsResults().size(), 2U) << lines;
    drag({0.7, 19.0}, {1.3, 21.5}, Qt::ControlModifier);
    EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 1, 0, 1, 0})) << lines;
    drag({1.7, 9.0}, {2.3, 13.0}, Qt::ShiftModifier);
    EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 1, 0})) << lines;
    EXPECT_EQ(runs(), Runs({1, 2})) << lines;
    drag({0.7, 0.5}, {1.3, 13.0}, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(flags(), Values({0, 1, 0, 0, 0, 0, 0, 1, 0})) << lines;
    drag({0.3, 4.0}, {0.7, 7.0});
    EXPECT_EQ(flags(), Values(9, 0.0)) << lines;
    EXPECT_EQ(container().getDerivedTables().size(), 2U) << lines;
    showStyle(xyPlot);
  }
}

TEST_F(SelectionMouseInStyles, SelectsAlongAnAxisOfTheParallelCoordinates)
{
  // Three axes: "Complex: A", ": Time [s]" and "Parameter: k1".
  container().getMetaData()->yColumns = {SampleRuns::complexColumn, SampleRuns::timeColumn,
                                         SampleRuns::firstParameterColumn};
  showStyle(parallelCoordinates);
  vtkAxis* axis = stateOf(container()).parallelCoordinates->GetAxis(2);
  const auto at = [&](double value) { return pixelOf({0.0, value}, axis, axis); };
  const int x = qRound(axis->GetPoint1()[0]);
  dragPixels({x, at(1.6).y()}, {x, at(2.4).y()});
  EXPECT_EQ(flags(), Values({0, 0, 0, 1, 1, 1, 0, 0, 0}));
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(marked(), Values({0, 0, 0, 1, 1, 1, 0, 0, 0}));
  EXPECT_EQ(container().getDerivedTables().size(), 8U);
}

TEST_F(SelectionMouseInStyles, SelectsAmongPointsWithErrorBars)
{
  showStyle(scatterWithErrorBars);
  drag({0.7, 9.0}, {2.3, 13.0});
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 1, 0, 0, 0}));
  drag({0.7, 19.0}, {1.3, 21.5}, Qt::ControlModifier);
  drag({1.7, 9.0}, {2.3, 13.0}, Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs({1, 2}));
  drag({0.7, 0.5}, {1.3, 23.0}, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(flags(), Values({0, 1, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(SelectionMouseInStyles, SelectsPairsOfFitParametersButNotAlongTheirCourses)
{
  showStyle(fitParameterDistribution);
  vtkChart* pair = container().getChartMatrix()->GetChart(vtkVector2i(0, 0));
  dragIn(pair, {1.7, 3.5}, {2.3, 4.5});
  EXPECT_EQ(flags(), Values({0, 0, 0, 1, 1, 1, 0, 0, 0}));
  pair = container().getChartMatrix()->GetChart(vtkVector2i(0, 0));
  dragIn(pair, {2.7, 5.5}, {3.3, 6.5}, Qt::ControlModifier);
  EXPECT_EQ(runs(), Runs({1, 2}));
  const int before = announcements();
  vtkChart* course = container().getChartMatrix()->GetChart(vtkVector2i(0, 1));
  ASSERT_EQ(course->GetNumberOfPlots(), 1);
  dragIn(course, {-2.5, 1.2}, {0.5, 0.8});
  EXPECT_EQ(announcements(), before);
  // Nor does it look as if something were selected.
  vtkIdTypeArray* marked = course->GetPlot(0)->GetSelection();
  EXPECT_TRUE(!marked || marked->GetNumberOfValues() == 0);
}

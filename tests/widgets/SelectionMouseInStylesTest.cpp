#include "plot/PlotState.h"

#include <vtkAnnotationLink.h>
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
  vtkScatterPlotMatrix* matrix() { return container().state().scatterPlotMatrix; }

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
  vtkAxis* axis = container().state().parallelCoordinates->GetAxis(2);
  const auto at = [&](double value) { return pixelOf({0.0, value}, axis, axis); };
  const int x = qRound(axis->GetPoint1()[0]);
  dragPixels({x, at(1.6).y()}, {x, at(2.4).y()});
  EXPECT_EQ(flags(), Values({0, 0, 0, 1, 1, 1, 0, 0, 0}));
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(marked(), Values({0, 0, 0, 1, 1, 1, 0, 0, 0}));
  EXPECT_EQ(container().getDerivedTables().size(), 8U);
}

TEST_F(SelectionMouseInStyles, LeavesParallelCoordinatesAloneBesideTheirAxes)
{
  showStyle(parallelCoordinates);
  vtkChartParallelCoordinates* chart = container().state().parallelCoordinates;
  const QPoint between(
      qRound((chart->GetAxis(0)->GetPoint1()[0] + chart->GetAxis(1)->GetPoint1()[0]) / 2.0F),
      widget.height() / 2);
  dragPixels(between, between + QPoint(3, 40));
  EXPECT_EQ(flags(), Values(9, 0.0));
}

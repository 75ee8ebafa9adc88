#include "plot/ContainerAccess.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "vtk/RowSelections.h"

#include <vtkIdTypeArray.h>
#include <vtkPlotPoints.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "SelectionMouse.h"

using SampleRuns::valuesOf;

namespace
{

using Values = std::vector<double>;
using Runs = std::set<int>;

/// Clicks of the button that drags selection rectangles, for both ways of drawing runs.
class SelectionClick : public SelectionMouse, public ::testing::WithParamInterface<bool>
{
protected:
  SelectionClick()
  {
    container().getMetaData()->setPlotLine(GetParam());
    widget.updatePlot(true);
  }

  vtkSelection* selection() { return container().getAnnotationLink()->GetCurrentSelection(); }
};

INSTANTIATE_TEST_SUITE_P(PointsAndLines, SelectionClick, ::testing::Bool());

/// The same in other styles.
class SelectionClickInStyles : public SelectionMouse
{
};

} // namespace

TEST_P(SelectionClick, SelectsTheRowOfThePoint)
{
  dragAround(0, 0);
  const int before = announcements();
  const unsigned int nodes = selection()->GetNumberOfNodes();
  click({1.0, 11.0});
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 0, 0}));
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(announcements(), before + 1);
  EXPECT_EQ(nodes, 1U);
  ASSERT_EQ(selection()->GetNumberOfNodes(), 1U);
  EXPECT_EQ(selection()->GetNode(0)->GetFieldType(), vtkSelectionNode::ROW);
  EXPECT_EQ(selection()->GetNode(0)->GetContentType(), vtkSelectionNode::INDICES);
  EXPECT_EQ(valuesOf(selection()->GetNode(0)->GetSelectionList()), Values({4}));
}

TEST_P(SelectionClick, SplitsTheRuns)
{
  click({1.0, 11.0});
  EXPECT_EQ(container().getDerivedTables().size(), 8U);
  EXPECT_EQ(valuesOf(container().getTable(), "vtkRemainderSelection"),
            Values({0, 0, 0, 0, 1, 0, 0, 0, 0}));
}

TEST_P(SelectionClick, AddsSubtractsAndTogglesWithTheModifiers)
{
  click({1.0, 11.0});
  click({1.0, 21.0}, Qt::ControlModifier);
  EXPECT_EQ(runs(), Runs({1, 2}));
  click({1.0, 11.0}, Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{2});
  click({1.0, 11.0}, Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{2});
  click({1.0, 1.0}, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs({0, 2}));
  click({1.0, 21.0}, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{0});
}

TEST_P(SelectionClick, BesideAllPointsChangesNothing)
{
  dragAround(1, 1);
  const int before = announcements();
  click({0.5, 6.0});
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(announcements(), before);
}

TEST_P(SelectionClick, LooksForPointsAsFarAsTheTooltipDoes)
{
  vtkChartXY* chart = container().getChartXY();
  const QPoint at =
      pixelOf({1.0, 11.0}, chart->GetAxis(vtkAxis::BOTTOM), chart->GetAxis(vtkAxis::LEFT));
  clickPixel(at + QPoint(4, -3));
  EXPECT_EQ(runs(), Runs{1});
  container().getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({}));
  clickPixel(at + QPoint(8, 0));
  EXPECT_EQ(runs(), Runs());
}

TEST_P(SelectionClick, PassesThroughPlotsOfOtherTables)
{
  // A mean course: its row 0 is no row of the plot table.
  vtkNew<vtkTable> table;
  table->AddColumn(Talmesh::plot::makeColumn("x", {1.0, 0.5}));
  table->AddColumn(Talmesh::plot::makeColumn("y", {11.0, 6.0}));
  vtkPlot* mean = container().getChartXY()->AddPlot(vtkChart::LINE);
  ASSERT_TRUE(Talmesh::plot::feedPlot(mean, table, 0, 1));
  Talmesh::plot::makeUnselectable(mean);
  widget.updatePlot(true);
  click({0.5, 6.0});
  EXPECT_EQ(flags(), Values(9, 0.0));
  EXPECT_EQ(announcements(), 0);
  click({1.0, 11.0});
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 0, 0}));
}

TEST_P(SelectionClick, WorksWhereNothingHasEverBeenSelected)
{
  container().getAnnotationLink()->SetCurrentSelection(nullptr);
  widget.updatePlot(true);
  click({1.0, 11.0}, Qt::ControlModifier);
  EXPECT_EQ(runs(), Runs{1});
}

TEST_P(SelectionClick, OfTheLeftButtonSelectsNothingAndFixesNoAxes)
{
  click({1.0, 11.0}, Qt::NoModifier, Qt::LeftButton);
  EXPECT_EQ(announcements(), 0);
  EXPECT_TRUE(stateOf(container()).coordinateWindows.empty());
  vtkChartXY* chart = container().getChartXY();
  const QPoint at =
      pixelOf({1.0, 11.0}, chart->GetAxis(vtkAxis::BOTTOM), chart->GetAxis(vtkAxis::LEFT));
  QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, at);
  move(at + QPoint(20, 0), Qt::LeftButton);
  QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, at + QPoint(20, 0));
  EXPECT_EQ(stateOf(container()).coordinateWindows.size(), 1U);
}

TEST_F(SelectionClickInStyles, SelectsInTheScatterPlotMatrix)
{
  container().getMetaData()->setLimitColumVisibility(true);
  showStyle(scatterPlotMatrix);
  widget.updatePlot(true);
  const auto clickAt = [this](const DataPoint& point, Qt::KeyboardModifiers modifiers)
  {
    vtkChart* chart = stateOf(container()).scatterPlotMatrix->GetMainChart();
    clickPixel(pixelOf(point, chart->GetAxis(vtkAxis::TOP), chart->GetAxis(vtkAxis::RIGHT)),
               modifiers);
  };
  clickAt({1.0, 11.0}, Qt::NoModifier);
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 0, 0}));
  clickAt({2.0, 22.0}, Qt::ControlModifier);
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 0, 1}));
  clickAt({1.0, 11.0}, Qt::ShiftModifier);
  EXPECT_EQ(flags(), Values({0, 0, 0, 0, 0, 0, 0, 0, 1}));
}

TEST_F(SelectionClickInStyles, SelectsOnThePagesOfManyCharts)
{
  for (const plotStyles style : {multiPlot, selectionCdfPlot})
  {
    showStyle(style);
    click({1.0, 11.0});
    EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 0, 0})) << style;
    click({1.0, 21.0}, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(flags(), Values({0, 0, 0, 0, 1, 0, 0, 1, 0})) << style;
  }
}

TEST_F(SelectionClickInStyles, SelectsNothingInADistribution)
{
  showStyle(selectionCdfPlot);
  vtkChart* cell = container().getChartMatrix()->GetChart(vtkVector2i(0, 0));
  ASSERT_NE(cell, container().getChartXY());
  clickPixel(
      pixelOf({2.0, 2.0 / 3.0}, cell->GetAxis(vtkAxis::BOTTOM), cell->GetAxis(vtkAxis::LEFT)));
  dragIn(cell, {1.5, 0.1}, {2.5, 0.9});
  EXPECT_EQ(announcements(), 0);
  EXPECT_EQ(flags(), Values(9, 0.0));
}

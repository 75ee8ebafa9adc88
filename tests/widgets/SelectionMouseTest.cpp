#include "SelectionMouse.h"

#include "plot/PlotFeed.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkIdTypeArray.h>
#include <vtkPlot.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <gtest/gtest.h>

#include <set>
#include <vector>

using SampleRuns::valuesOf;

namespace
{

using Values = std::vector<double>;

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

TEST_P(SelectionMouseOverRuns, TogglesWhereSeveralColumnsAreDrawn)
{
  // The second plot shows the same rows elsewhere: "Molecule: B" is minus "Complex: A".
  const auto addSecond = [this]
  {
    vtkChartXY* chart = container().getChartXY();
    vtkPlot* second = chart->AddPlot(vtkChart::POINTS);
    Talmesh::plot::feedPlot(second, container().getTable(), SampleRuns::timeColumn,
                            SampleRuns::moleculeColumn);
    widget.updatePlot(true);
  };
  addSecond();
  dragAround(1, 1);
  EXPECT_EQ(runs(), std::set<int>({1}));
  addSecond();
  dragAround(0, 1, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), std::set<int>({0, 1}));
  addSecond();
  drag({0.7, -23.0}, {1.3, -9.0}, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), std::set<int>({0, 2}));
  addSecond();
  drag({0.7, -23.0}, {1.3, 23.0}, Qt::ShiftModifier);
  EXPECT_EQ(flags(), Values(9, 0.0));
}

TEST_P(SelectionMouseOverRuns, LeavesTheListsOfOthersAlone)
{
  vtkNew<vtkIdTypeArray> rows;
  rows->InsertNextValue(0);
  container().getAnnotationLink()->SetCurrentSelection(Talmesh::wrapRowSelection(rows));
  widget.updatePlot(true);
  dragAround(1, 1);
  EXPECT_EQ(valuesOf(rows), Values({0}));
}

TEST_P(SelectionMouseOverRuns, AddsToRowsInAnyOrderAndForm)
{
  const auto two = Talmesh::makeRowSelection({7, 1, 1});
  two->AddNode(Talmesh::makeRowSelection({4})->GetNode(0));
  container().getAnnotationLink()->SetCurrentSelection(two);
  widget.updatePlot(true);
  dragAround(0, 0, Qt::ControlModifier);
  EXPECT_EQ(flags(), Values({1, 1, 0, 0, 1, 0, 0, 1, 0}));
}

#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "support/SampleRuns.h"
#include "support/SilentSettings.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <set>
#include <vector>

using Talmesh::makeRowSelection;

namespace
{

using Rows = std::set<vtkIdType>;
using Runs = std::set<int>;

void select(PlotContainer& container, const Runs& runs, int offset)
{
  ParameterSelection selection;
  selection.runs = runs;
  container.setSelection(&selection, offset);
}

Rows rowsOf(const SampleRuns::Shape& shape, const Runs& runs, int offset)
{
  SampleRuns::Plot plot(shape);
  select(plot.container, runs, offset);
  return SampleRuns::selectedRows(plot.container);
}

std::unique_ptr<ParameterSelection> selectionOf(PlotContainer& container)
{
  return std::unique_ptr<ParameterSelection>(container.getSelection());
}

void addIdColumn(vtkTable* table, const char* name, const std::vector<vtkIdType>& values)
{
  vtkNew<vtkIdTypeArray> column;
  column->SetName(name);
  for (const vtkIdType value : values)
    column->InsertNextValue(value);
  table->AddColumn(column);
}

} // namespace

TEST(SelectionOfRuns, TakesTheRowAtTheOffsetWithinEachRun)
{
  const auto shape = SampleRuns::runs(9, 5, 0);
  EXPECT_EQ(rowsOf(shape, {3, 7}, 2), Rows({3 * 5 + 2, 7 * 5 + 2}));
  EXPECT_EQ(rowsOf(shape, {3, 7}, 0), Rows({15, 35}));
}

TEST(SelectionOfRuns, CountsTheOffsetRoundTheRun)
{
  const auto shape = SampleRuns::runs(3, 5, 0);
  EXPECT_EQ(rowsOf(shape, {1}, 5), Rows({5}));
  EXPECT_EQ(rowsOf(shape, {1}, 13), Rows({8}));
  EXPECT_EQ(rowsOf(shape, {1}, -1), Rows({9}));
}

TEST(SelectionOfRuns, IsOneNodeOfRowIndices)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2, 0));
  select(plot.container, {2, 0}, 1);
  vtkSelection* selection = plot.container.getAnnotationLink()->GetCurrentSelection();
  ASSERT_EQ(selection->GetNumberOfNodes(), 1U);
  EXPECT_EQ(selection->GetNode(0)->GetFieldType(), vtkSelectionNode::ROW);
  EXPECT_EQ(selection->GetNode(0)->GetContentType(), vtkSelectionNode::INDICES);
  auto* list = vtkIdTypeArray::SafeDownCast(selection->GetNode(0)->GetSelectionList());
  EXPECT_EQ(SampleRuns::valuesOf(list), std::vector<double>({1, 5}));
}

TEST(SelectionOfRuns, SkipsRunsThatTheTableDoesNotHave)
{
  EXPECT_EQ(rowsOf(SampleRuns::indexedRuns({0, 2, 5}, 2, 0), {-4, 1, 2, 3, 5, 9}, 0), Rows({2, 4}));
}

TEST(SelectionOfRuns, NeverMovesBackInTheTable)
{
  // Run 2 is passed on the way to run 4; 5 still lies further down.
  EXPECT_EQ(rowsOf(SampleRuns::indexedRuns({0, 4, 2, 5}, 1, 0), {2, 4, 5}, 0), Rows({1, 3}));
}

TEST(SelectionOfRuns, GivesUpOnAllRunsBehindTheEnd)
{
  EXPECT_EQ(rowsOf(SampleRuns::indexedRuns({3, 1, 2}, 1, 0), {1, 2, 3, 4, 5}, 0), Rows({0}));
}

TEST(SelectionOfRuns, StaysAtARowWithoutARunIndex)
{
  SampleRuns::Plot plot(SampleRuns::indexedRuns({0, 1, 2}, 1, 0));
  plot.container.getTable()->SetValueByName(1, ": Run Index", std::nan(""));
  select(plot.container, {0, 1, 2}, 0);
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({0}));
}

TEST(SelectionOfRuns, MaySelectNothing)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2, 0));
  select(plot.container, {1}, 0);
  select(plot.container, {}, 0);
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows());
}

TEST(SelectionOfRuns, FindsTheFirstColumnNamedForAnIndex)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 1, 0));
  vtkTable* table = plot.container.getTable();
  table->GetColumn(SampleRuns::complexColumn)->SetName("myIndexOfRuns");
  select(plot.container, {10}, 0);
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({1}));
}

TEST(SelectionOfRuns, ReadsTheNameOfTheIndexLiterally)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 1, 0));
  vtkTable* table = plot.container.getTable();
  table->GetColumn(SampleRuns::moleculeColumn)->SetName("index");
  select(plot.container, {1}, 0);
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({1}));
}

TEST(SelectionOfRuns, TakesColumnZeroWithoutAnIndex)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 1, 0));
  plot.container.getTable()->GetColumn(SampleRuns::runIndexColumn)->SetName("Run");
  select(plot.container, {20}, 0);
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({2}));
}

TEST(SelectionOfRuns, DoesNothingWithAnIndexThatIsNotDouble)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 1, 0));
  vtkNew<vtkFloatArray> floats;
  floats->SetName("Index");
  for (int run = 0; run < 3; ++run)
    floats->InsertNextValue(static_cast<float>(run));
  vtkNew<vtkTable> table;
  table->AddColumn(floats);
  table->AddColumn(plot.container.getTable()->GetColumn(SampleRuns::runIndexColumn));
  plot.container.setPlotData(table.Get());
  const auto before = makeRowSelection({2});
  plot.container.getAnnotationLink()->SetCurrentSelection(before);
  select(plot.container, {0}, 0);
  EXPECT_EQ(plot.container.getAnnotationLink()->GetCurrentSelection(), before);
}

TEST(SelectionOfRuns, DoesNothingWithoutRowsPerRun)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 1, 0));
  const auto before = makeRowSelection({2});
  plot.container.getAnnotationLink()->SetCurrentSelection(before);
  for (const int stride : {0, -1, std::numeric_limits<int>::min()})
  {
    storeStride(plot.container, stride);
    select(plot.container, {0, 1}, 0);
    EXPECT_EQ(plot.container.getAnnotationLink()->GetCurrentSelection(), before) << stride;
  }
}

TEST(SelectionOfRuns, DoesNothingWithoutRecordOrTable)
{
  PlotContainer container(nullptr);
  vtkSelection* before = container.getAnnotationLink()->GetCurrentSelection();
  container.setSelection(nullptr, 0);
  select(container, {0}, 0);
  EXPECT_EQ(container.getAnnotationLink()->GetCurrentSelection(), before);
}

TEST(SelectionOfRuns, SelectsNoRowOfATableWithoutRows)
{
  EXPECT_EQ(rowsOf(SampleRuns::runs(0, 3, 0), {0, 1}, 1), Rows());
}

TEST(SelectionOfRuns, LeavesOutARowThatAPartialRunDoesNotHave)
{
  SampleRuns::Plot plot(SampleRuns::runs(2, 4, 0));
  // Runs of five rows: the second one ends after three.
  storeStride(plot.container, 5);
  for (vtkIdType row = 5; row < 8; ++row)
    plot.container.getTable()->SetValueByName(row, ": Run Index", 1.0);
  plot.container.getTable()->SetValueByName(4, ": Run Index", 0.0);
  select(plot.container, {0, 1}, 2);
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({2, 7}));
  select(plot.container, {0, 1}, 3);
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({3}));
}

TEST(SelectionOfRuns, AsksForNoDrawing)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2, 0));
  const unsigned long before = stateOf(plot.container).drawings;
  select(plot.container, {1}, 0);
  EXPECT_EQ(stateOf(plot.container).drawings, before);
}

TEST(SelectedRuns, AreTheRunsOfTheSelectedRowsWithTheirSource)
{
  SampleRuns::Plot plot(SampleRuns::indexedRuns({4, 7, 9}, 3, 0));
  plot.container.getMetaData()->sourceName = "scan";
  plot.container.getMetaData()->sourceId = 42;
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({0, 2, 7}));
  const auto selection = selectionOf(plot.container);
  ASSERT_NE(selection, nullptr);
  EXPECT_EQ(selection->runs, Runs({4, 9}));
  EXPECT_EQ(selection->sourceName, "scan");
  EXPECT_EQ(selection->sourceId, 42);
}

TEST(SelectedRuns, AreNoneAndNotNullWhenNothingIsSelected)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2, 0));
  const auto selection = selectionOf(plot.container);
  ASSERT_NE(selection, nullptr);
  EXPECT_EQ(selection->runs, Runs());
}

TEST(SelectedRuns, AreNullWithoutARunIndexOfThatName)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2, 0));
  plot.container.getTable()->GetColumn(SampleRuns::runIndexColumn)->SetName("Run Index");
  EXPECT_EQ(selectionOf(plot.container), nullptr);
}

TEST(SelectedRuns, AreNullWithARunIndexThatIsNotDouble)
{
  SampleRuns::Plot plot(SampleRuns::runs(1, 2, 0));
  vtkTable* table = plot.container.getTable();
  table->RemoveColumnByName(": Run Index");
  addIdColumn(table, ": Run Index", {0, 0});
  EXPECT_EQ(selectionOf(plot.container), nullptr);
}

TEST(SelectedRuns, AreNullWhenTheLinkHoldsNothing)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2, 0));
  plot.container.getAnnotationLink()->SetAnnotationLayers(nullptr);
  EXPECT_EQ(selectionOf(plot.container), nullptr);
}

TEST(SelectedRuns, SkipIndicesThatAreNoInteger)
{
  SampleRuns::Plot plot(SampleRuns::runs(5, 1, 0));
  const double values[] = {std::nan(""), HUGE_VAL, -1e300, 2147483648.0, 3.9};
  for (int row = 0; row < 5; ++row)
    plot.container.getTable()->SetValueByName(row, ": Run Index", values[row]);
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({0, 1, 2, 3, 4}));
  EXPECT_EQ(selectionOf(plot.container)->runs, Runs({3}));
}

TEST(SelectedRuns, ComeBackAsTheyWereSet)
{
  SampleRuns::Plot plot(SampleRuns::indexedRuns({1, 2, 4, 8, 16}, 3, 0));
  select(plot.container, {2, 3, 16}, 1);
  EXPECT_EQ(selectionOf(plot.container)->runs, Runs({2, 16}));
}

TEST(SelectedRuns, AreTheAcceptedOnesInTheSelectionPage)
{
  SampleRuns::Plot plot(SampleRuns::indexedRuns({4, 7, 9}, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({0}));
  addIdColumn(plot.container.getTable(), "vtkRemainderSelection", {0, 0, 1, 0, 0, 5});
  EXPECT_EQ(selectionOf(plot.container)->runs, Runs({4}));
  storeStyle(plot.container, selectionCdfPlot);
  EXPECT_EQ(selectionOf(plot.container)->runs, Runs({7, 9}));
}

TEST(SelectedRuns, ComeFromTheLinkInASelectionPageWithoutAcceptedRows)
{
  SampleRuns::Plot plot(SampleRuns::indexedRuns({4, 7, 9}, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({0}));
  storeStyle(plot.container, selectionCdfPlot);
  EXPECT_EQ(selectionOf(plot.container)->runs, Runs({4}));
  // The accepted rows are ids; a column of another type is not theirs.
  plot.container.addColumn({1, 1, 1, 1, 1, 1}, "vtkRemainderSelection");
  EXPECT_EQ(selectionOf(plot.container)->runs, Runs({4}));
}

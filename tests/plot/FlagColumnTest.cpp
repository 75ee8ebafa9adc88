#include "plot/ColumnReduction.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotation.h>
#include <vtkAnnotationLayers.h>
#include <vtkAnnotationLink.h>
#include <vtkDoubleArray.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkIntArray.h>
#include <vtkObject.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CurrentFlags.h"

using Talmesh::makeRowSelection;

namespace
{

/// A container whose table ends with a column of the given flags.
struct FlaggedPlot : SampleRuns::Plot
{
  explicit FlaggedPlot(const std::vector<int>& values, const char* name = "selected points")
      : SampleRuns::Plot(SampleRuns::runs(2, 2, 0))
  {
    vtkNew<vtkIntArray> flags;
    flags->SetName(name);
    for (const int value : values)
      flags->InsertNextValue(value);
    container.getTable()->AddColumn(flags);
  }
};

} // namespace

TEST(FlagColumn, BecomesTheSelectionOfTheRowsThatHoldExactlyOne)
{
  FlaggedPlot plot({1, 2, -1, 1});
  plot.container.selectionFromFlagColumn();
  vtkSelection* selection = plot.container.getAnnotationLink()->GetCurrentSelection();
  ASSERT_EQ(selection->GetNumberOfNodes(), 1U);
  vtkSelectionNode* node = selection->GetNode(0);
  EXPECT_EQ(node->GetFieldType(), vtkSelectionNode::ROW);
  EXPECT_EQ(node->GetContentType(), vtkSelectionNode::INDICES);
  auto* rows = vtkIdTypeArray::SafeDownCast(node->GetSelectionList());
  EXPECT_EQ(SampleRuns::valuesOf(rows), Flags({0, 3}));
}

TEST(FlagColumn, MayHaveAnyName)
{
  FlaggedPlot plot({0, 1, 0, 0}, "something else");
  plot.container.selectionFromFlagColumn();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), std::set<vtkIdType>({1}));
}

TEST(FlagColumn, ReplacesTheWholeSelection)
{
  FlaggedPlot plot({0, 0, 0, 0});
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({1, 2}));
  plot.container.selectionFromFlagColumn();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), std::set<vtkIdType>());
}

TEST(FlagColumn, OfDoublesLeavesTheSelectionUntouched)
{
  FlaggedPlot plot({1, 1, 1, 1});
  plot.container.addColumn({1, 1, 1, 1}, "doubles behind the flags");
  const auto selection = makeRowSelection({2});
  plot.container.getAnnotationLink()->SetCurrentSelection(selection);
  plot.container.selectionFromFlagColumn();
  EXPECT_EQ(plot.container.getAnnotationLink()->GetCurrentSelection(), selection);
}

TEST(FlagColumn, MissingFromAnEmptyTableLeavesTheSelectionUntouched)
{
  PlotContainer container(nullptr);
  const auto selection = makeRowSelection({2});
  container.getAnnotationLink()->SetCurrentSelection(selection);
  container.selectionFromFlagColumn();
  EXPECT_EQ(container.getAnnotationLink()->GetCurrentSelection(), selection);
}

TEST(FlagColumn, AsksForNoDrawing)
{
  FlaggedPlot plot({1, 0, 0, 0});
  const unsigned long before = stateOf(plot.container).drawings;
  plot.container.selectionFromFlagColumn();
  EXPECT_EQ(stateOf(plot.container).drawings, before);
}

TEST(FlagColumn, GoesBackAndForthUnchanged)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({1, 4, 5}));
  const Flags flags = currentFlags(plot.container);
  const auto column = vtk::TakeSmartPointer(plot.container.getCurrentSelection());
  Talmesh::plot::appendFlagColumn(stateOf(plot.container), column);
  plot.container.getAnnotationLink()->SetCurrentSelection(nullptr);
  plot.container.selectionFromFlagColumn();
  EXPECT_EQ(currentFlags(plot.container), flags);
}

TEST(FlagColumn, IsPutLastInPlaceOfAnOlderOne)
{
  FlaggedPlot plot({1, 1, 1, 1});
  plot.container.addColumn({0, 0, 0, 0}, "behind");
  vtkTable* table = plot.container.getTable();
  const vtkIdType columns = table->GetNumberOfColumns();
  const auto flags = vtk::TakeSmartPointer(plot.container.getCurrentSelection());
  Talmesh::plot::appendFlagColumn(stateOf(plot.container), flags);
  EXPECT_EQ(table->GetNumberOfColumns(), columns);
  EXPECT_STREQ(table->GetColumn(columns - 2)->GetName(), "behind");
  EXPECT_EQ(table->GetColumn(columns - 1), flags);
}

TEST(RowSelection, OfNoListSelectsNoRow)
{
  const auto selection = Talmesh::wrapRowSelection(nullptr);
  ASSERT_EQ(selection->GetNumberOfNodes(), 1U);
  auto* list = vtkIdTypeArray::SafeDownCast(selection->GetNode(0)->GetSelectionList());
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->GetNumberOfValues(), 0);
}

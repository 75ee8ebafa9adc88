#include "app/document/SelectionHistory.h"

#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkIntArray.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkWeakPointer.h>

#include <gtest/gtest.h>

#include <QUndoStack>

#include <memory>
#include <random>
#include <set>
#include <vector>

using Talmesh::makeRowSelection;
using Talmesh::app::SelectionHistory;

namespace
{

using Rows = std::set<vtkIdType>;

class SelectionHistoryTest : public ::testing::Test
{
protected:
  SelectionHistoryTest() { history.follow(&plot.container); }

  void select(const std::vector<vtkIdType>& rows)
  {
    plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection(rows));
  }

  Rows selected() const { return SampleRuns::selectedRows(plot.container); }

  SampleRuns::Plot plot{SampleRuns::runs(4, 3)};
  QUndoStack stack;
  SelectionHistory history{stack};
};

} // namespace

TEST_F(SelectionHistoryTest, UndoesAndRedoesEachSelection)
{
  select({1});
  select({2, 3});
  select({});
  ASSERT_EQ(stack.count(), 3);
  stack.undo();
  EXPECT_EQ(selected(), Rows({2, 3}));
  stack.undo();
  EXPECT_EQ(selected(), Rows({1}));
  stack.undo();
  EXPECT_EQ(selected(), Rows());
  EXPECT_FALSE(stack.canUndo());
  stack.redo();
  stack.redo();
  EXPECT_EQ(selected(), Rows({2, 3}));
  EXPECT_EQ(stack.count(), 3);
}

TEST_F(SelectionHistoryTest, NamesWhatIsUndone)
{
  select({1});
  EXPECT_EQ(stack.undoText(), "Select");
  select({});
  EXPECT_EQ(stack.undoText(), "Clear Selection");
}

TEST_F(SelectionHistoryTest, ForgetsWhatWasUndoneWhenSomethingElseIsSelected)
{
  select({1});
  select({2});
  stack.undo();
  select({3});
  EXPECT_FALSE(stack.canRedo());
  stack.undo();
  EXPECT_EQ(selected(), Rows({1}));
}

TEST_F(SelectionHistoryTest, RecordsNoChangeThatSelectsTheSameRows)
{
  select({});
  EXPECT_EQ(stack.count(), 0);
  select({1, 2});
  select({2, 1, 1});
  EXPECT_EQ(stack.count(), 1);
  // Charts call the rows of the table points.
  const auto points = makeRowSelection({1, 2});
  points->GetNode(0)->SetFieldType(vtkSelectionNode::POINT);
  plot.container.getAnnotationLink()->SetCurrentSelection(points);
  EXPECT_EQ(stack.count(), 1);
  plot.container.getAnnotationLink()->SetCurrentSelection(nullptr);
  EXPECT_EQ(stack.count(), 2);
}

TEST_F(SelectionHistoryTest, RecordsNoChangeThatNamesTheSameRowsInAnotherWay)
{
  select({1, 2});
  ASSERT_EQ(stack.count(), 1);
  const auto twoNodes = makeRowSelection({2});
  twoNodes->AddNode(makeRowSelection({1})->GetNode(0));
  plot.container.getAnnotationLink()->SetCurrentSelection(twoNodes);
  EXPECT_EQ(stack.count(), 1);
  const auto allOthers = makeRowSelection({0, 3, 4, 5, 6, 7, 8, 9, 10, 11});
  allOthers->GetNode(0)->GetProperties()->Set(vtkSelectionNode::INVERSE(), 1);
  plot.container.getAnnotationLink()->SetCurrentSelection(allOthers);
  EXPECT_EQ(stack.count(), 1);
  select({});
  EXPECT_EQ(stack.count(), 2);
  stack.undo();
  EXPECT_EQ(SampleRuns::valuesOf(vtk::TakeSmartPointer(plot.container.getCurrentSelection())),
            std::vector<double>({0, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(SelectionHistoryTest, TellsAnInverseNodeFromAPlainOne)
{
  select({1});
  const auto inverse = makeRowSelection({1});
  inverse->GetNode(0)->GetProperties()->Set(vtkSelectionNode::INVERSE(), 1);
  plot.container.getAnnotationLink()->SetCurrentSelection(inverse);
  EXPECT_EQ(stack.count(), 2);
}

TEST_F(SelectionHistoryTest, KeepsItsOwnCopies)
{
  const auto selection = makeRowSelection({1});
  plot.container.getAnnotationLink()->SetCurrentSelection(selection);
  vtkIdTypeArray::SafeDownCast(selection->GetNode(0)->GetSelectionList())->SetValue(0, 7);
  select({2});
  stack.undo();
  EXPECT_EQ(selected(), Rows({1}));
  vtkSelection* restored = plot.container.getAnnotationLink()->GetCurrentSelection();
  vtkIdTypeArray::SafeDownCast(restored->GetNode(0)->GetSelectionList())->SetValue(0, 8);
  stack.redo();
  stack.undo();
  EXPECT_EQ(selected(), Rows({1}));
}

TEST_F(SelectionHistoryTest, KeepsNoPlotAlive)
{
  vtkWeakPointer<vtkSelection> whole;
  {
    vtkNew<vtkSelection> plotted;
    whole = plotted;
    const auto selection = makeRowSelection({1});
    // Any object serves as the one in which the selection was made.
    selection->GetNode(0)->GetProperties()->Set(vtkSelectionNode::PROP(), plotted);
    plot.container.getAnnotationLink()->SetCurrentSelection(selection);
    select({2});
    ASSERT_EQ(stack.count(), 2);
  }
  EXPECT_EQ(whole, nullptr);
}

TEST_F(SelectionHistoryTest, SplitsTheRunsAgainOnUndo)
{
  select({0});
  select({3});
  stack.undo();
  EXPECT_EQ(SampleRuns::valuesOf(plot.container.getDerivedTables().at(2), "Complex: A"),
            std::vector<double>({0}));
}

TEST_F(SelectionHistoryTest, RecordsTheRowsThatTheTableHas)
{
  select({1, 500});
  select({2});
  stack.undo();
  EXPECT_EQ(selected(), Rows({1}));
  EXPECT_EQ(stack.count(), 2);
}

TEST_F(SelectionHistoryTest, StartsAnewOnRequest)
{
  select({1});
  history.restart();
  EXPECT_EQ(stack.count(), 0);
  select({2});
  stack.undo();
  EXPECT_EQ(selected(), Rows({1}));
}

TEST_F(SelectionHistoryTest, FollowsAnotherLink)
{
  select({1});
  SampleRuns::Plot other(SampleRuns::runs(4, 3));
  vtkAnnotationLink* link = other.container.getAnnotationLink();
  history.follow(&other.container);
  EXPECT_EQ(stack.count(), 0);
  select({2});
  EXPECT_EQ(stack.count(), 0);
  link->SetCurrentSelection(makeRowSelection({5}));
  EXPECT_EQ(stack.count(), 1);
  history.follow(nullptr);
  link->SetCurrentSelection(makeRowSelection({6}));
  EXPECT_EQ(stack.count(), 0);
}

TEST_F(SelectionHistoryTest, RecordsOnceWhenALinkIsFollowedTwice)
{
  history.follow(&plot.container);
  select({1});
  EXPECT_EQ(stack.count(), 1);
}

TEST(SelectionCommands, DoNothingWithoutTheirContainer)
{
  QUndoStack stack;
  vtkSmartPointer<vtkAnnotationLink> link;
  {
    SelectionHistory history(stack);
    history.restart();
    {
      SampleRuns::Plot plot(SampleRuns::runs(4, 3));
      link = plot.container.getAnnotationLink();
      history.follow(&plot.container);
      link->SetCurrentSelection(makeRowSelection({1}));
      ASSERT_EQ(stack.count(), 1);
    }
    stack.undo();
    stack.redo();
    // Charts may keep the link longer than their container.
    link->SetCurrentSelection(makeRowSelection({2}));
    EXPECT_EQ(stack.count(), 1);
    history.restart();
    EXPECT_EQ(stack.count(), 0);
  }
  link->SetCurrentSelection(makeRowSelection({3}));
  EXPECT_EQ(stack.count(), 0);
}

TEST(SelectionCommands, OutliveTheirHistory)
{
  QUndoStack stack;
  SampleRuns::Plot plot(SampleRuns::runs(4, 3));
  {
    SelectionHistory history(stack);
    history.follow(&plot.container);
    plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({1}));
  }
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({2}));
  EXPECT_EQ(stack.count(), 1);
  stack.undo();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows());
  stack.redo();
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), Rows({1}));
}

TEST_F(SelectionHistoryTest, WalksARandomHistoryToEitherEnd)
{
  std::mt19937 random(7);
  std::uniform_int_distribution<vtkIdType> row(0, 11);
  std::vector<Rows> states{selected()};
  for (int step = 0; step < 100; ++step)
  {
    const std::vector<vtkIdType> rows{row(random), row(random)};
    select(rows);
    if (Rows(rows.begin(), rows.end()) != states.back())
      states.emplace_back(rows.begin(), rows.end());
  }
  ASSERT_EQ(stack.count(), static_cast<int>(states.size()) - 1);
  for (std::size_t i = states.size() - 1; i-- > 0;)
  {
    stack.undo();
    ASSERT_EQ(selected(), states[i]);
  }
  for (std::size_t i = 1; i < states.size(); ++i)
  {
    stack.redo();
    ASSERT_EQ(selected(), states[i]);
  }
}

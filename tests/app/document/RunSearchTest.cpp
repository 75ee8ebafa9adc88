#include "app/document/RunSearch.h"

#include "app/document/SelectionController.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "support/SampleRuns.h"
#include "vtk/GestureHandling.h"
#include "vtk/RowSelections.h"

#include <vtkDoubleArray.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QUndoStack>

#include <functional>
#include <vector>

using Talmesh::app::RunCombination;
using Talmesh::app::RunSearch;
using Talmesh::app::SelectionController;

namespace
{

using Runs = std::vector<bool>;

/// Four runs, the first of which is selected, and a background that does its work when told to.
class RunSearchTest : public ::testing::Test
{
protected:
  RunSearchTest()
  {
    controller.follow(&plot.container);
    select("run = 0");
    controller.setPatience(std::chrono::milliseconds(0));
    controller.setBackground({[this](const RunSearch::Work& work, const auto& deliver)
                              {
                                begun.push_back(work);
                                deliveries.push_back(deliver);
                              },
                              [this] { ++cancelled; }});
  }

  std::string select(const char* words, RunCombination how = RunCombination::Replace)
  {
    return controller.selectWhere(words, how).text;
  }

  void finish(std::size_t which) { deliveries.at(which)(begun.at(which)({}).value()); }
  Runs selected() { return controller.selectedRuns(); }

  SampleRuns::Plot plot;
  SelectionController controller;
  std::vector<RunSearch::Work> begun;
  std::vector<std::function<void(const Runs&)>> deliveries;
  int cancelled = 0;
};

const Runs theFirst{true, false, false, false};

} // namespace

TEST_F(RunSearchTest, SelectsAtOnceWhatTakesAMoment)
{
  controller.setPatience(std::chrono::hours(1));
  EXPECT_EQ(select("k1 >= 3"), "");
  EXPECT_EQ(selected(), (Runs{false, false, true, true}));
  EXPECT_TRUE(begun.empty());
}

TEST_F(RunSearchTest, LeavesTheSelectionUntilTheRunsAreFound)
{
  EXPECT_EQ(select("max(A) >= 22 and k1 < 4"), "");
  EXPECT_TRUE(controller.isSearching());
  EXPECT_EQ(selected(), theFirst);
  finish(0);
  EXPECT_FALSE(controller.isSearching());
  EXPECT_EQ(selected(), (Runs{false, false, true, false}));
  EXPECT_EQ(controller.words(), "max(A) >= 22 and k1 < 4");
}

TEST_F(RunSearchTest, SaysAtOnceWhatIsWrongWithTheWords)
{
  select("run = 1");
  EXPECT_NE(select("run = "), "");
  EXPECT_TRUE(controller.isSearching()) << "for the words before";
  EXPECT_EQ(begun.size(), 1U);
}

TEST_F(RunSearchTest, LeavesTheSelectionWhenItIsGivenUp)
{
  QSignalSpy told(&controller, &SelectionController::gaveUp);
  select("run = 1");
  EXPECT_TRUE(controller.giveUp());
  EXPECT_EQ(told.count(), 1);
  EXPECT_EQ(cancelled, 1);
  EXPECT_EQ(selected(), theFirst);
  EXPECT_FALSE(controller.giveUp()) << "nothing is under way any more";
  EXPECT_EQ(cancelled, 1);
}

TEST_F(RunSearchTest, GivesUpWhatAnotherConditionReplaces)
{
  select("run = 1");
  select("run = 2");
  EXPECT_EQ(cancelled, 1);
  finish(1);
  EXPECT_EQ(selected(), (Runs{false, false, true, false}));
}

TEST_F(RunSearchTest, ChangesWhatConditionsBeforeItHaveSelected)
{
  select("run >= 2");
  select("run = 1", RunCombination::Add);
  select("run = 2", RunCombination::Subtract);
  ASSERT_EQ(begun.size(), 1U) << "one after the other";
  finish(0);
  EXPECT_EQ(selected(), (Runs{false, false, true, true}));
  finish(1);
  finish(2);
  EXPECT_EQ(selected(), (Runs{false, true, false, true}));
  EXPECT_EQ(controller.words(), "(run >= 2 or run = 1) and not (run = 2)");
  EXPECT_EQ(cancelled, 0);
}

TEST_F(RunSearchTest, GivesUpWhenSomebodyElseSelects)
{
  select("run = 1");
  controller.selectAll();
  EXPECT_EQ(cancelled, 1);
  EXPECT_EQ(selected(), Runs(4, true));
  select("run = 1");
  controller.undoStack().undo();
  EXPECT_EQ(cancelled, 2);
  EXPECT_EQ(selected(), theFirst);
}

TEST_F(RunSearchTest, GoesOnWhileTheSameRunsAreAnnouncedAnew)
{
  select("run = 1", RunCombination::Add);
  plot.container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({0, 1, 2}));
  EXPECT_TRUE(controller.isSearching());
  finish(0);
  EXPECT_EQ(selected(), (Runs{true, true, false, false}));
}

TEST_F(RunSearchTest, GivesUpWhenAnotherPlotIsShown)
{
  select("run = 1");
  SampleRuns::Plot other;
  controller.visit(&other.container);
  EXPECT_EQ(cancelled, 1);
  EXPECT_FALSE(controller.isSearching());
  controller.endVisit();
}

TEST_F(RunSearchTest, ReadsTheValuesThatWereThereWhenItBegan)
{
  select("max(A) > 25 or through(A over B, -12, -12, 12, 12)");
  auto* values = vtkDoubleArray::SafeDownCast(plot.container.getTable()->GetColumn(0));
  values->FillComponent(0, 1000);
  finish(0);
  EXPECT_EQ(selected(), (Runs{false, true, false, true}));
}

TEST_F(RunSearchTest, NeedsNoSearchForRunsThatAGestureNames)
{
  Talmesh::SelectionGesture gesture;
  gesture.kind = Talmesh::SelectionGesture::Kind::Lasso;
  gesture.table = plot.container.getTable();
  // Rows of the third run, which has three.
  gesture.rows = {6, 7};
  const auto& drawn = stateOf(plot.container).gestures->select;
  EXPECT_TRUE(drawn(gesture));
  EXPECT_EQ(selected(), (Runs{false, false, true, false}));
  EXPECT_EQ(controller.words(), "runs(2)");
  EXPECT_TRUE(begun.empty());
  // It waits for those that are looked for before.
  select("run = 3");
  gesture.mode = Talmesh::SelectionGesture::Mode::Add;
  EXPECT_TRUE(drawn(gesture));
  finish(0);
  EXPECT_EQ(selected(), (Runs{false, false, false, true}));
  finish(1);
  EXPECT_EQ(selected(), (Runs{false, false, true, true}));
  // And takes the place of those that it replaces.
  select("run = 3");
  gesture.mode = Talmesh::SelectionGesture::Mode::Replace;
  EXPECT_TRUE(drawn(gesture));
  EXPECT_EQ(cancelled, 1);
  EXPECT_FALSE(controller.isSearching());
  EXPECT_EQ(selected(), (Runs{false, false, true, false}));
}

TEST_F(RunSearchTest, TellsNobodyOfTheEndOfWhatIsReplaced)
{
  QSignalSpy told(&controller, &SelectionController::gaveUp);
  select("run = 1");
  select("run = 2");
  EXPECT_EQ(told.count(), 0);
}

TEST_F(RunSearchTest, TakesTheReachOfGesturesOnFineScreens)
{
  Talmesh::SelectionGesture click;
  click.kind = Talmesh::SelectionGesture::Kind::Click;
  click.points = {{1.0, 20.0}};
  click.table = plot.container.getTable();
  click.series = {{": Time [s]", "Complex: A", false}};
  // The point of the third run at time 1 is 21: ten pixels above.
  click.unitsX = 0.1;
  click.unitsY = 0.1;
  const auto& drawn = stateOf(plot.container).gestures->select;
  EXPECT_TRUE(drawn(click));
  EXPECT_EQ(selected(), theFirst) << "beside everything";
  controller.gestures().setPixelRatio([] { return 2.0; });
  EXPECT_TRUE(drawn(click));
  EXPECT_EQ(selected(), (Runs{false, false, true, false}));
}

#include "window/SelectionInWindow.h"

#include <QTabWidget>

namespace
{

using namespace Talmesh::app;

TEST_F(SelectionInWindow, FollowsTheRightMouseButtonAndItsModifiers)
{
  EXPECT_EQ(window.selectionText(), "0 of 3 runs selected");
  dragAround(1, 1);
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(window.selectionText(), "1 of 3 runs selected");
  dragAround(0, 1, Qt::ControlModifier);
  EXPECT_EQ(runs(), (Runs{0, 1}));
  dragAround(1, 1, Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{0});
  dragAround(0, 1, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{});
  EXPECT_EQ(window.selectionText(), "0 of 3 runs selected");
}

TEST_F(SelectionInWindow, IsUndoneAndRedoneFromTheKeyboard)
{
  dragAround(1, 1);
  dragAround(2, 1);
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(window.selectionText(), "1 of 3 runs selected");
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), Runs{});
  press(QKeySequence::Redo);
  EXPECT_EQ(runs(), Runs{1});
}

TEST_F(SelectionInWindow, LosesItsHighlightOnUndo)
{
  ASSERT_EQ(redPixels(), 0);
  dragAround(1, 1);
  const int highlighted = redPixels();
  EXPECT_GT(highlighted, 100);
  press(QKeySequence::Undo);
  EXPECT_EQ(redPixels(), 0);
  press(QKeySequence::Redo);
  EXPECT_EQ(redPixels(), highlighted);
}

TEST_F(SelectionInWindow, IsEverythingOrNothingFromTheKeyboard)
{
  press(QKeySequence::SelectAll);
  EXPECT_EQ(runs(), (Runs{0, 1, 2}));
  EXPECT_EQ(window.selectionText(), "3 of 3 runs selected");
  press(QKeySequence(Qt::Key_Escape));
  EXPECT_EQ(runs(), Runs{});
}

TEST_F(SelectionInWindow, StaysWhenEscapeEndsADrag)
{
  dragAround(1, 2);
  const Rows before = flags();
  ASSERT_FALSE(before.empty());
  const QPoint start = pixelOfPoint(0, 1) - QPoint(20, 20);
  const QPoint end = start + QPoint(40, 40);
  QTest::mousePress(&plot(), Qt::RightButton, Qt::NoModifier, start);
  QMouseEvent move(QEvent::MouseMove, end, plot().mapToGlobal(end), Qt::NoButton, Qt::RightButton,
                   Qt::NoModifier);
  QCoreApplication::sendEvent(&plot(), &move);
  press(QKeySequence(Qt::Key_Escape));
  QTest::mouseRelease(&plot(), Qt::RightButton, Qt::NoModifier, end);
  QCoreApplication::processEvents();
  EXPECT_EQ(flags(), before);
  press(QKeySequence(Qt::Key_Escape));
  EXPECT_EQ(flags(), Rows());
}

TEST_F(SelectionInWindow, IsSavedAndLoaded)
{
  dragAround(1, 1);
  dragAround(2, 1, Qt::ControlModifier);
  SelectionController& selection = *window.selectionController();
  ASSERT_EQ(selection.save(folder.filePath("two.json")), "");
  selection.clear();
  ASSERT_EQ(runs(), Runs{});
  EXPECT_EQ(selection.load(folder.filePath("two.json")), "");
  EXPECT_EQ(runs(), (Runs{1, 2}));
  EXPECT_NE(selection.load(folder.filePath("missing.json")), "");
  EXPECT_EQ(runs(), (Runs{1, 2}));
}

TEST_F(SelectionInWindow, SaysWhichLoadedRunsTheTableDoesNotHave)
{
  SelectionController& selection = *window.selectionController();
  const std::string path = folder.filePath("runs.json").toStdString();
  writeRuns("runs.json", "[2, 0, 7, 1000]");
  EXPECT_EQ(selection.load(folder.filePath("runs.json")),
            path + ": 2 of its 4 runs are not in this table: 7, 1000");
  EXPECT_EQ(runs(), Runs({0, 2}));
  writeRuns("runs.json", "[1, 3]");
  EXPECT_EQ(selection.load(folder.filePath("runs.json")),
            path + ": 1 of its 2 runs is not in this table: 3");
  EXPECT_EQ(runs(), Runs{1});
}

TEST_F(SelectionInWindow, StaysWhenNoneOfTheLoadedRunsIsInTheTable)
{
  dragAround(1, 1);
  SelectionController& selection = *window.selectionController();
  const std::string path = folder.filePath("runs.json").toStdString();
  writeRuns("runs.json", "[3, 4]");
  EXPECT_EQ(selection.load(folder.filePath("runs.json")),
            path + ": none of its runs is in this table: 3, 4");
  EXPECT_EQ(runs(), Runs{1});
  writeRuns("runs.json", "[]");
  EXPECT_EQ(selection.load(folder.filePath("runs.json")), "");
  EXPECT_EQ(runs(), Runs());
}

TEST_F(SelectionInWindow, FollowsAClickOnAPoint)
{
  QTest::mouseClick(&plot(), Qt::RightButton, Qt::NoModifier, pixelOfPoint(1, 1));
  QCoreApplication::processEvents();
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_EQ(window.selectionText(), "1 of 3 runs selected");
  QTest::mouseClick(&plot(), Qt::RightButton, Qt::ControlModifier, pixelOfPoint(2, 1));
  QCoreApplication::processEvents();
  EXPECT_EQ(runs(), (Runs{1, 2}));
  EXPECT_GT(redPixels(), 100);
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), Runs{1});
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), Runs{});
}

TEST_F(SelectionInWindow, IsToggledWhereSeveralColumnsAreDrawn)
{
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {0, 1};
  window.plotDock()->setChoice(choice);
  emit window.plotDock()->choiceChanged();
  ASSERT_EQ(container().getChartXY()->GetNumberOfPlots(), 2);
  dragAround(1, 1);
  EXPECT_EQ(runs(), Runs{1});
  dragAround(0, 1, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), (Runs{0, 1}));
  dragAround(1, 1, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(runs(), Runs{0});
}

TEST_F(SelectionInWindow, HasItsKeysOnThePageOfRunsOnly)
{
  auto* tabs = window.findChild<QTabWidget*>();
  dragAround(1, 1);
  tabs->setCurrentIndex(1);
  press(QKeySequence::SelectAll);
  EXPECT_EQ(runs(), Runs{1});
  press(QKeySequence(Qt::Key_Escape));
  EXPECT_EQ(runs(), Runs{1});
  tabs->setCurrentIndex(0);
  press(QKeySequence::SelectAll);
  EXPECT_EQ(runs(), (Runs{0, 1, 2}));
  press(QKeySequence(Qt::Key_Escape));
  EXPECT_EQ(runs(), Runs{});
}

TEST_F(SelectionInWindow, SurvivesAButtonHeldWhileAnotherStudyOpens)
{
  const QPoint start = pixelOfPoint(1, 1);
  QTest::mousePress(&plot(), Qt::RightButton, Qt::NoModifier, start);
  window.openFile(folder.filePath("runs.csv"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  QTest::mouseRelease(&plot(), Qt::RightButton, Qt::NoModifier, start + QPoint(50, 50));
  QCoreApplication::processEvents();
  EXPECT_EQ(window.selectionText(), "0 of 3 runs selected");
}

TEST_F(SelectionInWindow, StartsAnewWithAnotherStudy)
{
  dragAround(1, 1);
  window.openFile(folder.filePath("runs.csv"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  EXPECT_EQ(window.selectionText(), "0 of 3 runs selected");
  EXPECT_FALSE(window.selectionController()->undoStack().canUndo());
}

} // namespace

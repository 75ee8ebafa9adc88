#include "app/window/FilterLine.h"

#include <QComboBox>
#include <QLineEdit>
#include <QUndoStack>

#include "window/SelectionInWindow.h"

namespace
{

using namespace Talmesh::app;

/// The line in the window, typed into.
class FilterLineInWindow : public SelectionInWindow
{
protected:
  FilterLine& line() { return *window.filterLine(); }
  QLineEdit& edit() { return *line().findChild<QLineEdit*>(); }

  void type(const QString& words)
  {
    edit().clear();
    QTest::keyClicks(&edit(), words);
    QTest::keyClick(&edit(), Qt::Key_Return);
    QCoreApplication::processEvents();
  }

  void combine(RunCombination how)
  {
    QComboBox& box = *line().findChild<QComboBox*>();
    box.setCurrentIndex(box.findData(static_cast<int>(how)));
  }
};

} // namespace

TEST_F(FilterLineInWindow, SelectsTheRunsThatMeetWhatIsTyped)
{
  type("run > 0");
  EXPECT_EQ(runs(), (Runs{1, 2}));
  EXPECT_EQ(window.selectionText(), "2 of 3 runs selected");
  EXPECT_EQ(line().fault(), "");
}

TEST_F(FilterLineInWindow, CombinesThemWithThoseSelectedSoFar)
{
  type("run > 0");
  combine(RunCombination::Subtract);
  type("run = 2");
  EXPECT_EQ(runs(), Runs{1});
  combine(RunCombination::Toggle);
  type("run < 2");
  EXPECT_EQ(runs(), Runs{0});
  combine(RunCombination::Add);
  type("run = 2");
  EXPECT_EQ(runs(), (Runs{0, 2}));
}

TEST_F(FilterLineInWindow, LeavesTheSelectionWhenEscapeIsTypedThere)
{
  type("run > 0");
  QTest::keyClicks(&edit(), " and r");
  QTest::keyClick(&edit(), Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_EQ(runs(), (Runs{1, 2}));
  EXPECT_EQ(edit().text(), "run > 0 and r");
}

TEST_F(FilterLineInWindow, SelectsNothingWhenEscapeIsTypedBehindWhatIsSelected)
{
  type("run > 0");
  QTest::keyClick(&edit(), Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_EQ(runs(), Runs{});
  EXPECT_EQ(edit().text(), "");
}

TEST_F(FilterLineInWindow, ShowsTheWordsOfWhatIsSelectedNow)
{
  type("run > 0");
  combine(RunCombination::Subtract);
  type("run = 2");
  EXPECT_EQ(edit().text(), "run = 2") << "as it was typed";
  edit().clearFocus();
  press(QKeySequence("Ctrl+I"));
  EXPECT_EQ(edit().text(), "not ((run > 0) and not (run = 2))");
  press(QKeySequence::Undo);
  EXPECT_EQ(edit().text(), "(run > 0) and not (run = 2)");
  dragAround(0, 1, Qt::ControlModifier);
  EXPECT_TRUE(edit().text().startsWith("(run > 0) and not (run = 2) or through(X, "))
      << edit().text().toStdString();
  press(QKeySequence(Qt::Key_Escape));
  EXPECT_EQ(edit().text(), "");
}

TEST_F(FilterLineInWindow, SaysWhatIsWrongAndMarksItInTheLine)
{
  type("run = 1");
  type("run > 0 and \"Ü\" > 1 or k");
  EXPECT_EQ(runs(), Runs{1}) << "as before";
  EXPECT_NE(line().fault(), "");
  EXPECT_EQ(edit().selectionStart(), 12);
  QTest::keyClicks(&edit(), "1");
  EXPECT_EQ(line().fault(), "") << "once it is changed";
}

TEST_F(FilterLineInWindow, LeavesTheWindowAsWideAsItIs)
{
  const int width = window.width();
  type("max(" + QString(400, 'x') + ") > 1");
  EXPECT_NE(line().fault(), "");
  EXPECT_EQ(window.width(), width);
}

TEST_F(FilterLineInWindow, OffersNoColumnsThatMarkASelection)
{
  type("run > 0");
  type("Z > 0");
  EXPECT_TRUE(line().fault().startsWith("no such column: Z; the columns are X,"))
      << line().fault().toStdString();
  EXPECT_FALSE(line().fault().contains("Selection")) << line().fault().toStdString();
}

TEST_F(FilterLineInWindow, KeepsWhatIsTypedThoughItSelectsWhatIsSelected)
{
  type("run > 99");
  EXPECT_EQ(edit().text(), "run > 99") << "nothing";
  type("run > 0");
  type("run >= 1");
  EXPECT_EQ(edit().text(), "run >= 1") << "the same runs";
}

TEST_F(FilterLineInWindow, NamesEachStepByItsWords)
{
  QUndoStack& steps = window.selectionController()->undoStack();
  type("run > 0");
  EXPECT_EQ(steps.text(steps.index() - 1), "Select 2 runs: run > 0");
  EXPECT_EQ(steps.undoText(), "Select 2 runs");
  press(QKeySequence::Undo);
  EXPECT_EQ(runs(), Runs{});
  press(QKeySequence::Redo);
  EXPECT_EQ(runs(), (Runs{1, 2}));
}

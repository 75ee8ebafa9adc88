#include "app/window/FilterLine.h"

#include <QAction>
#include <QLineEdit>
#include <QStatusBar>

#include <cmath>

#include "window/TasksInWindow.h"

namespace
{

using namespace Talmesh::app;

/// Many runs, the first of which is selected, in a window in which every condition takes long.
class SearchInWindow : public TasksInWindow
{
protected:
  SearchInWindow()
  {
    openUnchanged(numberedNoise(3000, 100));
    QApplication::setActiveWindow(window.get());
    type("run = 0");
    QCoreApplication::processEvents();
    selection().setPatience(std::chrono::milliseconds(0));
  }

  SelectionController& selection() { return window->document().selection(); }
  QLineEdit& edit() { return *window->filterLine()->findChild<QLineEdit*>(); }

  void type(const QString& words)
  {
    edit().clear();
    QTest::keyClicks(&edit(), words);
    QTest::keyClick(&edit(), Qt::Key_Return);
  }

  /// A condition that a processor thinks about for seconds: each piece of a line is near all
  /// corners.
  void typeLong()
  {
    QString words = "lasso(X";
    for (int corner = 0; corner < 1000; ++corner)
      words += QString(", %1, %2").arg(corner % 2 ? -10 : 110).arg(corner < 500 ? -1 : 1001);
    edit().setText(words + ", 200, 2000)");
    QTest::keyClick(&edit(), Qt::Key_Return);
  }

  std::size_t count()
  {
    const std::vector<bool> runs = selection().selectedRuns();
    return static_cast<std::size_t>(std::count(runs.begin(), runs.end(), true));
  }
};

} // namespace

TEST_F(SearchInWindow, SelectsWhenTheRunsAreFound)
{
  type("max(X) > 0");
  EXPECT_TRUE(window->isBusy());
  EXPECT_EQ(count(), 1U);
  ASSERT_TRUE(waitForEnd());
  EXPECT_EQ(count(), 3000U);
  QCoreApplication::processEvents();
  EXPECT_EQ(window->selectionText(), "3000 of 3000 runs selected");
  EXPECT_EQ(edit().text(), "max(X) > 0");
}

TEST_F(SearchInWindow, AnswersMeanwhile)
{
  typeLong();
  expectHeartbeats([this] { typeLong(); });
}

TEST_F(SearchInWindow, LeavesTheSelectionAtEscape)
{
  typeLong();
  ASSERT_TRUE(window->isBusy());
  QTest::keyClick(window.get(), Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_FALSE(window->isBusy());
  EXPECT_EQ(count(), 1U);
  EXPECT_EQ(window->statusBar()->currentMessage(), "Cancelled");
  QTest::keyClick(window.get(), Qt::Key_Escape);
  QCoreApplication::processEvents();
  EXPECT_EQ(count(), 0U) << "the second one means the selection";
}

TEST_F(SearchInWindow, LeavesTheSelectionWhenItIsCancelledInTheStatusBar)
{
  typeLong();
  ASSERT_TRUE(window->isBusy());
  click("cancelSearching");
  QCoreApplication::processEvents();
  EXPECT_FALSE(window->isBusy());
  EXPECT_EQ(count(), 1U);
  EXPECT_TRUE(edit().isModified()) << "what stands there is not what is selected";
}

TEST_F(SearchInWindow, EndsWithTheWindow)
{
  typeLong();
  ASSERT_TRUE(window->isBusy());
  window.reset();
}

TEST_F(SearchInWindow, GivesUpWhenTheValuesBecomeOthers)
{
  typeLong();
  ASSERT_TRUE(window->isBusy());
  emit window->document().valuesChanged();
  EXPECT_FALSE(window->isBusy());
  EXPECT_EQ(count(), 1U);
}

TEST_F(SearchInWindow, CancelsNothingWhenAConditionTakesThePlaceOfAnother)
{
  typeLong();
  ASSERT_TRUE(window->isBusy());
  type("run = 2");
  EXPECT_EQ(window->statusBar()->currentMessage(),
            "Looking for the runs that meet the condition ...");
  typeLong();
  selection().setPatience(std::chrono::hours(1));
  type("run = 3");
  EXPECT_FALSE(window->isBusy());
  EXPECT_FALSE(window->statusBar()->currentMessage().startsWith("Looking"));
  EXPECT_NE(window->statusBar()->currentMessage(), "Cancelled");
  EXPECT_EQ(count(), 1U);
}

TEST_F(SearchInWindow, LooksForWhatTheCommandLineSelects)
{
  PlotWishes wishes;
  wishes.select = {"max(X) < 0", "run < 5", "run = 7"};
  EXPECT_EQ(window->document().open(numberedNoise(3000, 100), wishes), "");
  EXPECT_TRUE(window->isBusy());
  EXPECT_EQ(count(), 0U);
  ASSERT_TRUE(waitForEnd());
  EXPECT_EQ(count(), 6U);
  EXPECT_EQ(selection().words(), "max(X) < 0 or run < 5 or run = 7");
  wishes.select = {"max(X) <"};
  EXPECT_NE(window->document().open(numberedNoise(30, 100), wishes), "");
  EXPECT_FALSE(window->isBusy());
}

#include "app/window/FilterLine.h"
#include "external/ColumnNames.h"

#include <QAction>
#include <QLineEdit>
#include <QStatusBar>

#include <cmath>

#include "window/TasksInWindow.h"

namespace
{

using namespace Talmesh::app;

/// Noise in runs that have numbers.
OpenedStudy numberedNoise(std::size_t runs, std::size_t points)
{
  const OpenedStudy opened = noise(runs, points);
  LinePlotTable& table = *opened.study.runs;
  table.items.push_back(Talmesh::runIndexItem());
  auto* numbers = new double[runs * points];
  for (std::size_t row = 0; row < runs * points; ++row)
    numbers[row] = static_cast<double>(row / points);
  table.values.push_back(numbers);
  return opened;
}

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

#include "app/window/FilterLine.h"
#include "app/window/GestureActions.h"
#include "app/window/RunTableView.h"
#include "app/window/StepsDock.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QSettings>
#include <QTabWidget>
#include <QUndoStack>

#include "window/WorkInWindow.h"

namespace
{

using namespace Talmesh::app;
using Tool = Talmesh::SelectionTool;

/// A window that saves a session, and another one that opens it.
class RestoredViewsInWindow : public WorkInWindow
{
protected:
  ~RestoredViewsInWindow() override { QSettings().clear(); }

  void saveAndReopen()
  {
    ASSERT_TRUE(window.saveSessionTo(path("study.talmesh")));
    other = std::make_unique<MainWindow>();
    other->show();
    openIn(*other, path("study.talmesh"));
  }

  static void select(MainWindow& shown, const char* words)
  {
    EXPECT_EQ(shown.selectionController()->selectWhere(words, RunCombination::Add).text, "");
    QTest::qWait(20);
  }

  static QStringList stepsIn(MainWindow& shown)
  {
    return shown.findChild<StepsDock*>()->stepsText().trimmed().split('\n');
  }

  static QStringList columnsIn(MainWindow& shown)
  {
    auto* dock = shown.findChild<QDockWidget*>("runTableDock");
    dock->show();
    dock->raise();
    const QAbstractItemModel& model = *shown.findChild<RunTableView*>("runTable")->model();
    EXPECT_TRUE(QTest::qWaitFor([&] { return model.columnCount() > 1; }, patience));
    QStringList names;
    for (int column = 0; column < model.columnCount(); ++column)
      names.append(model.headerData(column, Qt::Horizontal).toString());
    return names;
  }

  static QComboBox& modeIn(MainWindow& shown)
  {
    shown.pages()->setCurrentIndex(1);
    QTest::qWait(20);
    return *shown.findChild<QComboBox*>("shownRuns");
  }

  std::unique_ptr<MainWindow> other;
};

} // namespace

TEST_F(RestoredViewsInWindow, TellTheStepsOnInTheNextWindow)
{
  select(window, "run = 10");
  select(window, "run > 40");
  saveAndReopen();
  auto& earlier = *other->findChild<QListWidget*>("earlierSteps");
  ASSERT_EQ(earlier.count(), 2);
  EXPECT_EQ(earlier.item(1)->text(), "2. Add 2 runs: run > 40");
  select(*other, "run = 20");
  EXPECT_EQ(stepsIn(*other), (QStringList{"1. Add 1 run: run = 10", "2. Add 2 runs: run > 40",
                                          "As opened: run = 10 or run > 40",
                                          "3. Add 1 run: run = 20", "4 of 6 runs selected"}));
  EXPECT_EQ(other->selectionController()->undoStack().count(), 1)
      << "what was selected before is not kept";
  ASSERT_TRUE(other->saveSessionTo(path("again.talmesh")));
  openIn(window, path("again.talmesh"));
  EXPECT_EQ(
      stepsIn(window),
      (QStringList{"1. Add 1 run: run = 10", "2. Add 2 runs: run > 40", "3. Add 1 run: run = 20",
                   "As opened: run = 10 or run > 40 or run = 20", "4 of 6 runs selected"}));
}

TEST_F(RestoredViewsInWindow, TellNoStepsOfAnotherStudy)
{
  select(window, "run = 10");
  saveAndReopen();
  other->openExample();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !other->isLoading(); }, patience));
  EXPECT_FALSE(stepsIn(*other).front().contains("run = 10"));
  EXPECT_EQ(other->findChild<QListWidget*>("earlierSteps")->count(), 0);
}

TEST_F(RestoredViewsInWindow, PointAtRunsAsBefore)
{
  window.gestureActions()->action(Tool::Lasso)->trigger();
  window.gestureActions()->action(GestureRule::Inside)->trigger();
  QSettings().clear();
  saveAndReopen();
  const GestureActions& actions = *other->gestureActions();
  EXPECT_TRUE(actions.action(Tool::Lasso)->isChecked());
  EXPECT_TRUE(actions.action(GestureRule::Inside)->isChecked());
  EXPECT_EQ(other->selectionController()->gestures().tool(), Tool::Lasso);
  EXPECT_EQ(other->selectionController()->gestures().rule(), GestureRule::Inside);
}

TEST_F(RestoredViewsInWindow, ShowTheSameColumnsOfTheRuns)
{
  const QStringList first = columnsIn(window);
  for (QAction* entry : window.findChild<QMenu*>("runTableColumns")->actions())
    if (entry->text() == "Smallest value" || entry->text() == "Mean" ||
        entry->text() == "Parameters")
      entry->trigger();
  const QStringList chosen = columnsIn(window);
  ASSERT_NE(chosen, first);
  saveAndReopen();
  EXPECT_EQ(columnsIn(*other), chosen);
}

TEST_F(RestoredViewsInWindow, ShowTheCoursesOfTheSameRuns)
{
  modeIn(window).setCurrentIndex(1);
  saveAndReopen();
  EXPECT_EQ(modeIn(*other).currentIndex(), 1);
}

#include "app/window/RunTableDock.h"
#include "app/window/RunTableModel.h"
#include "app/window/RunTableView.h"

#include <QAction>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>
#include <QTabWidget>
#include <QToolButton>

#include "SampleStudies.h"
#include "window/WorkInWindow.h"

using namespace Talmesh::app;

namespace
{

using Runs = std::set<int>;

/// The window with the table of six runs, 10 to 60, of which the largest X are 8, 16, ... 48.
class RunTableInWindow : public WorkInWindow
{
protected:
  RunTableInWindow()
  {
    press(QKeySequence(Qt::Key_F7));
    QTest::qWait(20);
    EXPECT_TRUE(dock().isComplete());
  }

  RunTableDock& dock() { return *find<RunTableDock>("runTableDock"); }
  RunTableView& view() { return *find<RunTableView>("runTable"); }
  QUndoStack& steps() { return window.selectionController()->undoStack(); }
  QString lastStep() { return steps().text(steps().index() - 1); }

  QString cell(int row, int column) { return view().model()->index(row, column).data().toString(); }
  QStringList columnOf(int column)
  {
    QStringList cells;
    for (int row = 0; row < view().model()->rowCount(); ++row)
      cells.append(cell(row, column));
    return cells;
  }
  QStringList names()
  {
    QStringList found;
    for (int column = 0; column < view().model()->columnCount(); ++column)
      found.append(view().model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    return found;
  }

  QPoint placeOf(int row, int column = 0)
  {
    view().scrollTo(view().model()->index(row, column));
    return view().visualRect(view().model()->index(row, column)).center();
  }
  void click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    QTest::mouseClick(view().viewport(), Qt::LeftButton, modifiers, placeOf(row));
    QTest::qWait(20);
  }
  void clickHeader(int column)
  {
    const QHeaderView& header = *view().horizontalHeader();
    const QPoint place(header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                       header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::qWait(20);
  }

  /// The runs of the rows that are marked.
  Runs marked()
  {
    Runs found;
    for (const QModelIndex& index : view().selectionModel()->selectedRows())
      found.insert(index.data().toInt());
    return found;
  }

  void clickButton(const char* action)
  {
    for (QToolButton* button : dock().findChildren<QToolButton*>())
      if (button->defaultAction() && button->defaultAction()->objectName() == QLatin1String(action))
        QTest::mouseClick(button, Qt::LeftButton);
  }
};

} // namespace

TEST_F(RunTableInWindow, HasNumbersParametersAndFeatures)
{
  EXPECT_EQ(names(), (QStringList{"Run", "k", "max(X)", "mean(X)", "final(X)", "max(Y)", "mean(Y)",
                                  "final(Y)"}));
  EXPECT_EQ(columnOf(0), (QStringList{"10", "20", "30", "40", "50", "60"}));
  EXPECT_EQ(columnOf(1), (QStringList{"0", "0.5", "1", "1.5", "2", "2.5"}));
  EXPECT_EQ(columnOf(2), (QStringList{"8", "16", "24", "32", "40", "48"}));
  // The even places rise to eight times their first value, the odd ones fall to it.
  EXPECT_EQ(columnOf(4), (QStringList{"8", "2", "24", "4", "40", "6"}));
}

TEST_F(RunTableInWindow, SelectsTheRunsThatAreClicked)
{
  click(1);
  EXPECT_EQ(runs(), Runs{20});
  EXPECT_EQ(lastStep(), "Select 1 run: runs(20)");
  click(3, Qt::ShiftModifier);
  EXPECT_EQ(runs(), (Runs{20, 30, 40}));
  EXPECT_EQ(lastStep(), "Add 2 runs: runs(30, 40)");
  click(2, Qt::ControlModifier);
  EXPECT_EQ(runs(), (Runs{20, 40}));
  EXPECT_EQ(lastStep(), "Take away 1 run: runs(30)");
  EXPECT_EQ(steps().count(), 3);
}

TEST_F(RunTableInWindow, SelectsByOneStepWhatTheMouseIsDraggedOver)
{
  QTest::mousePress(view().viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(1));
  for (const int row : {2, 3, 4})
  {
    const QPoint place = placeOf(row);
    // The one of the test library moves without a button.
    QMouseEvent move(QEvent::MouseMove, place, view().viewport()->mapToGlobal(place), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &move);
    QTest::qWait(20);
    EXPECT_EQ(runs(), Runs{}) << "the button is still down";
  }
  QTest::mouseRelease(view().viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(4));
  QTest::qWait(20);
  EXPECT_EQ(runs(), (Runs{20, 30, 40, 50}));
  EXPECT_EQ(steps().count(), 1);
}

TEST_F(RunTableInWindow, SelectsByOneStepWhatKeysGoOver)
{
  click(0);
  view().setFocus();
  for (int i = 0; i < 3; ++i)
    QTest::keyClick(&view(), Qt::Key_Down, Qt::ShiftModifier);
  ASSERT_TRUE(QTest::qWaitFor([this] { return runs() == Runs{10, 20, 30, 40}; }, patience));
  EXPECT_EQ(steps().count(), 2);
}

TEST_F(RunTableInWindow, MarksWhatIsSelectedElsewhere)
{
  select({30, 60});
  EXPECT_EQ(marked(), (Runs{30, 60}));
  press(QKeySequence::Undo);
  EXPECT_EQ(marked(), Runs{});
  EXPECT_EQ(steps().count(), 1) << "marking selects nothing";
  clickHeader(2);
  clickHeader(2);
  EXPECT_EQ(cell(0, 0), "60");
  press(QKeySequence::Redo);
  EXPECT_EQ(marked(), (Runs{30, 60})) << "whatever the order";
  clickHeader(4);
  EXPECT_EQ(marked(), (Runs{30, 60})) << "also of one that comes later";
}

TEST_F(RunTableInWindow, IsSortedByNumbersAndMeansTheSameRunsThen)
{
  clickHeader(4);
  EXPECT_EQ(columnOf(4), (QStringList{"2", "4", "6", "8", "24", "40"}));
  EXPECT_EQ(columnOf(0), (QStringList{"20", "40", "60", "10", "30", "50"}));
  click(2);
  EXPECT_EQ(runs(), Runs{60});
  clickHeader(4);
  EXPECT_EQ(columnOf(4), (QStringList{"40", "24", "8", "6", "4", "2"}));
}

TEST_F(RunTableInWindow, PutsRunsWithoutAValueLast)
{
  open("gaps.csv", "run,time,k,X\n1,0,1,\n1,1,1,5\n2,0,2,1\n2,1,2,\n3,0,3,2\n3,1,3,4\n");
  clickHeader(4);
  ASSERT_EQ(names().value(4), "final(X)");
  EXPECT_EQ(columnOf(4), (QStringList{"4", "5", "–"}));
  clickHeader(4);
  EXPECT_EQ(columnOf(4), (QStringList{"5", "4", "–"}));
}

TEST_F(RunTableInWindow, IsCopiedInFullAndWritten)
{
  select({20, 60});
  view().setFocus();
  QTest::keyClick(&view(), Qt::Key_C, Qt::ControlModifier);
  const QString line = "run\tk\tmax(X)\tmean(X)\tfinal(X)\tmax(Y)\tmean(Y)\tfinal(Y)\n";
  // The mean of 1 + point % 3 over eight points is 15 / 8.
  EXPECT_EQ(QApplication::clipboard()->text(),
            line + "20\t0.5\t16\t9\t2\t4\t2.875\t3\n60\t2.5\t48\t27\t6\t8\t6.875\t7\n");
  clickButton("saveRuns");
  chooseIn(window, path("runs-out.csv"));
  const QByteArray written = contentOf(path("runs-out.csv"));
  EXPECT_EQ(written.count('\n'), 7);
  EXPECT_TRUE(written.startsWith("run,k,max(X),mean(X),final(X),max(Y),mean(Y),final(Y)\n"
                                 "10,0,8,4.5,8,3,1.875,2\n"))
      << written.toStdString();
}

TEST_F(RunTableInWindow, ShowsTheColumnsThatAreTicked)
{
  QMenu& menu = *window.findChild<QMenu*>("runTableColumns");
  for (QAction* action : menu.actions())
    if (action->text() == "Mean" || action->text() == "Final value" || action->text() == "Y" ||
        action->text() == "Number of peaks")
      action->trigger();
  EXPECT_EQ(names(), (QStringList{"Run", "k", "max(X)", "peaks(X)"}));
  EXPECT_EQ(cell(0, 3), "0") << "X only rises";
}

TEST_F(RunTableInWindow, ShowsTheCoursesOfARunThatIsDoubleClicked)
{
  const QPoint place = placeOf(3);
  select({10, 20});
  QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place);
  EXPECT_EQ(runs(), Runs{40});
  QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place);
  QTest::qWait(20);
  EXPECT_EQ(window.pages()->currentIndex(), 1);
  EXPECT_EQ(find<QSpinBox>("run")->text(), "40");
  EXPECT_EQ(runs(), (Runs{10, 20})) << "whoever looks at a run selects none";
}

TEST_F(RunTableInWindow, KeepsTheSelectionOfALongHistoryWhenARunIsDoubleClicked)
{
  const QPoint place = placeOf(3);
  for (int i = 0; i <= steps().undoLimit(); ++i)
    select(i % 2 == 0 ? Runs{10, 20} : Runs{30});
  ASSERT_EQ(steps().index(), steps().undoLimit());
  ASSERT_EQ(runs(), (Runs{10, 20}));
  QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place);
  EXPECT_EQ(runs(), Runs{40});
  QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, place);
  QTest::qWait(20);
  EXPECT_EQ(runs(), (Runs{10, 20}));
}

TEST_F(RunTableInWindow, HasTheGroupsOfTheRuns)
{
  EXPECT_FALSE(names().contains("Group"));
  group(2);
  QTest::qWait(20);
  ASSERT_TRUE(names().contains("Group"));
  const int column = names().indexOf("Group");
  EXPECT_EQ(columnOf(column), (QStringList{"1", "2", "1", "2", "1", "2"}));
}

TEST_F(RunTableInWindow, FollowsOtherStudiesAndValues)
{
  chooseStyle(xyPlot);
  tick("normaliseRuns");
  EXPECT_EQ(columnOf(2), (QStringList{"1", "1", "1", "1", "1", "1"})) << "the largest X";
  open("other.csv", sampleRuns());
  EXPECT_EQ(columnOf(0), (QStringList{"0", "1", "2"}));
  open("table.csv", "a,b\n1,2\n3,5\n");
  EXPECT_EQ(view().model()->rowCount(), 0);
  EXPECT_FALSE(view().isVisible()) << "a line says why";
}

TEST_F(RunTableInWindow, TakesALargeStudyAFewRunsAtATime)
{
  // Peaks of ten items take longer than the window may wait at once.
  std::ostringstream text;
  text << "run,time,k";
  for (int item = 0; item < 10; ++item)
    text << ",I" << item;
  text << '\n';
  for (int run = 0; run < 2000; ++run)
    for (int point = 0; point < 20; ++point)
    {
      text << run << ',' << point << ',' << run * 7 % 2000;
      for (int item = 0; item < 10; ++item)
        text << ',' << (run * 31 + point * 17 + item * 13) % 101;
      text << '\n';
    }
  open("large.csv", text.str());
  ASSERT_TRUE(QTest::qWaitFor([this] { return dock().isComplete(); }, patience));
  EXPECT_EQ(view().model()->rowCount(), 2000);
  select({5, 1999});
  EXPECT_EQ(marked(), (Runs{5, 1999}));
}

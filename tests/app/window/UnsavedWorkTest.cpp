#include "app/session/RunSelectionFile.h"
#include "app/styles/ViewerStyles.h"

#include <QDropEvent>
#include <QMenu>
#include <QMimeData>

#include "window/WorkInWindow.h"

using namespace Talmesh::app;

namespace
{

class UnsavedWork : public WorkInWindow
{
protected:
  /// Drops a file on the window, as users do.
  void drop(const QString& name)
  {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(name)});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    QDropEvent dropped(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &dropped);
  }

  QString otherRuns()
  {
    QFile file(path("others.csv"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(twoShapes(5)));
    return file.fileName();
  }

  void saveAndOpen(const char* name)
  {
    ASSERT_TRUE(window.saveSessionTo(path(name)));
    openIn(window, path(name));
  }
};

} // namespace

TEST_F(UnsavedWork, IsNoneInATableThatWasOnlyLookedAt)
{
  chooseStyle(selectionCdfPlot);
  tick("runBands");
  select({10});
  press(QKeySequence::Undo);
  EXPECT_TRUE(window.close());
  EXPECT_FALSE(window.isVisible());
}

TEST_F(UnsavedWork, IsAskedForBeforeTheWindowCloses)
{
  select({10, 30});
  EXPECT_FALSE(window.close());
  EXPECT_TRUE(window.isVisible());
  ASSERT_NE(leavingQuestion(), nullptr);
  EXPECT_EQ(leavingQuestion()->text(), "Save the work on \"runs.csv\"?");
  EXPECT_EQ(leavingQuestion()->informativeText(), "Not saved: the selection.");
  answer(leavingQuestion(), QMessageBox::Cancel);
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(runs(), (std::set<int>{10, 30}));
  press(QKeySequence(Qt::CTRL | Qt::Key_Q));
  answer(leavingQuestion(), QMessageBox::Discard);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(UnsavedWork, IsSavedWithItsGroupsWhereTheUserChooses)
{
  group(2);
  tick("groupMeans");
  tick("normaliseRuns");
  clickGroup(1);
  window.close();
  EXPECT_EQ(leavingQuestion()->informativeText(),
            "Not saved: the selection, the groups of runs, which runs are normalised.");
  answer(leavingQuestion(), QMessageBox::Save);
  EXPECT_TRUE(window.isVisible()) << "it is not saved yet";
  chooseIn(window, path("work"));
  EXPECT_FALSE(window.isVisible());

  MainWindow later;
  later.show();
  openIn(later, path("work.talmesh"));
  EXPECT_EQ(runsIn(later), (std::set<int>{20, 40, 60}));
  auto* list = later.findChild<QListWidget*>(QStringLiteral("clusterList"));
  ASSERT_EQ(list->count(), 2);
  EXPECT_EQ(list->item(1)->text(), "Group 2: 3 runs");
  for (const char* name : {"groupColours", "groupMeans", "normaliseRuns"})
    EXPECT_TRUE(later.findChild<QCheckBox*>(QLatin1String(name))->isChecked()) << name;
  EXPECT_FALSE(later.findChild<QCheckBox*>(QStringLiteral("runBands"))->isChecked());
  EXPECT_EQ(later.findChild<QSpinBox*>(QStringLiteral("clusterCount"))->value(), 2);
  emit list->itemClicked(list->item(0));
  EXPECT_EQ(runsIn(later), (std::set<int>{10, 30, 50}));
}

TEST_F(UnsavedWork, IsSavedToItsSessionWithoutAskingWhere)
{
  select({10});
  saveAndOpen("a.talmesh");
  select({20});
  window.close();
  answer(leavingQuestion(), QMessageBox::Save);
  EXPECT_FALSE(window.isVisible());
  MainWindow later;
  openIn(later, path("a.talmesh"));
  EXPECT_EQ(runsIn(later), std::set<int>{20});
}

TEST_F(UnsavedWork, StaysWhenItCannotBeSaved)
{
  QDir(folder.path()).mkdir(QStringLiteral("there"));
  saveAndOpen("there/a.talmesh");
  select({20});
  QDir(path("there")).removeRecursively();
  window.close();
  answer(leavingQuestion(), QMessageBox::Save);
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(runs(), std::set<int>{20});
}

TEST_F(UnsavedWork, IsAskedForWhileAComputedStudyIsShown)
{
  select({10, 20});
  find<QAction>("priors")->trigger();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  EXPECT_FALSE(leavingQuestion()) << "the runs stay at hand";
  window.close();
  answer(leavingQuestion(), QMessageBox::Save);
  chooseIn(window, path("aside.talmesh"));
  EXPECT_FALSE(window.isVisible());
  MainWindow later;
  openIn(later, path("aside.talmesh"));
  EXPECT_EQ(runsIn(later), (std::set<int>{10, 20}));
}

TEST_F(UnsavedWork, IsAskedForBeforeAnotherStudyTakesItsPlace)
{
  select({10});
  drop(otherRuns());
  EXPECT_FALSE(window.isLoading());
  answer(leavingQuestion(), QMessageBox::Cancel);
  EXPECT_FALSE(window.isLoading());
  EXPECT_EQ(runs(), std::set<int>{10});
  drop(otherRuns());
  answer(leavingQuestion(), QMessageBox::Save);
  chooseIn(window, path("kept.talmesh"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  EXPECT_EQ(window.windowTitle(), "others.csv - Talmesh Plot");
  find<QAction>("exampleCircuit")->trigger();
  EXPECT_TRUE(window.isLoading()) << "nothing was done to the others";
}

TEST_F(UnsavedWork, IsNoSelectionThatHasAFileOfItsOwn)
{
  select({10, 50});
  press(QKeySequence(QStringLiteral("Ctrl+Shift+S")));
  chooseIn(window, path("runs.json"));
  EXPECT_EQ(loadRunSelection(path("runs.json")).value().runs, (std::set<int>{10, 50}));
  EXPECT_TRUE(window.close());
}

TEST_F(UnsavedWork, IsAlsoHowASessionIsShown)
{
  saveAndOpen("a.talmesh");
  tick("runBands");
  window.close();
  ASSERT_NE(leavingQuestion(), nullptr);
  EXPECT_EQ(leavingQuestion()->informativeText(), "Not saved: how the plot is shown.");
  answer(leavingQuestion(), QMessageBox::Cancel);
  tick("runBands");
  EXPECT_TRUE(window.close());
}

TEST_F(UnsavedWork, IsNoneInASessionOfAnyStyleThatWasJustOpened)
{
  select({20, 40});
  for (const ViewerStyle& style : viewerStyles())
  {
    chooseStyle(style.style);
    saveAndOpen("a.talmesh");
    window.close();
    EXPECT_FALSE(window.isVisible()) << style.name;
    if (leavingQuestion())
      answer(leavingQuestion(), QMessageBox::Cancel);
    window.show();
  }
}

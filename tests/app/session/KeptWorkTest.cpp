#include "app/session/KeptWork.h"

#include "app/session/Session.h"
#include "app/window/SessionController.h"
#include "support/DiskFaults.h"

#include <QStatusBar>

#include <memory>

#include "window/WorkInWindow.h"

using namespace Talmesh::app;

namespace
{

constexpr int soon = 50; ///< milliseconds

class KeptWork : public WorkInWindow
{
protected:
  bool waitForFiles(int count)
  {
    return QTest::qWaitFor([&] { return keptFiles().size() == count; }, patience);
  }

  QString keptFile() { return QDir(state()).filePath(keptFiles().value(0)); }

  /// A window ends without a close event, as in a crash, with the runs 20 and 40 selected and two
  /// groups.
  void leaveWork(const QString& session = {})
  {
    group(2);
    select({20, 40});
    if (!session.isEmpty())
    {
      ASSERT_TRUE(window.saveSessionTo(session));
      select({20, 40, 60});
    }
    const QDir own(path("own"));
    window.sessionController().keepIn(own.path());
    window.sessionController().keepNow();
    const QStringList kept = own.entryList({QStringLiteral("*.talmesh")}, QDir::Files);
    ASSERT_EQ(kept.size(), 1);
    QDir().mkpath(state());
    // Without the lock, which goes with the program.
    ASSERT_TRUE(QFile::copy(own.filePath(kept.front()), QDir(state()).filePath(kept.front())));
  }

  QMessageBox* offer(MainWindow& shown)
  {
    shown.show();
    shown.sessionController().keepIn(state(), soon);
    return question(shown, "askAboutLeftWork");
  }

  bool saysThatItCannotBeKept()
  {
    return window.statusBar()->currentMessage().startsWith("Unsaved work cannot be kept");
  }

  void bringBackIn(MainWindow& shown)
  {
    answer(offer(shown), QStringLiteral("&Bring back"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !shown.isLoading(); }, patience));
    QTest::qWait(20);
  }
};

} // namespace

TEST_F(KeptWork, IsWrittenWhileItIsNotSaved)
{
  window.sessionController().keepIn(state(), soon);
  QTest::qWait(4 * soon);
  EXPECT_FALSE(QDir(state()).exists()) << "nothing was done";
  select({20});
  ASSERT_TRUE(waitForFiles(1));
  ASSERT_TRUE(QTest::qWaitFor([&] { return openSession(keptFile()).error().empty(); }, patience));
  const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther;
  EXPECT_FALSE(QFile::permissions(state()) & others);
  const QByteArray first = contentOf(keptFile());
  group(3);
  EXPECT_TRUE(QTest::qWaitFor([&] { return contentOf(keptFile()) != first; }, patience));
  EXPECT_EQ(keptFiles().size(), 1);
  ASSERT_TRUE(window.saveSessionTo(path("a.talmesh")));
  EXPECT_TRUE(keptFiles().isEmpty());
  select({30});
  ASSERT_TRUE(waitForFiles(1));
  window.close();
  answer(leavingQuestion(), QMessageBox::Discard);
  EXPECT_TRUE(keptFiles().isEmpty());
}

TEST_F(KeptWork, GoesWhenItIsUndone)
{
  window.sessionController().keepIn(state(), soon);
  select({20});
  ASSERT_TRUE(waitForFiles(1));
  press(QKeySequence::Undo);
  EXPECT_TRUE(waitForFiles(0));
}

TEST_F(KeptWork, IsBroughtBackWithSelectionAndGroups)
{
  leaveWork();
  MainWindow later;
  ASSERT_NE(offer(later), nullptr);
  EXPECT_EQ(question(later, "askAboutLeftWork")->text(),
            "Bring back the unsaved work on \"runs.csv\"?");
  answer(question(later, "askAboutLeftWork"), QStringLiteral("&Bring back"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !later.isLoading(); }, patience));
  QTest::qWait(20);
  EXPECT_EQ(later.windowTitle(), "runs.csv - Talmesh Plot");
  EXPECT_EQ(runsIn(later), (std::set<int>{20, 40}));
  EXPECT_EQ(later.findChild<QListWidget*>(QStringLiteral("clusterList"))->count(), 2);
  EXPECT_EQ(keptFiles().size(), 1) << "it is still not saved";
  later.close();
  answer(question(later, "askBeforeLeaving"), QMessageBox::Save);
  chooseIn(later, path("saved.talmesh"));
  EXPECT_FALSE(later.isVisible());
  EXPECT_TRUE(keptFiles().isEmpty());
  EXPECT_FALSE(RecentFiles().paths().join(' ').contains("work-"));
}

TEST_F(KeptWork, BelongsToItsSessionWhenItIsBroughtBack)
{
  leaveWork(path("a.talmesh"));
  MainWindow later;
  bringBackIn(later);
  EXPECT_EQ(runsIn(later), (std::set<int>{20, 40, 60}));
  later.close();
  answer(question(later, "askBeforeLeaving"), QMessageBox::Save);
  EXPECT_FALSE(later.isVisible());
  MainWindow last;
  openIn(last, path("a.talmesh"));
  EXPECT_EQ(runsIn(last), (std::set<int>{20, 40, 60}));
}

TEST_F(KeptWork, DoesNotOverwriteWhatWasSavedToItsSessionMeanwhile)
{
  leaveWork(path("a.talmesh"));
  MainWindow other;
  openIn(other, path("a.talmesh"));
  selectIn(other, {10});
  ASSERT_TRUE(other.saveSessionTo(path("a.talmesh")));
  MainWindow later;
  bringBackIn(later);
  later.close();
  answer(question(later, "askBeforeLeaving"), QMessageBox::Save);
  EXPECT_NE(question(later, "askBeforeOverwriting"), nullptr);
}

TEST_F(KeptWork, CanBeDiscardedOrLeftForLater)
{
  leaveWork();
  {
    MainWindow later;
    answer(offer(later), QStringLiteral("&Later"));
  }
  EXPECT_EQ(keptFiles().size(), 1);
  {
    MainWindow later;
    answer(offer(later), QMessageBox::Discard);
  }
  EXPECT_TRUE(keptFiles().isEmpty());
  MainWindow last;
  EXPECT_EQ(offer(last), nullptr);
}

TEST_F(KeptWork, IsNotOfferedWhileItsWindowIsOpen)
{
  window.sessionController().keepIn(state(), soon);
  select({20});
  ASSERT_TRUE(waitForFiles(1));
  MainWindow other;
  EXPECT_EQ(offer(other), nullptr);
}

TEST_F(KeptWork, SaysOnceThatItCannotBeKept)
{
  QFile blocked(path("state"));
  ASSERT_TRUE(blocked.open(QIODevice::WriteOnly));
  blocked.close();
  window.sessionController().keepIn(state(), soon);
  select({20});
  EXPECT_TRUE(QTest::qWaitFor([this] { return saysThatItCannotBeKept(); }, patience));
  window.statusBar()->clearMessage();
  QTest::qWait(4 * soon);
  EXPECT_FALSE(saysThatItCannotBeKept());
}

TEST_F(KeptWork, IsTriedAgainWhenMemoryHasRunOut)
{
  window.sessionController().keepIn(state(), soon);
  for (const int run : {20, 30})
  {
    const QByteArray before = keptFiles().isEmpty() ? QByteArray() : contentOf(keptFile());
    {
      // First while the file's lock is written, then in the thread that writes the file.
      const DiskFault fault(DiskCall::Sync, outOfMemory);
      select({run});
      EXPECT_TRUE(QTest::qWaitFor([this] { return saysThatItCannotBeKept(); }, 100 * soon));
      EXPECT_EQ(window.statusBar()->currentMessage(),
                "Unsaved work cannot be kept for later: there is not enough memory");
      EXPECT_EQ(keptFiles().isEmpty(), before.isEmpty());
    }
    window.statusBar()->clearMessage();
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return !keptFiles().isEmpty() && contentOf(keptFile()) != before; }, 100 * soon));
    EXPECT_EQ(openSession(keptFile()).error(), "");
  }
}

TEST_F(KeptWork, HasItsFolderBelowTheStateOfTheUser)
{
  const QByteArray before = qgetenv("XDG_STATE_HOME");
  const bool was = qEnvironmentVariableIsSet("XDG_STATE_HOME");
  qputenv("XDG_STATE_HOME", "/some/where");
  EXPECT_EQ(stateFolder(), "/some/where/talmesh-plot");
  qputenv("XDG_STATE_HOME", "not/absolute");
  EXPECT_EQ(stateFolder(), QDir::homePath() + "/.local/state/talmesh-plot");
  qunsetenv("XDG_STATE_HOME");
  EXPECT_EQ(stateFolder(), QDir::homePath() + "/.local/state/talmesh-plot");
  if (was)
    qputenv("XDG_STATE_HOME", before);
}

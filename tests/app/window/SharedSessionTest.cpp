#include "window/WorkInWindow.h"

using namespace Talmesh::app;

namespace
{

/// Two windows that show the session a.talmesh.
class SharedSession : public WorkInWindow
{
protected:
  SharedSession()
  {
    EXPECT_TRUE(window.saveSessionTo(session));
    openIn(window, session);
    other.show();
    openIn(other, session);
    QApplication::setActiveWindow(&window);
  }

  /// The other window saves a selection of its own.
  QByteArray saveInOther()
  {
    selectIn(other, {60});
    EXPECT_TRUE(other.saveSessionTo(session));
    return contentOf(session);
  }

  QMessageBox* overwritingQuestion() { return question(window, "askBeforeOverwriting"); }

  std::set<int> savedRuns()
  {
    MainWindow later;
    openIn(later, session);
    return runsIn(later);
  }

  const QString session = path("a.talmesh");
  MainWindow other;
};

} // namespace

TEST_F(SharedSession, IsNotOverwrittenWithoutAQuestion)
{
  select({10});
  const QByteArray theirs = saveInOther();
  press(QKeySequence::Save);
  ASSERT_NE(overwritingQuestion(), nullptr);
  EXPECT_EQ(overwritingQuestion()->text(),
            session + " has changed since this window opened or saved it.");
  answer(overwritingQuestion(), QMessageBox::Cancel);
  // Not EXPECT_EQ, which would print the files byte by byte.
  EXPECT_TRUE(contentOf(session) == theirs);
  press(QKeySequence::Save);
  answer(overwritingQuestion(), QStringLiteral("&Overwrite"));
  EXPECT_EQ(savedRuns(), std::set<int>{10});
}

TEST_F(SharedSession, CanBeSavedUnderAnotherNameInstead)
{
  select({10});
  const QByteArray theirs = saveInOther();
  window.close();
  answer(leavingQuestion(), QMessageBox::Save);
  EXPECT_TRUE(window.isVisible());
  answer(overwritingQuestion(), QStringLiteral("&Save under another name..."));
  chooseIn(window, path("mine.talmesh"));
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(contentOf(session) == theirs);
  EXPECT_TRUE(QFile::exists(path("mine.talmesh")));
}

TEST_F(SharedSession, IsAlsoAskedForAfterThisWindowHasSavedIt)
{
  select({10});
  press(QKeySequence::Save);
  EXPECT_FALSE(overwritingQuestion());
  EXPECT_EQ(savedRuns(), std::set<int>{10});
  saveInOther();
  select({20});
  press(QKeySequence::Save);
  answer(overwritingQuestion(), QStringLiteral("&Overwrite"));
  EXPECT_EQ(savedRuns(), std::set<int>{20});
  select({30});
  press(QKeySequence::Save);
  EXPECT_FALSE(overwritingQuestion()) << "what is there now is this window's own";
  EXPECT_EQ(savedRuns(), std::set<int>{30});
}

TEST_F(SharedSession, IsAskedForWhenChosenInTheDialog)
{
  select({10});
  const QByteArray theirs = saveInOther();
  press(QKeySequence(QStringLiteral("Ctrl+Alt+S")));
  chooseIn(window, session);
  answer(overwritingQuestion(), QMessageBox::Cancel);
  EXPECT_TRUE(contentOf(session) == theirs);
}

TEST_F(SharedSession, MayHaveBeenTouchedOrMovedAway)
{
  select({10});
  QFile file(session);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(
      file.setFileTime(QDateTime::currentDateTime().addDays(1), QFileDevice::FileModificationTime));
  file.close();
  press(QKeySequence::Save);
  EXPECT_FALSE(overwritingQuestion()) << "its content is the same";
  EXPECT_EQ(savedRuns(), std::set<int>{10});
  QFile::remove(session);
  select({20});
  press(QKeySequence::Save);
  EXPECT_FALSE(overwritingQuestion()) << "there is nothing to lose";
  EXPECT_EQ(savedRuns(), std::set<int>{20});
}

#include "app/window/ExportController.h"

#include <QDir>
#include <QMessageBox>
#include <QSignalSpy>
#include <QToolButton>

#include <algorithm>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "window/TasksInWindow.h"

using namespace Talmesh::app;

namespace
{

using ExportsInWindow = TasksInWindow;

/// A pipe that its writers find full until it is read.
class SlowPipe
{
public:
  explicit SlowPipe(const QString& path)
  {
    const QByteArray name = QFile::encodeName(path);
    EXPECT_EQ(mkfifo(name.constData(), 0600), 0);
    // Its own writer, so that it does not end with the first of the others.
    pipe = ::open(name.constData(), O_RDWR | O_NONBLOCK);
  }
  ~SlowPipe() { ::close(pipe); }
  SlowPipe(const SlowPipe&) = delete;
  SlowPipe& operator=(const SlowPipe&) = delete;

  bool holdsSomething() const
  {
    int bytes = 0;
    return ::ioctl(pipe, FIONREAD, &bytes) == 0 && bytes > 0;
  }
  /// All that is there.
  QByteArray read() const
  {
    QByteArray all;
    char bytes[4096];
    for (ssize_t got = 1; got > 0;)
    {
      got = ::read(pipe, bytes, sizeof bytes);
      all.append(bytes, static_cast<int>(std::max<ssize_t>(got, 0)));
    }
    return all;
  }

private:
  int pipe = -1;
};

} // namespace

TEST_F(ExportsInWindow, StaysAliveWhileATableIsWritten)
{
  open(noise(400, 500));
  const auto start = [this]
  {
    window->exportController().exportTo(path("table.csv"));
    ASSERT_TRUE(window->isBusy());
    EXPECT_TRUE(find<QToolButton>("cancelExport")->isVisible());
  };
  start();
  EXPECT_FALSE(QFile::exists(path("table.csv"))) << "appears when it is whole";
  expectHeartbeats(start);
  EXPECT_EQ(contentOf(path("table.csv")), tableAsText());
}

TEST_F(ExportsInWindow, WritesAFileAnewThoughItsCancelledWritingIsNotAtItsEndYet)
{
  open(noise(1000, 500));
  const QByteArray table = tableAsText();
  const SlowPipe pipe(path("table.csv"));
  window->exportController().exportTo(path("table.csv"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return pipe.holdsSomething(); }, patience));
  click("cancelExport");
  const QSignalSpy begun(window->exportController().findChild<TaskRunner*>(),
                         &TaskRunner::progressed);
  window->exportController().exportTo(path("table.csv"));
  EXPECT_FALSE(QTest::qWaitFor([&] { return !begun.isEmpty(); }, 200)) << "the first still writes";
  QByteArray written;
  const auto isRead = [&]
  {
    written += pipe.read();
    return !window->isBusy();
  };
  ASSERT_TRUE(QTest::qWaitFor(isRead, patience));
  written += pipe.read();
  EXPECT_GT(written.size(), table.size()) << "after what was written before the cancel";
  EXPECT_TRUE(written.endsWith(table)) << "and not between its bytes";
}

TEST_F(ExportsInWindow, WritesWhatWasShownThoughAnotherStudyIsOpened)
{
  open(noise(200, 500));
  const QByteArray table = tableAsText();
  window->exportController().exportTo(path("table.csv"));
  window->document().groups().normalise(true);
  openSample();
  EXPECT_TRUE(window->isBusy());
  ASSERT_TRUE(waitForEnd());
  EXPECT_EQ(contentOf(path("table.csv")), table);
}

TEST_F(ExportsInWindow, WritesToItsEndWhatAClosedWindowWasAskedFor)
{
  open(noise(200, 500));
  const QByteArray table = tableAsText();
  window->exportController().exportTo(path("first.csv"));
  window->exportController().exportTo(path("second.csv"));
  window->close();
  window.reset();
  EXPECT_EQ(contentOf(path("first.csv")), table);
  EXPECT_EQ(contentOf(path("second.csv")), table);
}

TEST_F(ExportsInWindow, ClosesWhenAllIsWritten)
{
  openUnchanged(noise(200, 500));
  const QByteArray table = tableAsText();
  window->exportController().exportTo(path("first.csv"));
  window->exportController().exportTo(path("second.csv"));
  EXPECT_FALSE(window->close());
  EXPECT_TRUE(window->isVisible());
  EXPECT_FALSE(window->close()) << "asked twice";
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, 20000));
  EXPECT_EQ(contentOf(path("first.csv")), table);
  EXPECT_EQ(contentOf(path("second.csv")), table);
}

TEST_F(ExportsInWindow, StaysToSayThatAFileCouldNotBeWrittenThoughItWasClosed)
{
  openUnchanged(noise(200, 500));
  window->exportController().exportTo(path("no/such/folder.csv"));
  window->exportController().exportTo(path("second.csv"));
  window->close();
  ASSERT_TRUE(waitForEnd());
  EXPECT_TRUE(window->isVisible());
  auto* box = window->findChild<QMessageBox*>();
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(box->text().startsWith(path("no/such/folder.csv") + ": "))
      << box->text().toStdString();
  EXPECT_TRUE(QFile::exists(path("second.csv")));
  delete box;
  EXPECT_TRUE(window->close());
}

TEST_F(ExportsInWindow, ClosesAtOnceWhenTheWritingIsCancelled)
{
  openUnchanged(noise(1000, 500));
  window->exportController().exportTo(path("table.csv"));
  EXPECT_FALSE(window->close());
  click("cancelExport");
  EXPECT_FALSE(window->isVisible());
  window.reset();
  EXPECT_FALSE(QFile::exists(path("table.csv")));
}

TEST_F(ExportsInWindow, WritesAllThoughOneIsAskedForWhenAnotherIsWritten)
{
  openSample();
  ExportController& exports = window->exportController();
  QObject::connect(&exports, &ExportController::written, &exports,
                   [&](const QString& written)
                   {
                     if (written == path("first.csv"))
                       exports.exportTo(path("third.csv"));
                   });
  exports.exportTo(path("first.csv"));
  exports.exportTo(path("second.csv"));
  ASSERT_TRUE(waitForEnd());
  for (const char* name : {"first.csv", "second.csv", "third.csv"})
    EXPECT_TRUE(QFile::exists(path(name))) << name;
}

TEST_F(ExportsInWindow, KeepsTheOldFileWhenItsWritingIsCancelled)
{
  {
    QFile old(path("table.csv"));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
  }
  open(noise(1000, 500));
  window->exportController().exportTo(path("table.csv"));
  window->exportController().exportTo(path("second.csv"));
  click("cancelExport");
  EXPECT_FALSE(window->isBusy());
  window.reset();
  EXPECT_EQ(contentOf(path("table.csv")), "old");
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("table.csv"));
}

TEST_F(ExportsInWindow, WritesSeveralFilesOneAfterAnother)
{
  openSample();
  for (const char* name : {"a.png", "b.pdf", "c.csv"})
    window->exportController().exportTo(path(name));
  ASSERT_TRUE(QTest::qWaitFor([this] { return QFile::exists(path("c.csv")); }, patience));
  for (const char* name : {"a.png", "b.pdf", "c.csv"})
    EXPECT_FALSE(contentOf(path(name)).isEmpty()) << name;
}

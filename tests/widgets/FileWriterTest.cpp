#include "widgets/FileWriter.h"

#include "support/ClosedFolder.h"
#include "support/Devices.h"
#include "support/DiskFaults.h"
#include "support/FullDisk.h"
#include "support/PipeReader.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QTemporaryDir>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <future>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

using Talmesh::writeFile;

namespace
{

QString textOf(int error)
{
  return QString::fromLocal8Bit(std::strerror(error));
}

class FileWriter : public ::testing::Test
{
protected:
  QString path(const char* name = "file") const { return folder.filePath(name); }
  QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

  static QString write(const QString& name, const QByteArray& bytes)
  {
    return writeFile(name, bytes.constData(), bytes.size());
  }

  QByteArray content(const char* name = "file") const
  {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
  }

  /// A pipe, and what is read from it until its writer leaves.
  std::future<QByteArray> readPipe(const char* name) const
  {
    const QByteArray file = QFile::encodeName(path(name));
    EXPECT_EQ(mkfifo(file.constData(), 0600), 0);
    return readingPipe(file);
  }

  bool isPipe(const char* name) const
  {
    struct stat info = {};
    return stat(QFile::encodeName(path(name)).constData(), &info) == 0 && S_ISFIFO(info.st_mode);
  }

  QTemporaryDir folder;
};

} // namespace

TEST_F(FileWriter, WritesAndReplaces)
{
  EXPECT_EQ(write(path(), QByteArray(100000, 'a')), "");
  EXPECT_EQ(write(path(), "new"), "");
  EXPECT_EQ(content(), "new");
  EXPECT_EQ(files(), QStringList("file"));
}

TEST_F(FileWriter, LeavesTheOldFileWhenTheDiskDoesNotKeepTheNewOne)
{
  EXPECT_EQ(write(path(), "old"), "");
  for (const int error : {EIO, ENOSPC, EDQUOT})
  {
    const DiskFault fault(DiskCall::Sync, error);
    const QString reason = write(path(), "new");
    EXPECT_GT(fault.calls(), 0);
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_FALSE(reason.contains(QLatin1String("Unknown"))) << reason.toStdString();
    EXPECT_EQ(content(), "old");
    EXPECT_EQ(files(), QStringList("file"));
  }
}

TEST_F(FileWriter, NeedsNoSyncWhereThereIsNone)
{
  const DiskFault fault(DiskCall::Sync, EINVAL);
  EXPECT_EQ(write(path(), "new"), "");
  EXPECT_EQ(content(), "new");
}

TEST_F(FileWriter, SaysWhyAFileCannotGrow)
{
  EXPECT_EQ(write(path(), "old"), "");
  for (const int size : {1001, 5000, 1000000})
  {
    const FullDisk full(1000);
    EXPECT_EQ(write(path(), QByteArray(size, 'n')), textOf(EFBIG)) << size;
  }
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(files(), QStringList("file"));
}

TEST_F(FileWriter, SaysWhyTheWholeFileCannotGetItsName)
{
  for (const int error : {EPERM, EIO, ENOSPC, EDQUOT})
  {
    const DiskFault fault(DiskCall::Link, error);
    const QString reason = write(path(), "new");
    // File systems without files that have no name need no link.
    if (fault.calls() == 0)
      GTEST_SKIP() << "This file system needs no link.";
    EXPECT_EQ(reason, textOf(error));
    EXPECT_EQ(files(), QStringList());
  }
  EXPECT_EQ(write(path(), "old"), "");
  const DiskFault fault(DiskCall::Link, EDQUOT);
  EXPECT_EQ(write(path(), "new"), textOf(EDQUOT));
  EXPECT_EQ(content(), "old");
}

TEST_F(FileWriter, LeavesTheOldFileWhenItsContentFails)
{
  EXPECT_EQ(write(path(), "old"), "");
  const auto refuse = [](QIODevice& device) { return device.write("new") == 3 && false; };
  EXPECT_EQ(writeFile(path(), refuse), "not all of it could be written");
  const auto needTooMuch = [](QIODevice& device) -> bool
  {
    device.write("new");
    throw std::bad_alloc();
  };
  EXPECT_THROW(writeFile(path(), needTooMuch), std::bad_alloc);
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(files(), QStringList("file"));
}

TEST_F(FileWriter, WritesOverAFileInAFolderThatTakesNoNewOnes)
{
  EXPECT_EQ(write(path(), QByteArray(3000000, 'o')), "");
  const ClosedFolder closed(folder.path());
  if (!closed.isClosed())
    GTEST_SKIP() << "Nothing closes a folder here.";
  EXPECT_NE(write(path("another"), "new"), "");
  EXPECT_EQ(write(path(), "new"), "");
  EXPECT_EQ(content(), "new");
  const QByteArray large(2500000, 'n');
  EXPECT_EQ(write(path(), large), "");
  EXPECT_TRUE(content() == large);
  EXPECT_EQ(files(), QStringList("file"));
}

TEST_F(FileWriter, LeavesTheOldFileInAFolderThatTakesNoNewOnesWhenItsContentFails)
{
  EXPECT_EQ(write(path(), "old"), "");
  const ClosedFolder closed(folder.path());
  if (!closed.isClosed())
    GTEST_SKIP() << "Nothing closes a folder here.";
  const auto refuse = [](QIODevice& device) { return device.write("new") == 3 && false; };
  EXPECT_EQ(writeFile(path(), refuse), "not all of it could be written");
  EXPECT_EQ(content(), "old");
}

TEST_F(FileWriter, KeepsThePermissionsOfTheOldFile)
{
  EXPECT_EQ(write(path(), "old"), "");
  const QFile::Permissions own = QFile::ReadOwner | QFile::WriteOwner;
  ASSERT_TRUE(QFile::setPermissions(path(), own));
  EXPECT_EQ(write(path(), "new"), "");
  const QFile::Permissions others = QFile::ReadGroup | QFile::ReadOther;
  EXPECT_EQ(QFile::permissions(path()) & (own | others), own);
}

TEST_F(FileWriter, FollowsAChainOfLinks)
{
  EXPECT_EQ(write(path("target"), "old"), "");
  ASSERT_TRUE(QFile::link(QStringLiteral("target"), path("second")));
  ASSERT_TRUE(QFile::link(QStringLiteral("second"), path("first")));
  EXPECT_EQ(write(path("first"), "new"), "");
  EXPECT_TRUE(QFileInfo(path("first")).isSymLink());
  EXPECT_TRUE(QFileInfo(path("second")).isSymLink());
  EXPECT_EQ(content("target"), "new");
}

TEST_F(FileWriter, MakesTheFileThatALinkNames)
{
  ASSERT_TRUE(QFile::link(path("target"), path("first")));
  EXPECT_EQ(write(path("first"), "new"), "");
  EXPECT_TRUE(QFileInfo(path("first")).isSymLink());
  EXPECT_EQ(content("target"), "new");
}

TEST_F(FileWriter, RefusesACircleOfLinks)
{
  ASSERT_TRUE(QFile::link(path("second"), path("first")));
  ASSERT_TRUE(QFile::link(path("first"), path("second")));
  EXPECT_EQ(write(path("first"), "new"), textOf(ELOOP));
  EXPECT_TRUE(QFileInfo(path("first")).isSymLink());
}

TEST_F(FileWriter, WritesIntoAPipe)
{
  const QByteArray large(1000000, 'p');
  std::future<QByteArray> read = readPipe("pipe");
  EXPECT_EQ(write(path("pipe"), large), "");
  EXPECT_TRUE(isPipe("pipe"));
  EXPECT_TRUE(read.get() == large);
}

TEST_F(FileWriter, WritesThroughALinkToAPipe)
{
  std::future<QByteArray> read = readPipe("pipe");
  ASSERT_TRUE(QFile::link(QStringLiteral("pipe"), path("link")));
  EXPECT_EQ(write(path("link"), "through"), "");
  EXPECT_TRUE(isPipe("pipe"));
  EXPECT_EQ(read.get(), "through");
}

TEST_F(FileWriter, OutlivesAReaderThatLeaves)
{
  const QByteArray pipe = QFile::encodeName(path("pipe"));
  ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
  const int reader = open(pipe.constData(), O_RDONLY | O_NONBLOCK);
  const auto leave = [reader](QIODevice& device)
  {
    close(reader);
    return device.write("late") == 4;
  };
  EXPECT_EQ(writeFile(path("pipe"), leave), textOf(EPIPE));
}

TEST_F(FileWriter, DoesNotWaitForEverForAReader)
{
  ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
  EXPECT_EQ(write(path("pipe"), "unread"), "no program reads from this pipe");
}

TEST_F(FileWriter, DoesNotWaitForEverForAReaderThatReadsNoMore)
{
  const QByteArray pipe = QFile::encodeName(path("pipe"));
  ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
  const int reader = open(pipe.constData(), O_RDONLY | O_NONBLOCK);
  std::promise<void> returned;
  // A writer that does wait is let go, with another error.
  const auto leaving = std::async(std::launch::async,
                                  [reader, isBack = returned.get_future()]
                                  {
                                    isBack.wait_for(std::chrono::seconds(20));
                                    close(reader);
                                  });
  EXPECT_EQ(write(path("pipe"), QByteArray(1000000, 'p')), "the reader of this pipe takes no more");
  returned.set_value();
}

TEST_F(FileWriter, WritesIntoDevices)
{
  const QString null = expendableDevice(folder.path(), nullDevice);
  const QString full = expendableDevice(folder.path(), fullDevice);
  if (null.isEmpty() || full.isEmpty())
    GTEST_SKIP() << "There is no device that may be lost.";
  ASSERT_TRUE(QFile::link(null, path("to null")));
  ASSERT_TRUE(QFile::link(full, path("to full")));
  for (const QString& device : {null, path("to null")})
    EXPECT_EQ(write(device, "bytes"), "");
  for (const QString& device : {full, path("to full")})
    EXPECT_EQ(write(device, "bytes"), textOf(ENOSPC));
  for (const QString& device : {null, full, path("to null"), path("to full")})
    EXPECT_FALSE(QFileInfo(device).isFile()) << device.toStdString();
}

TEST_F(FileWriter, LeavesAFolderAlone)
{
  EXPECT_EQ(write(folder.path(), "bytes"), textOf(EISDIR));
  EXPECT_NE(write(path("no/file"), "bytes"), "");
}

#include "app/session/SessionFile.h"

#include "support/FullDisk.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Talmesh::app;

namespace
{

const SessionParts small = {"{}", "dump"};

/// The bytes of `small`, by hand. The checksum is sha256sum's of the 30 bytes before it.
QByteArray smallBytes()
{
  return QByteArray::fromHex("8954414c4d455348" // \x89TALMESH
                             "00000002"         // version
                             "00000002"         // size of the settings
                             "0000000000000004" // size of the dump
                             "7b7d"             // {}
                             "64756d70"         // dump
                             "493fef2baae233c4c080320b1a819936"
                             "b7a345fa385a6f7cd50bec847b64a25e");
}

/// The same as programs wrote it that knew version 1 only.
QByteArray firstVersion()
{
  return QByteArray::fromHex("8954414c4d455348"
                             "00000001"
                             "00000002"
                             "0000000000000004"
                             "7b7d"
                             "64756d70"
                             "45935019b7db7f099c8fbeb45458d526"
                             "f9db62b078491ea79a39e383415d43b8");
}

/// Counts the bytes that are asked of it.
class CountingDevice : public QBuffer
{
public:
  explicit CountingDevice(QByteArray* bytes)
      : QBuffer(bytes)
  {
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
  }

  qint64 asked = 0;

protected:
  qint64 readData(char* data, qint64 most) override
  {
    asked += most;
    return QBuffer::readData(data, most);
  }
};

class SessionFile : public ::testing::Test
{
protected:
  QString path(const char* name = "study.talmesh") const
  {
    return folder.filePath(QString::fromUtf8(name));
  }

  QString write(const QByteArray& bytes, const char* name = "study.talmesh") const
  {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return path(name);
  }

  std::string errorOf(const QByteArray& bytes) const
  {
    const Result<ReadSessionParts> read = loadSessionFile(write(bytes));
    EXPECT_NE(read.error().empty(), !read.hasValue());
    return read.error();
  }

  QByteArray content() const
  {
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }

  QTemporaryDir folder;
};

SessionParts large()
{
  return {"{}", QByteArray(1 << 20, 'd')};
}

} // namespace

TEST_F(SessionFile, LoadsWhatWasSaved)
{
  const SessionParts saved = {"{\"name\": \"Gr\xc3\xbcn\"}", QByteArray("\0\xff dump", 7)};
  EXPECT_EQ(saveSessionFile(path(), saved), "");
  const Result<ReadSessionParts> read = loadSessionFile(path());
  EXPECT_EQ(read.error(), "");
  EXPECT_EQ(read.value().parts.settings, saved.settings);
  EXPECT_EQ(read.value().parts.dump, saved.dump);
}

TEST_F(SessionFile, KeepsItsFormat)
{
  EXPECT_EQ(saveSessionFile(path(), small), "");
  EXPECT_EQ(content().toHex(), smallBytes().toHex());
}

TEST_F(SessionFile, ReadsAFileMadeByHand)
{
  const Result<ReadSessionParts> read = loadSessionFile(write(smallBytes()));
  EXPECT_EQ(read.error(), "");
  EXPECT_EQ(read.value().parts.settings, small.settings);
  EXPECT_EQ(read.value().parts.dump, small.dump);
}

TEST_F(SessionFile, RefusesEveryFileThatIsCutShort)
{
  const QByteArray whole = smallBytes();
  EXPECT_EQ(errorOf(""), "this is not a session of Talmesh Plot");
  for (int size = 1; size < whole.size(); ++size)
    EXPECT_EQ(errorOf(whole.left(size)), "the session is cut short") << size;
}

TEST_F(SessionFile, RefusesEveryFileWithAChangedByte)
{
  for (int position = 0; position < smallBytes().size(); ++position)
    for (const int change : {0x01, 0x80, 0xff})
    {
      QByteArray bytes = smallBytes();
      bytes[position] = static_cast<char>(bytes[position] ^ change);
      EXPECT_NE(errorOf(bytes), "") << position;
    }
}

TEST_F(SessionFile, RefusesBytesBehindTheEnd)
{
  EXPECT_EQ(errorOf(smallBytes() + "x"), "the session is damaged");
}

TEST_F(SessionFile, ReadsNothingOfAFileThatWasNotWrittenToItsEnd)
{
  // States a dump of 16 MiB.
  write(QByteArray::fromHex("8954414c4d45534800000001000000020000000001000000") + "{}");
  QFile file(path());
  ASSERT_TRUE(file.resize(24 + 2 + (16 << 20) + 32));
  int reports = 0;
  const auto count = [&reports](double) { return ++reports > 0; };
  EXPECT_EQ(loadSessionFile(path(), count).error(), "the session is damaged");
  EXPECT_EQ(reports, 0);
}

TEST_F(SessionFile, ReadsFilesOfTheFirstVersion)
{
  const Result<ReadSessionParts> read = loadSessionFile(write(firstVersion()));
  ASSERT_EQ(read.error(), "");
  EXPECT_EQ(read.value().parts.settings, small.settings);
  EXPECT_EQ(read.value().parts.dump, small.dump);
  EXPECT_EQ(peekSettings(path()), small.settings);
}

TEST_F(SessionFile, SaysThatANewerVersionIsNeeded)
{
  QByteArray newer = smallBytes();
  newer[11] = 3;
  EXPECT_EQ(errorOf(newer), "the session was written by a newer version of this program");
  QByteArray none = smallBytes();
  none[11] = 0;
  EXPECT_EQ(errorOf(none), "the session is damaged");
}

TEST_F(SessionFile, RefusesOtherFiles)
{
  EXPECT_EQ(errorOf("time,X\n0,1\n"), "this is not a session of Talmesh Plot");
  EXPECT_EQ(errorOf(QByteArray(1000, '\0')), "this is not a session of Talmesh Plot");
}

TEST_F(SessionFile, TakesNoMemoryForSizesThatAreOnlyStated)
{
  const std::pair<const char*, const char*> files[] = {
      {"00000002000000007fffff00", "the session is cut short"},
      {"00400000000000007fffff00", "the session is cut short"},
      {"004000010000000000000004", "the session is damaged"},
      {"000000020000000080000000", "the session is damaged"},
      {"ffffffff0000000000000004", "the session is damaged"},
      {"00000002ffffffffffffffff", "the session is damaged"},
      {"000000028000000000000000", "the session is damaged"}};
  for (const auto& [sizes, error] : files)
  {
    QByteArray bytes = QByteArray::fromHex("8954414c4d45534800000001") + QByteArray::fromHex(sizes);
    EXPECT_EQ(errorOf(bytes), error) << sizes;
    // A device is asked for as much as there is memory for.
    CountingDevice device(&bytes);
    EXPECT_EQ(readSession(device).error(), error) << sizes;
    EXPECT_EQ(device.asked, 24) << sizes;
  }
}

TEST_F(SessionFile, SaysWhatIsNoFile)
{
  EXPECT_EQ(loadSessionFile(path()).error(), "there is no such file");
  EXPECT_EQ(loadSessionFile(folder.path()).error(), "this is not a file");
}

TEST_F(SessionFile, IsKnownByItsNameOrItsFirstBytes)
{
  EXPECT_TRUE(isSessionFile(path("missing.talmesh")));
  EXPECT_TRUE(isSessionFile(write("", "A.TALMESH")));
  EXPECT_TRUE(isSessionFile(write(smallBytes(), "renamed.csv")));
  EXPECT_FALSE(isSessionFile(write("time,X\n0,1\n", "runs.csv")));
  EXPECT_FALSE(isSessionFile(path("missing.csv")));
  EXPECT_FALSE(isSessionFile(folder.path()));
}

TEST_F(SessionFile, ReportsADeviceThatTakesNoMore)
{
  QBuffer closed;
  closed.open(QIODevice::ReadOnly);
  EXPECT_FALSE(writeSession(closed, small));
}

TEST_F(SessionFile, ReplacesAnOlderFile)
{
  EXPECT_EQ(saveSessionFile(path(), large()), "");
  EXPECT_EQ(saveSessionFile(path(), small), "");
  EXPECT_EQ(content(), smallBytes());
}

TEST_F(SessionFile, WritesNoMoreSettingsThanItReads)
{
  const QByteArray most(4 * 1024 * 1024, ' ');
  EXPECT_EQ(saveSessionFile(path(), {most, "dump"}), "");
  EXPECT_EQ(loadSessionFile(path()).value().parts.settings, most);
  EXPECT_EQ(saveSessionFile(path(), {most + ' ', "dump"}),
            path().toStdString() + ": the table is too large for a session");
  EXPECT_EQ(loadSessionFile(path()).value().parts.settings, most);
}

TEST_F(SessionFile, WritesNoTableThatCouldNotBeDumped)
{
  EXPECT_EQ(saveSessionFile(path(), {"{}", {}}),
            path().toStdString() + ": the table is too large for a session");
  EXPECT_EQ(files(), QStringList());
}

TEST_F(SessionFile, SaysThatAFolderIsMissing)
{
  const std::string start = path("no/study.talmesh").toStdString() + ": cannot be written: ";
  const std::string error = saveSessionFile(path("no/study.talmesh"), small);
  EXPECT_EQ(error.substr(0, start.size()), start);
  EXPECT_GT(error.size(), start.size());
}

TEST_F(SessionFile, LeavesTheOldFileWholeWhenTheDiskIsFull)
{
  EXPECT_EQ(saveSessionFile(path(), small), "");
  const SessionParts little = {"{}", QByteArray(5000, 'd')};
  for (const SessionParts& parts : {large(), little})
  {
    std::string error;
    {
      const FullDisk full(4096);
      error = saveSessionFile(path(), parts);
    }
    const std::string start = path().toStdString() + ": cannot be written: ";
    EXPECT_EQ(error.substr(0, start.size()), start);
    EXPECT_EQ(content(), smallBytes());
    EXPECT_EQ(files(), QStringList{"study.talmesh"});
  }
}

TEST_F(SessionFile, LeavesTheOldFileWholeWhenTheProgramDiesWhileWriting)
{
  EXPECT_EQ(saveSessionFile(path(), small), "");
  const SessionParts parts = large();
  const pid_t child = fork();
  if (child == 0)
  {
    // The signal of the size limit ends the child in the middle of its writing.
    const rlimit tight = {65536, 65536};
    setrlimit(RLIMIT_FSIZE, &tight);
    std::signal(SIGXFSZ, SIG_DFL);
    saveSessionFile(path(), parts);
    _exit(0);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(WTERMSIG(status), SIGXFSZ);
  EXPECT_EQ(content(), smallBytes());
  EXPECT_EQ(loadSessionFile(path()).error(), "");
}

#include "app/session/FileNameCodec.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

#include <fcntl.h>
#include <unistd.h>

using namespace Talmesh::app;

namespace
{

class FileNames : public ::testing::Test
{
protected:
  void SetUp() override
  {
    if (!FileNameCodec::findsAllNames)
      GTEST_SKIP() << "This version of Qt takes names for UTF-8.";
  }

  const FileNameCodec codec;
};

void expectReturn(const QByteArray& name)
{
  EXPECT_EQ(QFile::encodeName(QFile::decodeName(name)).toHex(), name.toHex());
}

} // namespace

TEST_F(FileNames, ThatAreUtf8AreReadAsTheyAre)
{
  const QByteArray name = "K\xC3\xA4se \xCE\xB2 \xE2\x82\xAC \xF0\x9D\x84\x9E.csv";
  EXPECT_EQ(QFile::decodeName(name), QString::fromUtf8(name));
  EXPECT_EQ(QFile::encodeName(QString::fromUtf8(name)), name);
}

TEST_F(FileNames, ComeBackWhateverTheirBytes)
{
  for (int first = 1; first < 256; ++first)
    for (int second = 1; second < 256; ++second)
    {
      const char pair[] = {static_cast<char>(first), static_cast<char>(second), 'x'};
      expectReturn(QByteArray(pair, 2));
      expectReturn(QByteArray(pair, 3));
    }
}

TEST_F(FileNames, ComeBackWhenTheyOnlyLookLikeUtf8)
{
  for (const char* name : {"\xEF\xBB\xBFmark first", "\xED\xA0\x80 surrogate", "\xED\xB3\xA9",
                           "\xC0\xAF overlong", "\xE0\x80\xAF", "\xF0\x80\x80\xAF",
                           "\xF4\x90\x80\x80 too large", "\xF0\x9D\x84 cut", "\xEF\xBF\xBD"})
    expectReturn(name);
}

TEST_F(FileNames, OfAnyBytesAreFoundAndWritten)
{
  const QTemporaryDir folder;
  const QByteArray name = QFile::encodeName(folder.path()) + "/caf\xE9.csv";
  const int file = open(name.constData(), O_WRONLY | O_CREAT, 0600);
  ASSERT_GE(file, 0);
  close(file);
  const QStringList found = QDir(folder.path()).entryList(QDir::Files);
  ASSERT_EQ(found.size(), 1);
  QFile same(folder.filePath(found.front()));
  ASSERT_TRUE(same.open(QIODevice::WriteOnly));
  same.write("written");
  same.close();
  EXPECT_EQ(QFileInfo(QFile::decodeName(name)).size(), 7);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(FileNames, OfOtherProgramsAreFound)
{
  const auto bytesOf = [](const char* url)
  { return QFile::encodeName(localFileOf(QUrl(QString::fromLatin1(url)))); };
  EXPECT_EQ(bytesOf("file:///tmp/caf%E9%20%25.csv"), "/tmp/caf\xE9 %.csv");
  EXPECT_EQ(bytesOf("file:///tmp/caf%C3%A9.csv"), "/tmp/caf\xC3\xA9.csv");
  EXPECT_EQ(bytesOf("file:///tmp/%EF%BF%BD.csv"), "/tmp/\xEF\xBF\xBD.csv");
  EXPECT_EQ(bytesOf("https://example.org/a.csv"), "");
}

#include "app/window/RecentFiles.h"

#include "app/session/FileNameCodec.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

using namespace Talmesh::app;

namespace
{

class RecentFilesOfATest : public ::testing::Test
{
protected:
  RecentFilesOfATest()
  {
    QCoreApplication::setOrganizationName(QStringLiteral("TalmeshTest"));
    QCoreApplication::setApplicationName(QStringLiteral("recent"));
    recent.clear();
  }

  ~RecentFilesOfATest() override { recent.clear(); }

  /// As a program that starts now finds them on the disk.
  QStringList pathsFoundLater()
  {
    QSettings().sync();
    const QTemporaryDir folder;
    const QFileInfo settings(QSettings().fileName());
    const QString home = settings.dir().path() + "/..";
    QDir(folder.path()).mkdir(settings.dir().dirName());
    EXPECT_TRUE(QFile::copy(settings.filePath(), folder.path() + '/' + settings.dir().dirName() +
                                                     '/' + settings.fileName()));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    EXPECT_TRUE(QSettings().fileName().startsWith(folder.path()));
    const QStringList found = recent.paths();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home);
    return found;
  }

  RecentFiles recent;
};

} // namespace

TEST_F(RecentFilesOfATest, PutsTheLatestFirst)
{
  recent.add(QStringLiteral("/a.csv"));
  recent.add(QStringLiteral("/b.csv"));
  EXPECT_EQ(recent.paths(), (QStringList{"/b.csv", "/a.csv"}));
}

TEST_F(RecentFilesOfATest, KeepsEachFileOnce)
{
  recent.add(QStringLiteral("/a.csv"));
  recent.add(QStringLiteral("/b.csv"));
  recent.add(QStringLiteral("/a.csv"));
  EXPECT_EQ(recent.paths(), (QStringList{"/a.csv", "/b.csv"}));
}

TEST_F(RecentFilesOfATest, ForgetsTheOldest)
{
  for (int i = 0; i < 12; ++i)
    recent.add(QStringLiteral("/%1.csv").arg(i));
  EXPECT_EQ(recent.paths().size(), RecentFiles::most);
  EXPECT_EQ(recent.paths().front(), "/11.csv");
}

TEST_F(RecentFilesOfATest, KeepsAbsolutePaths)
{
  recent.add(QStringLiteral("a.csv"));
  EXPECT_EQ(recent.paths().front(), QDir::current().absoluteFilePath(QStringLiteral("a.csv")));
}

TEST_F(RecentFilesOfATest, ForgetsAFileThatIsGone)
{
  recent.add(QStringLiteral("/a.csv"));
  recent.remove(QStringLiteral("/a.csv"));
  EXPECT_TRUE(recent.paths().isEmpty());
}

TEST_F(RecentFilesOfATest, KeepsNamesThatAreNotUtf8)
{
  if (!FileNameCodec::findsAllNames)
    GTEST_SKIP() << "This version of Qt takes names for UTF-8.";
  const FileNameCodec codec;
  const QByteArray name = "/caf\xE9 50%25 K\xC3\xA4se, \"b\".csv";
  recent.add(QFile::decodeName(name));
  recent.add(QStringLiteral("/@b.csv"));
  const QStringList found = pathsFoundLater();
  ASSERT_EQ(found.size(), 2);
  EXPECT_EQ(found.front(), "/@b.csv");
  EXPECT_EQ(QFile::encodeName(found.back()).toHex(), name.toHex());
  recent.remove(QFile::decodeName(name));
  EXPECT_EQ(recent.paths().size(), 1);
}

#include "app/RecentFiles.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>

using Talmesh::app::RecentFiles;

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

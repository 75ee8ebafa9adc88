#include "widgets/TableExport.h"

#include "plot/PlotContainer.h"
#include "support/Devices.h"
#include "support/FullDisk.h"
#include "support/SampleTables.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <unistd.h>

namespace
{

/// While it lives, files that only their owner may write are written by nobody.
class Unprivileged
{
public:
  Unprivileged()
      : user(geteuid())
  {
    if (user == 0)
    {
      EXPECT_EQ(seteuid(65534), 0);
    }
  }
  ~Unprivileged() { EXPECT_EQ(seteuid(user), 0); }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;

private:
  uid_t user;
};

/// For everyone.
constexpr QFile::Permissions readable = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions writable = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
constexpr QFile::Permissions enterable = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

class TableExport : public ::testing::Test
{
protected:
  TableExport()
  {
    container.setPlotData(plainTable());
    const std::unique_ptr<char[]> text(container.saveData("", true));
    whole = text.get();
  }

  QString path(const char* name = "table.csv") const { return folder.filePath(name); }
  QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }

  void write(const QByteArray& content, const char* name = "table.csv") const
  {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
  }

  static void setPermissions(const QString& name, QFile::Permissions permissions)
  {
    ASSERT_TRUE(QFile::setPermissions(name, permissions));
  }

  QByteArray content(const char* name = "table.csv") const
  {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
  }

  PlotContainer container{nullptr};
  QByteArray whole;
  QTemporaryDir folder;
};

TEST_F(TableExport, WritesTheWholeTable)
{
  ASSERT_TRUE(exportTable(container, path()));
  EXPECT_EQ(content(), whole);
  EXPECT_GT(whole.count('\n'), 1);
}

TEST_F(TableExport, WritesTheEmptyTable)
{
  PlotContainer empty(nullptr);
  EXPECT_TRUE(exportTable(empty, path()));
  EXPECT_EQ(content().trimmed(), QByteArray());
}

TEST_F(TableExport, ReplacesAnOlderFile)
{
  write(QByteArray(10000, 'x'));
  ASSERT_TRUE(exportTable(container, path()));
  EXPECT_EQ(content(), whole);
  EXPECT_EQ(files(), QStringList("table.csv"));
}

TEST_F(TableExport, NoticesThatTheFolderIsMissing)
{
  EXPECT_FALSE(exportTable(container, path("missing/table.csv")));
}

TEST_F(TableExport, LeavesTheOldFileWholeWhenTheDiskIsFull)
{
  write("old");
  bool written = true;
  {
    const FullDisk full(static_cast<rlim_t>(whole.size()) - 1);
    written = exportTable(container, path());
  }
  EXPECT_FALSE(written);
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(files(), QStringList("table.csv"));
}

TEST_F(TableExport, LeavesTheOldFileWholeWithoutPermission)
{
  write("old");
  setPermissions(path(), readable);
  setPermissions(folder.path(), readable | enterable);
  bool written = true;
  {
    const Unprivileged nobody;
    written = exportTable(container, path());
  }
  EXPECT_FALSE(written);
  EXPECT_EQ(content(), "old");
  EXPECT_EQ(files(), QStringList("table.csv"));
  setPermissions(folder.path(), readable | writable | enterable);
}

TEST_F(TableExport, WritesIntoAFileWhoseFolderTakesNoOther)
{
  write("old, and longer than what takes its place" + QByteArray(10000, 'x'));
  setPermissions(path(), readable | writable);
  setPermissions(folder.path(), readable | enterable);
  bool written = false;
  {
    const Unprivileged nobody;
    written = exportTable(container, path());
  }
  EXPECT_TRUE(written);
  EXPECT_EQ(content(), whole);
  setPermissions(folder.path(), readable | writable | enterable);
}

TEST_F(TableExport, FollowsALink)
{
  write("old", "target.csv");
  ASSERT_TRUE(QFile::link(path("target.csv"), path()));
  ASSERT_TRUE(exportTable(container, path()));
  EXPECT_TRUE(QFileInfo(path()).isSymLink());
  EXPECT_EQ(content("target.csv"), whole);
}

TEST_F(TableExport, WritesIntoDevices)
{
  const QString null = expendableDevice(folder.path(), nullDevice);
  const QString full = expendableDevice(folder.path(), fullDevice);
  if (null.isEmpty() || full.isEmpty())
    GTEST_SKIP() << "There is no device that may be lost.";
  EXPECT_TRUE(exportTable(container, null));
  EXPECT_FALSE(exportTable(container, full));
  EXPECT_FALSE(QFileInfo(null).isFile());
}

} // namespace

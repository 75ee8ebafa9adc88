#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "EndedScript.h"

namespace
{

/// The script in a tree of its own, where packages and build are there already, the display is not,
/// and the viewer prints its arguments.
class RunScript : public ::testing::Test
{
protected:
  RunScript()
  {
    EXPECT_TRUE(QFile::copy(sourceTree + "/run", folder.filePath("run")));
    EXPECT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("cmake")));
    QFile setup(folder.filePath("cmake/setup.sh"));
    EXPECT_TRUE(setup.open(QIODevice::WriteOnly));
    setup.write(("source '" + sourceTree + "/cmake/setup.sh'\n").toUtf8());
    setup.write("root=$(cd \"$(dirname \"${BASH_SOURCE[0]}\")/..\" && pwd)\n"
                "install_packages() { :; }\n"
                "build() { :; }\n"
                "has_display() { return 1; }\n"
                "on_virtual_display() { shift; printf '%s|' \"$@\"; }\n");
  }

  QString argumentsFor(const QStringList& given)
  {
    const EndedScript ended = bash(QStringList{folder.filePath("run")} + given);
    EXPECT_EQ(ended.status, 0) << ended.errors.toStdString();
    return QString(ended.output).replace(folder.path() + '/', QString());
  }

  QTemporaryDir folder;
};

} // namespace

TEST_F(RunScript, DrawsEveryViewWithoutADisplay)
{
  EXPECT_EQ(argumentsFor({}), "--gallery|gallery|");
}

TEST_F(RunScript, DrawsAFileWithoutADisplay)
{
  EXPECT_EQ(argumentsFor({"a b.csv", "--y", "X"}), "--export|gallery/plot.png|a b.csv|--y|X|");
}

TEST_F(RunScript, LeavesNamesBehindTwoDashesAlone)
{
  EXPECT_EQ(argumentsFor({"--", "x.csv"}), "--export|gallery/plot.png|--|x.csv|");
  EXPECT_EQ(argumentsFor({"--", "--help"}), "--export|gallery/plot.png|--|--help|");
  EXPECT_EQ(argumentsFor({"my --export list.csv"}),
            "--export|gallery/plot.png|my --export list.csv|");
}

TEST_F(RunScript, LeavesArgumentsAloneThatAskForFilesOrText)
{
  EXPECT_EQ(argumentsFor({"x.csv", "--export", "x.png"}), "x.csv|--export|x.png|");
  EXPECT_EQ(argumentsFor({"x.csv", "--export=x.png"}), "x.csv|--export=x.png|");
  EXPECT_EQ(argumentsFor({"--gallery", "out"}), "--gallery|out|");
  EXPECT_EQ(argumentsFor({"--help"}), "--help|");
  EXPECT_EQ(argumentsFor({"-h"}), "-h|");
  EXPECT_EQ(argumentsFor({"--version"}), "--version|");
}

TEST(SetupScript, SaysInOneLineWhoMayInstallWhatIsMissing)
{
  const QTemporaryDir empty;
  const QString script = "source '" + sourceTree +
                         "/cmake/setup.sh'\n"
                         "missing_packages() { echo first-package; echo second-package; }\n"
                         "is_root() { return 1; }\n"
                         "apt-get() { echo 'nothing may be installed'; }\n"
                         "dpkg-query() { :; }\n"
                         "PATH='" +
                         empty.path() + "' install_packages\n";
  const EndedScript ended = bash({"-c", script});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.output, "");
  EXPECT_EQ(ended.errors, "Neither root nor sudo: let an administrator install first-package "
                          "second-package\n");
}

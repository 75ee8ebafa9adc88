#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "EndedScript.h"

namespace
{

/// The script in a tree of its own, where building, ctest, the formatter and the fuzzers print what
/// they are asked for, and fail when that matches the pattern
/// FAILING.
class TestScript : public ::testing::Test
{
protected:
  TestScript()
  {
    EXPECT_TRUE(QFile::copy(sourceTree + "/test", folder.filePath("test")));
    EXPECT_TRUE(QDir(folder.path()).mkdir(".ci"));
    EXPECT_TRUE(QFile::copy(sourceTree + "/.ci/run", folder.filePath(".ci/run")));
    write("cmake/setup.sh", "source '" + sourceTree +
                                "/cmake/setup.sh'\n"
                                "root=$(cd \"$(dirname \"${BASH_SOURCE[0]}\")/..\" && pwd)\n"
                                "install_packages() { :; }\n"
                                "build() { told build \"$@\"; }\n"
                                "on_virtual_display() { told \"$@\"; }\n"
                                "ctest() { told ctest \"$@\"; }\n"
                                "PATH=$root/tools:$PATH\n");
    write("tools/told", "#!/bin/sh\n"
                        "echo \"$*\" | sed \"s|$PWD/||g\"\n"
                        "case \"$*\" in $FAILING) exit 1 ;; esac\n");
    formatterOfVersion("14.0.6");
    for (const char* name : {"container", "session"})
    {
      write(QStringLiteral("fuzz/corpus/%1/seed").arg(name), "");
      write(QStringLiteral("build/fuzz/bin/fuzz_%1").arg(name),
            "#!/bin/sh\nfor last; do :; done\ntold ${0##*/} $last\n");
    }
    write("plot/Chart.cpp", "");
  }

  void formatterOfVersion(const QString& version)
  {
    for (const char* name : {"clang-format", "clang-format-14"})
    {
      write(QStringLiteral("tools/") + name,
            "#!/bin/sh\n"
            "[ \"$1\" = --version ] && echo \"clang-format version " +
                version +
                "\" && exit\n"
                "for last; do :; done\n"
                "told format \"$last\"\n");
    }
  }

  void write(const QString& name, const QString& text)
  {
    const QString path = folder.filePath(name);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
    file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
  }

  EndedScript run(const QString& arguments, const QString& failing = QStringLiteral("nothing"))
  {
    return bash({"-c", "FAILING='" + failing + "' '" + folder.filePath("test") + "' " + arguments});
  }

  QTemporaryDir folder;
};

const QString fastChecks =
    QStringLiteral("format ./plot/Chart.cpp\n"
                   "build dev test_architecture\n"
                   "ctest --preset dev -R ^(architecture|translations)\\.\n");
const QString tests = QStringLiteral("build dev\nctest --preset dev\n");
const QString testsOrAgain =
    QStringLiteral("build dev\nctest --preset dev --repeat until-pass:2\n");
const QString fuzzers = QStringLiteral("build fuzz fuzzers\n"
                                       "fuzz_container fuzz/corpus/container\n"
                                       "fuzz_session fuzz/corpus/session\n");
const QString readers =
    QStringLiteral("build asan test_app test_plot\nctest --preset asan -L ^readers$\n");

} // namespace

TEST_F(TestScript, RunsTheStagesThatItIsAskedFor)
{
  EXPECT_EQ(run("").output, fastChecks + tests);
  EXPECT_EQ(run("--fast").output, fastChecks);
  EXPECT_EQ(run("--fuzz").output, fuzzers);
  EXPECT_EQ(run("--readers").output, readers);
  EXPECT_EQ(run("--asan").output, "build asan\nctest --preset asan\n");
  const EndedScript all = run("--all");
  EXPECT_EQ(all.output, fastChecks + testsOrAgain + fuzzers + readers);
  EXPECT_EQ(all.status, 0);
}

TEST_F(TestScript, IsRunWholeForEveryChange)
{
  const EndedScript sound = bash({folder.filePath(".ci/run")});
  EXPECT_EQ(sound.output, fastChecks + testsOrAgain + fuzzers + readers);
  EXPECT_EQ(sound.status, 0);
  const EndedScript failing =
      bash({"-c", "FAILING='*readers$' '" + folder.filePath(".ci/run") + "'"});
  EXPECT_NE(failing.status, 0);
}

TEST_F(TestScript, HandsOtherArgumentsToCtestOnly)
{
  EXPECT_EQ(run("-R LineSet").output, "build dev\nctest --preset dev -R LineSet\n");
  EXPECT_EQ(run("--asan -R LineSet").output, "build asan\nctest --preset asan -R LineSet\n");
}

TEST_F(TestScript, EndsAtTheFirstStageThatFailsAndNamesIt)
{
  const struct
  {
    const char* failing;
    const char* stage;
    const char* last;
  } stages[]{
      {"*Chart.cpp", "check_format", "format ./plot/Chart.cpp\n"},
      {"*architecture|*", "check_rules", "translations)\\.\n"},
      {"*until-pass:2", "run_tests --repeat until-pass:2",
       "\nctest --preset dev --repeat until-pass:2\n"},
      {"fuzz_container*", "run_fuzzers", "\nfuzz_container fuzz/corpus/container\n"},
      {"*readers$", "run_readers", "-L ^readers$\n"},
  };
  for (const auto& stage : stages)
  {
    SCOPED_TRACE(stage.stage);
    const EndedScript ended = run("--all", stage.failing);
    EXPECT_NE(ended.status, 0);
    EXPECT_TRUE(ended.output.endsWith(stage.last)) << ended.output.toStdString();
    EXPECT_TRUE(ended.errors.endsWith(QStringLiteral("FAILED: %1\n").arg(stage.stage)))
        << ended.errors.toStdString();
  }
}

TEST_F(TestScript, FailsWhereSomethingDoesNotBuild)
{
  for (const char* argument : {"--fast", "-R LineSet", "--fuzz", "--readers", "--asan"})
  {
    const EndedScript ended = run(argument, QStringLiteral("build*"));
    EXPECT_NE(ended.status, 0) << argument;
    EXPECT_FALSE(ended.output.contains("ctest")) << argument;
  }
}

TEST_F(TestScript, SaysThatTheFormatIsNotCheckedByAnotherVersion)
{
  formatterOfVersion("19.1.7");
  const EndedScript ended = run("--fast");
  EXPECT_EQ(ended.status, 0);
  EXPECT_FALSE(ended.output.contains("plot/Chart.cpp"));
  EXPECT_TRUE(ended.errors.contains("The format is not checked: there is no clang-format 14.\n"));
}

#include "support/Pictures.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include <vector>

#include "RunningProgram.h"
#include "SampleStudies.h"

namespace
{

class ProgramFaults : public RunningProgram
{
};

} // namespace

TEST_F(ProgramFaults, SaysThatHelpAndVersionFoundNoRoom)
{
  for (const char* option : {"--help", "--version"})
  {
    const Ended ended = runInShell(QStringLiteral("exec \"$0\" ") + option + " > /dev/full");
    EXPECT_EQ(ended.status, 1) << option;
    EXPECT_EQ(ended.errors.toStdString(),
              "talmesh-plot: cannot write the output: No space left on device\n");
  }
}

TEST_F(ProgramFaults, OpensAndWritesFilesWhoseNamesAreNotUtf8)
{
  write("runs.csv", sampleRuns());
  const Ended ended = runInShell(R"(cd ')" + folder.path() + R"(' || exit
name=$(printf 'caf\351')
mv runs.csv "$name.csv"
"$0" "$name.csv" --export "$name-2.csv" --export "$name.png" --export "$name.pdf" || exit
rm "$name.csv"
for suffix in -2.csv .png .pdf; do mv "$name$suffix" "plot$suffix" || exit; done)");
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors.toStdString(), "");
  EXPECT_TRUE(contentOf(path("plot-2.csv")).startsWith("\"Molecule: X\",\"Molecule: Y\""));
  EXPECT_EQ(QImage(path("plot.png")).size(), QSize(1000, 700));
  EXPECT_TRUE(contentOf(path("plot.pdf")).startsWith("%PDF"));
}

TEST_F(ProgramFaults, SaysWhereItCannotWrite)
{
  const QString csv = write("runs.csv", sampleRuns());
  const Ended ended = run({csv, "--export", path("nowhere/plot.png")});
  EXPECT_EQ(ended.status, 1);
  EXPECT_TRUE(
      ended.errors.startsWith(("talmesh-plot: " + path("nowhere/plot.png") + ": ").toUtf8()));
  EXPECT_EQ(ended.errors.count('\n'), 1);
}

TEST_F(ProgramFaults, LeavesAnOldFileWholeWhenItCannotWrite)
{
  const QString csv = write("runs.csv", sampleRuns());
  for (const char* name : {"old.png", "old.pdf", "old.csv"})
  {
    const QString old = write(name, "an old file");
    // The new one would be larger than any file may be, as on a full disk.
    const Ended ended = run({csv, "--export", old}, {100});
    EXPECT_FALSE(ended.crashed) << name;
    EXPECT_EQ(ended.status, 1) << name;
    EXPECT_TRUE(ended.errors.startsWith(("talmesh-plot: " + old + ": ").toUtf8()))
        << ended.errors.toStdString();
    EXPECT_EQ(contentOf(old), "an old file") << name;
  }
}

TEST_F(ProgramFaults, SaysThatThereIsNoDisplay)
{
  environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":99999"));
  environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
  environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
  expectError({"--export", path("plot.png")}, "the display cannot be opened");
}

TEST_F(ProgramFaults, EndsClearlyHoweverShortMemoryIs)
{
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "The sanitizer takes addresses without bound.";
#endif
  const QString csv = write("runs.csv", sampleRuns(500, 1000));
  int withoutMemory = 0;
  std::vector<int> statuses;
  for (const rlim_t megabytes : {300, 700, 730, 740, 800, 850, 900, 905, 975, 1050, 1100, 6000})
  {
    QFile::remove(path("plot.png"));
    const Ended ended = run({csv, "--export", path("plot.png")}, {RLIM_INFINITY, megabytes << 20U});
    EXPECT_FALSE(ended.crashed) << megabytes;
    statuses.push_back(ended.status);
    if (ended.status == 0)
    {
      EXPECT_EQ(ended.errors.toStdString(), "") << megabytes;
      EXPECT_EQ(QImage(path("plot.png")).size(), QSize(1000, 700)) << megabytes;
      continue;
    }
    EXPECT_EQ(ended.status, 1) << megabytes;
    // Libraries may have their word, too, in threads of their own.
    const QByteArray errors = '\n' + ended.errors;
    const QByteArray reason = errors.mid(errors.indexOf("\ntalmesh-plot: ") + 1);
    EXPECT_EQ(errors.count("\ntalmesh-plot: "), 1) << megabytes << errors.toStdString();
    EXPECT_FALSE(QFile::exists(path("plot.png"))) << megabytes;
    withoutMemory += reason.left(reason.indexOf('\n')).contains("memory") ? 1 : 0;
  }
  EXPECT_EQ(statuses.front(), 1);
  EXPECT_EQ(statuses.back(), 0);
  EXPECT_GE(withoutMemory, 5) << "the limits lie between the start and success";
}

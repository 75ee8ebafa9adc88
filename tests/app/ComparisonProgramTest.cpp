#include "stats/RunComparison.h"
#include "support/Pictures.h"

#include <gtest/gtest.h>

#include <QFile>

#include <sstream>
#include <string>
#include <vector>

#include "RunningProgram.h"

namespace stats = Talmesh::stats;

namespace
{

/// Twelve runs over three points; k rises with the run, s has four values.
std::string twelveRuns()
{
  std::ostringstream text;
  text << "run,time,k,s,X\n";
  for (int run = 0; run < 12; ++run)
    for (int point = 0; point < 3; ++point)
      text << run << ',' << point << ',' << 0.1 * run << ',' << run % 4 << ',' << run + point
           << '\n';
  return text.str();
}

std::string sixSetsOfFour()
{
  std::ostringstream text;
  text << "run,time,k,X\n";
  for (int run = 0; run < 24; ++run)
    for (int point = 0; point < 3; ++point)
      text << run << ',' << point << ',' << run / 4 << ',' << run + point << '\n';
  return text.str();
}

/// Saltelli's design of a and b for eight base samples, with a column that follows from both.
std::string designWithASum()
{
  std::ostringstream text;
  text << "run,time,a,b,sum,X\n";
  for (int run = 0; run < 32; ++run)
  {
    const int sample = run / 4;
    const int position = run % 4;
    const double a = position == 1 || position == 3 ? 50 + 3 * sample : 7 * sample % 8;
    const double b = position >= 2 ? 20 + 5 * sample % 8 : 9 - sample;
    for (int point = 0; point < 2; ++point)
      text << run << ',' << point << ',' << a << ',' << b << ',' << a + 100 * b << ','
           << run % 5 + point << '\n';
  }
  return text.str();
}

class ComparisonProgram : public RunningProgram
{
protected:
  /// The cells of each line; no name has a comma in these studies.
  std::vector<QStringList> comparison(const QStringList& arguments)
  {
    expectSuccess(arguments + QStringList{"--compare", path("out.csv")});
    std::vector<QStringList> lines;
    for (const QByteArray& line : contentOf(path("out.csv")).trimmed().split('\n'))
      lines.push_back(QString::fromUtf8(line).split(QLatin1Char(',')));
    return lines;
  }

  void removeDisplay()
  {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"})
      environment.remove(QLatin1String(name));
  }
};

} // namespace

TEST_F(ComparisonProgram, WritesTheTableWithAllDigits)
{
  const QString csv = write("runs.csv", twelveRuns());
  const auto lines = comparison({csv, "--select", "max(X) > 9.5", "--select", "run = 3"});
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0].join(QLatin1Char(' ')),
            "parameter selected others D D_low D_high p p_adjusted method direction superiority "
            "median_difference V");
  std::vector<double> k, s;
  std::vector<char> selected;
  for (int run = 0; run < 12; ++run)
  {
    k.push_back(run);
    s.push_back(run % 4);
    selected.push_back(run + 2 > 9.5 || run == 3 ? 1 : 0);
  }
  const auto rows = stats::compareRuns({k, s}, selected).parameters;
  EXPECT_EQ(lines[1][0], "k");
  EXPECT_EQ(lines[1][1], "5");
  EXPECT_EQ(lines[1][2], "7");
  EXPECT_EQ(lines[1][3].toDouble(), rows[0].distance);
  EXPECT_EQ(lines[1][4].toDouble(), rows[0].interval.low);
  EXPECT_EQ(lines[1][6].toDouble(), rows[0].p);
  EXPECT_EQ(lines[1][7].toDouble(), rows[0].adjusted);
  EXPECT_EQ(lines[1][8], "Kolmogorov-Smirnov (exact)");
  EXPECT_EQ(lines[1][9], "larger in selected");
  EXPECT_EQ(lines[1][10].toDouble(), rows[0].superiority);
  EXPECT_EQ(lines[2][0], "s");
  EXPECT_EQ(lines[2][6].toDouble(), rows[1].p);
}

TEST_F(ComparisonProgram, NeedsNoDisplay)
{
  const QString csv = write("runs.csv", sixSetsOfFour());
  removeDisplay();
  const auto lines = comparison({csv, "--select", "max(X) > 12"});
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[1][8], "Kolmogorov-Smirnov (9999 permutations of sets; seed 1)");
  EXPECT_EQ(lines[1][4], "") << "no interval with replicates";
}

TEST_F(ComparisonProgram, SaysInOneLineWhyThereIsNone)
{
  const QString csv = write("runs.csv", twelveRuns());
  const QString out = path("out.csv");
  removeDisplay();
  expectError({csv, "--compare", out}, "no run is selected to be compared; name some by --select");
  expectError({csv, "--select", "max(X) > -1", "--compare", out},
              "all runs are selected; there are none to compare them with");
  expectError({write("plain.csv", "run,time,X\n0,0,1\n0,1,2\n1,0,3\n1,1,4\n"), "--compare", out},
              "there are no parameters of runs to compare");
  EXPECT_FALSE(QFile::exists(out));
  const QString nowhere = path("nowhere/out.csv");
  const Ended ended = run({csv, "--select", "k < 0.35", "--compare", nowhere});
  EXPECT_EQ(ended.status, 1);
  EXPECT_TRUE(ended.errors.startsWith(("talmesh-plot: " + nowhere + ": ").toUtf8()));
  EXPECT_EQ(ended.errors.count('\n'), 1);
}

TEST_F(ComparisonProgram, DoesNotWriteOverWhatItReads)
{
  const QString csv = write("runs.csv", twelveRuns());
  ASSERT_TRUE(QFile::link(csv, path("link.csv")));
  const QString name = folder.path() + "/./runs.csv";
  removeDisplay();
  expectError({csv, "--select", "max(X) > 9.5", "--compare", name},
              name + ": is the file that is read");
  expectError({path("link.csv"), "--runs", csv}, csv + ": is the file that is read");
  EXPECT_EQ(contentOf(csv).toStdString(), twelveRuns());
}

TEST_F(ComparisonProgram, WritesPicturesBesideIt)
{
  const QString csv = write("runs.csv", twelveRuns());
  comparison({csv, "--select", "max(X) > 9.5", "--size", "300x200", "--export", path("plot.png")});
  EXPECT_TRUE(QFile::exists(path("plot.png")));
}

TEST_F(ComparisonProgram, DoesNotTestWhatTheConditionAsksFor)
{
  const QString csv = write("runs.csv", twelveRuns());
  const auto lines = comparison({csv, "--select", "k < 0.35"});
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[1][8], "not tested: chosen by this parameter");
  EXPECT_EQ(lines[1][6], "");
  EXPECT_EQ(lines[2][8], "Kolmogorov-Smirnov (exact)");
}

TEST_F(ComparisonProgram, ComparesTwoConditions)
{
  const QString csv = write("runs.csv", twelveRuns());
  const auto lines = comparison({csv, "--select", "max(X) > 9.5", "--with", "max(X) < 5.5"});
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[1][1], "4");
  EXPECT_EQ(lines[1][2], "4");
  EXPECT_EQ(lines[1][3], "1");
  const Ended ended =
      run({csv, "--select", "max(X) > 9.5", "--with", "max(X) <", "--compare", path("out.csv")});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.errors.count('\n'), 1);
  expectError(
      {csv, "--select", "max(X) > 9.5", "--with", "max(X) < 0", "--compare", path("other.csv")},
      "no run to compare with is in \"max(X) < 0\"");
  expectError(
      {write("plain.csv", "a,b\n1,2\n3,4\n"), "--with", "a < 2", "--compare", path("other.csv")},
      "--with: this table has no runs to compare");
}

TEST_F(ComparisonProgram, TakesTheSeedAndChecksInHalves)
{
  const QString csv = write("runs.csv", sixSetsOfFour());
  const auto one = comparison({csv, "--select", "max(X) > 12", "--seed", "5"});
  EXPECT_EQ(one[1][8], "Kolmogorov-Smirnov (9999 permutations of sets; seed 5)");
  const auto half = comparison({csv, "--select", "max(X) > 12", "--seed", "5", "--halves"});
  EXPECT_TRUE(half[1][8].endsWith("second half of the runs; seed 5")) << half[1][8].toStdString();
  const auto ranks = comparison({csv, "--select", "max(X) > 12", "--compare-by", "mannwhitney"});
  EXPECT_TRUE(ranks[1][8].startsWith("Mann-Whitney (9999 permutations of sets"))
      << ranks[1][8].toStdString();
  const auto holm = comparison({csv, "--select", "max(X) > 12", "--adjust", "holm"});
  EXPECT_TRUE(holm[1][8].contains("Holm")) << holm[1][8].toStdString();
}

TEST_F(ComparisonProgram, WritesOverNothingThatItReadsOrWrites)
{
  const QString csv = write("runs.csv", twelveRuns());
  const QStringList select{csv, "--select", "max(X) > 9.5"};
  expectError(select + QStringList{"--compare", csv},
              csv + QStringLiteral(": is the file that is read"));
  EXPECT_EQ(contentOf(csv), QByteArray::fromStdString(twelveRuns()));
  const QString out = path("out.csv");
  expectError(select + QStringList{"--compare", out, "--runs", out},
              out + QStringLiteral(": would be written twice"));
  expectError(select + QStringList{"--compare", out, "--compare", path("other.csv")},
              "--compare is given twice");
  EXPECT_FALSE(QFile::exists(out));
}

TEST_F(ComparisonProgram, TakesRunsForTheDesignThatIsNamed)
{
  const QString csv = write("design.csv", designWithASum());
  const auto unnamed = comparison({csv, "--select", "max(X) > 4"});
  ASSERT_EQ(unnamed.size(), 4U);
  EXPECT_FALSE(unnamed[1][8].contains("base samples")) << unnamed[1][8].toStdString();
  const auto named = comparison({csv, "--select", "max(X) > 4", "--design", "saltelli:2"});
  EXPECT_EQ(named[1][8], "Kolmogorov-Smirnov (9999 permutations of base samples; seed 1)");
  expectError({csv, "--select", "max(X) > 4", "--design", "saltelli:9", "--compare", path("o.csv")},
              "these runs are no Saltelli design of so many parameters, which has k + 2 or 2 k + 2 "
              "runs for each base sample");
  EXPECT_FALSE(QFile::exists(path("o.csv")));
}

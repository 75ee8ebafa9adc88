#include "support/Pictures.h"

#include <gtest/gtest.h>

#include <QFile>

#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "RunningProgram.h"

namespace
{

using Runs = std::set<int>;

/// Six runs over the times 0, 1, 2, 4, 5 and 6. Each has a parameter that is 1 for it alone, which
/// tells in a comparison whether it is selected.
std::string sixCourses()
{
  const char* const courses[6][6] = {
      {"0", "0", "0", "0", "0", "0"},     {"0", "10", "0", "10", "0", "10"},
      {"0", "10", "9.5", "11", "0", "0"}, {"1", "2", "3", "5", "6", "7"},
      {"5", "5", "", "5", "5", "5"},      {"-1", "-2", "-3", "-5", "-6", "-7"}};
  const int times[6] = {0, 1, 2, 4, 5, 6};
  std::ostringstream text;
  text << "run,time,r1,r2,r3,r4,r5,r6,k m,A,[B c],\"say \"\"D\"\"\"\n";
  for (int run = 0; run < 6; ++run)
    for (int point = 0; point < 6; ++point)
    {
      text << run + 1 << ',' << times[point];
      for (int other = 0; other < 6; ++other)
        text << ',' << (other == run ? 1 : 0);
      text << ',' << (run == 2 ? std::string() : std::to_string(10 * run)) << ','
           << courses[run][point] << ',' << run * point << ',' << run - point << '\n';
    }
  return text.str();
}

/// Conditions as users type them behind `--select`.
class ConditionProgram : public RunningProgram
{
protected:
  ConditionProgram() { csv = write("runs.csv", sixCourses()); }

  Runs selectedBy(const QString& condition)
  {
    const QString out = path("out.csv");
    QFile::remove(out);
    expectSuccess({csv, "--select", condition, "--compare", out});
    Runs runs;
    for (const QByteArray& line : contentOf(out).split('\n'))
      if (line.startsWith('r') && line.contains("larger in selected"))
        runs.insert(line.mid(1, 1).toInt());
    return runs;
  }

  void expectSelected(const char* condition, const Runs& runs)
  {
    EXPECT_EQ(selectedBy(QString::fromUtf8(condition)), runs) << condition;
  }

  QString csv;
};

} // namespace

TEST_F(ConditionProgram, SelectsByNumbersOfItems)
{
  expectSelected("max(A) > 6.5", {2, 3, 4});
  expectSelected("min(A) < -6", {6});
  expectSelected("mean(A) = 5", {2, 5});
  expectSelected("first(A) = final(A)", {1, 3, 5});
  expectSelected("at(A, 3) = 5", {2});
  expectSelected("peaks(A) = 1", {3});
  expectSelected("peaks(A, 0.5) = 2", {2, 3});
  expectSelected("period(A) = 3", {2});
}

TEST_F(ConditionProgram, SelectsByTheDrawnLineUpToTheSidesOfWhatIsDrawn)
{
  expectSelected("through(A, 1.4, 1.6, 2, 3)", {4});
  expectSelected("through(A, 1, 0, 12, 10)", {2, 3});
  expectSelected("through(A, 4.5, 4.5, 5, 5)", {2, 5});
  expectSelected("inside(A, 1, 1.5, 2, 2.5)", {4});
  expectSelected("inside(A, -3, 1, 4, 6)", {5});
  expectSelected("inside(A, 0, 1.5, 4, 6) or run = 1", {1});
  expectSelected("crosses(A, 3, 4, 3, 5)", {2, 4});
  expectSelected("lasso(A, 3, 3.5, 3.5, 3.5, 3, 4.5)", {4});
}

TEST_F(ConditionProgram, MeetsNoComparisonWithAMissingValue)
{
  expectSelected("at(A, 1.5) > -100", {1, 2, 3, 4, 6});
  expectSelected("not at(A, 1.5) > -100", {5});
  expectSelected("at(A, 1.5) != 0", {2, 3, 4, 6});
  expectSelected("at(A, 7) > -100 or run = 1", {1});
  expectSelected("\"k m\" >= 0", {1, 2, 4, 5, 6});
  expectSelected("\"k m\" < 0 or not \"k m\" < 1000", {3});
  expectSelected("period(A) > 0 or period(A) <= 0", {2});
}

TEST_F(ConditionProgram, CalculatesAndJoinsInTheUsualOrder)
{
  expectSelected("max(A) - min(A) = 10", {2});
  expectSelected("2 * max(A) / 2 ^ 2 >= 5", {2, 3});
  expectSelected("-2 ^ 2 = -4 and run = 1", {1});
  expectSelected("1 < run <= 3", {2, 3});
  expectSelected("run = 1 or run = 2 and run > 100", {1});
  expectSelected("not run = 1 and run < 3", {2});
  expectSelected("not (run = 1 and run < 3) and abs(min(A)) < 1", {2, 3});
}

TEST_F(ConditionProgram, FindsNamesInDoubleQuotes)
{
  expectSelected("final(\"[B c]\") >= 20", {5, 6});
  expectSelected("max(\"say \"\"D\"\"\") > 3.5", {5, 6});
  expectSelected("\"k m\" = 10 or \"r6\" = 1", {2, 6});
}

TEST_F(ConditionProgram, PointsToTheCharacterThatIsWrong)
{
  const auto expectAt = [this](const char* condition, int character)
  {
    const Ended ended = run({csv, "--select", condition, "--compare", path("out.csv")});
    const QByteArray begin = QByteArray("talmesh-plot: ") + condition + ": at character " +
                             QByteArray::number(character) + ": ";
    EXPECT_EQ(ended.status, 1) << condition;
    EXPECT_TRUE(ended.errors.startsWith(begin)) << ended.errors.toStdString();
    EXPECT_EQ(ended.errors.count('\n'), 1) << ended.errors.toStdString();
  };
  expectAt("max(A) > 3 and", 15);
  expectAt("max(A) > 3 max(A) < 4", 12);
  expectAt("max([B c]) > 3", 5);
  expectAt("max(A) => 3", 9);
  expectAt("run = 1 and A > 3", 13);
  expectAt("run = 1 or max(Q) > 3", 16);
  expectAt("\"ü\" > 2 or", 11);
  expectAt("run = 1 or (\"é\" > 2", 20);
  expectAt("through(A, 1, 2, 3)", 1);
  expectAt("run = 1 or foo(A) > 1", 12);
  EXPECT_FALSE(QFile::exists(path("out.csv")));
}

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "import/DescribedTable.h"

using namespace Talmesh::app;

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();
const std::string ofOtherTimes = "run,time,k,X\na,0,1,1\na,1,1,2\na,2,1,3\nb,0,2,4\nb,1.5,2,7\n";

ImportRequest asked(UnequalRuns unequal)
{
  ImportRequest request;
  request.unequal = unequal;
  return request;
}

} // namespace

TEST(UnequalRuns, HaveTheSameTimesWithLinesBetweenTheirPoints)
{
  const DescribedTable table = described(ofOtherTimes);
  EXPECT_EQ(table.report.runs, 2u);
  EXPECT_EQ(table.report.fewestPoints, 2u);
  EXPECT_EQ(table.report.mostPoints, 3u);
  expectShape(table.table, 2, 4);
  expectValues(table.table, ": time", {0, 1, 1.5, 2, 0, 1, 1.5, 2});
  expectValues(table.table, "Molecule: X", {1, 2, 2.5, 3, 4, 6, 7, missing});
  expectValues(table.table, "Parameter: k", {1, 1, 1, 1, 2, 2, 2, 2});
  EXPECT_EQ(table.table.notes,
            Names{"The runs have different times. They are shown at all 4 of them, with straight "
                  "lines between the points of each run."});
}

TEST(UnequalRuns, HaveGapsWhereThatIsAskedFor)
{
  const DescribedTable table = described(ofOtherTimes, asked(UnequalRuns::Union));
  expectValues(table.table, "Molecule: X", {1, 2, missing, 3, 4, missing, 7, missing});
  expectValues(table.table, "Parameter: k", {1, 1, 1, 1, 2, 2, 2, 2});
}

TEST(UnequalRuns, HaveGapsAtTheirEndOnlyWhereSomeStopEarly)
{
  const DescribedTable table = described("run,time,X\na,0,1\na,1,2\na,2,3\nb,0,4\nb,1,5\n");
  expectValues(table.table, "Molecule: X", {1, 2, 3, 4, 5, missing});
  EXPECT_TRUE(table.warns("with gaps where a run has no point"));
}

TEST(UnequalRuns, KeepTheTimesThatTheyHad)
{
  const DescribedTable table = described(ofOtherTimes);
  ASSERT_TRUE(table.table.measured);
  EXPECT_EQ(table.table.measured->starts, (std::vector<std::size_t>{0, 3, 5}));
  EXPECT_EQ(table.table.measured->times, (std::vector<double>{0, 1, 2, 0, 1.5}));
  EXPECT_FALSE(described("run,time,X\na,0,1\nb,0,2\n").table.measured);
}

TEST(UnequalRuns, AreAskedForWhereOnlyTimeTellsThem)
{
  const std::string text = "time,X\n0,1\n1,2\n2,3\n0,4\n1,5\n";
  EXPECT_EQ(described(text).options(), (Names{"--layout stacked", "--layout table"}));
  expectShape(described(text, asked(UnequalRuns::Union)).table, 2, 3);
  ImportRequest request;
  request.layout = "stacked";
  expectShape(described(text, request).table, 2, 3);
  request.layout = "table";
  EXPECT_TRUE(described(text, request).table.table);
}

TEST(UnequalRuns, OfTooManyTimesAreShownAtFewer)
{
  // Each of 700 runs has 300 times of its own: all together they took 700 times the room.
  std::string text = "run,time,X\n";
  for (int run = 0; run < 700; ++run)
    for (int point = 0; point < 300 + (run == 5 ? 1 : 0); ++point)
    {
      const std::string time = std::to_string(point + run / 1000.0);
      text += std::to_string(run) + ',' + time + ',' + time + '\n';
    }
  const DescribedTable table = described(text);
  expectShape(table.table, 700, 301);
  const std::vector<double> times = values(table.table, ": time");
  const std::vector<double> shown = values(table.table, "Molecule: X");
  EXPECT_EQ(times.front(), 0.0);
  // What grows with time is on the line between its points at any time.
  EXPECT_NEAR(shown[5 * 301 + 150], times[150], 1e-9);
  EXPECT_NE(described(text, asked(UnequalRuns::Union)).error.find("--unequal interpolate"),
            std::string::npos);
}

TEST(UnequalRuns, AreRefusedWhereSomeWouldVanish)
{
  std::string text = "run,time,X\n";
  for (int run = 0; run < 1500; ++run)
    text += std::to_string(run) + ',' + std::to_string(run) + ",1\n";
  EXPECT_NE(described(text + "1,2000,1\n").error.find("--layout table"), std::string::npos);
}

TEST(UnequalRuns, OfOneNameAndTimeAreRefused)
{
  EXPECT_EQ(described("run,time,X\na,0,1\na,1,2\na,1,3\nb,0,4\n").error,
            "line 4: the run has a second point at the same time, and run \"b\" has 1 point, other "
            "runs have 3. Name the columns that tell the runs apart (--run)");
}

TEST(UnequalRuns, TakeTheirSteadyStatesForItems)
{
  const DescribedTable table = described("run,time,k,X\n0,0,1,1\n0,1,1,2\n0,inf,1,9\n"
                                         "1,0,2,3\n1,1,2,4\n1,inf,2,8\n");
  expectDescribed(table, "stacked", 2, 2, {"X", "X at steady state"}, {"k"});
  expectValues(table.table, "Molecule: X at steady state", {9, 9, 8, 8});
}

TEST(TextColumns, BecomeCategoriesOfRuns)
{
  const DescribedTable table = described("run,time,drug,X\n0,0,none,1\n0,1,none,2\n"
                                         "1,0,aspirin,3\n1,1,aspirin,4\n2,0,,5\n2,1,,6\n");
  expectDescribed(table, "stacked", 3, 2, {"X"}, {}, {"drug"});
  EXPECT_EQ(table.levels("Parameter: drug"), (Names{"none", "aspirin"}));
  expectValues(table.table, "Parameter: drug", {0, 0, 1, 1, missing, missing});
}

TEST(TextColumns, OfNumbersBecomeCategoriesWhereThatIsAskedFor)
{
  ImportRequest request;
  request.conditions = {"batch"};
  const DescribedTable table =
      described("run,time,batch,X\n0,0,07,1\n0,1,07,2\n1,0,3,3\n1,1,3,4\n", request);
  EXPECT_EQ(table.levels("Parameter: batch"), (Names{"07", "3"}));
}

TEST(TextColumns, NameRunsTogetherWhereOneDoesNotTellThemApart)
{
  const DescribedTable table = described("sim,replicate,time,X\n1,a,0,1\n1,a,1,2\n1,b,0,3\n"
                                         "1,b,1,4\n2,a,0,5\n2,a,1,6\n");
  expectDescribed(table, "stacked", 3, 2, {"X"});
  expectValues(table.table, "Molecule: X", {1, 2, 3, 4, 5, 6});
}

TEST(TextColumns, TellReplicatesApartThatAreCountedAnewUnderEachCondition)
{
  const std::string text = "time,cond,rep,A,B\n0,x,1,1,7\n1,x,1,2,7\n0,x,2,3,7\n"
                           "1,x,2,4,7\n0,y,1,5,7\n1,y,1,6,8\n";
  const DescribedTable table = described(text);
  expectDescribed(table, "stacked", 3, 2, {"A", "B"}, {}, {"cond"});
  expectValues(table.table, "Molecule: A", {1, 2, 3, 4, 5, 6});
  expectValues(table.table, "Parameter: cond", {0, 0, 0, 0, 1, 1});
}

TEST(TextColumns, AreNotFoundByWrongNames)
{
  ImportRequest request;
  request.run = {"rnu"};
  EXPECT_EQ(described("run,time,X\n0,0,1\n", request).error,
            "there is no column \"rnu\"; the columns are run, time, X");
}

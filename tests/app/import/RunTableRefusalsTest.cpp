#include "app/import/RunTableImport.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "import/ImportedRuns.h"

using namespace Talmesh::app;

namespace
{

/// What may be done where time alone tells runs of different lengths.
const std::string doubtedRestarts =
    ". If a run starts wherever time falls back, say --layout stacked; if a column names the runs, "
    "--run and its name; if there are none, --layout table";
/// What may be done with a column that cannot be read as numbers.
const std::string advice =
    ". --ignore \"X\" leaves the column out, --condition \"X\" takes it for texts";

} // namespace

TEST(RunTableRefusals, RefusesDecimalCommasBesideDecimalPoints)
{
  EXPECT_EQ(errorOf("t;X\n0;1,5\n1;1.234\n"),
            "line 3: \"1.234\" is ambiguous: the table has both decimal points and decimal commas");
}

TEST(RunTableRefusals, RefusesARunThatStartsAgain)
{
  EXPECT_EQ(errorOf("time,run,X\n0,1,1\n1,1,2\n0,2,3\n1,2,4\n0,1,5\n1,1,6\n0,2,7\n1,2,8\n"),
            "run \"1\" starts again in line 6: two runs have the same name");
}

TEST(RunTableRefusals, RefusesTwoRunsOfOneNameThatFollowEachOther)
{
  EXPECT_EQ(errorOf("run,time,X\n7,0,1\n7,1,2\n7,0,3\n7,1,4\n8,0,1\n8,1,1\n8,2,1\n8,3,1\n"),
            "run \"7\" starts again in line 4: two runs have the same name");
  EXPECT_EQ(errorOf("run,time,X\n7,5,1\n7,,2\n7,3,3\n"),
            "run \"7\" starts again in line 4: two runs have the same name");
}

TEST(RunTableRefusals, NamesTheRunOfAnotherLengthFoundByTime)
{
  EXPECT_EQ(errorOf("time,X\n0,1\n1,2\n0,1\n1,2\n2,3\n0,1\n1,2\n"),
            "run 1 (from line 4, where time falls back) has 3 points, other runs have 2" +
                doubtedRestarts);
  EXPECT_EQ(errorOf("time,X\n0,1\n0,1\n1,2\n0,1\n1,2\n0,1\n1,2\n"),
            "run 0 has 3 points, other runs have 2" + doubtedRestarts);
}

TEST(RunTableRefusals, NumbersTheLineWhereAShortRunStarts)
{
  EXPECT_EQ(errorOf("time,X\n0,1\n1,2\n\n0,1\n1,2\n0,1\n"),
            "run 2 (from line 7, where time falls back) has 1 point, other runs have 2" +
                doubtedRestarts);
}

TEST(RunTableRefusals, RefusesTextAmongNumbers)
{
  EXPECT_EQ(errorOf("time,X\n0,1\n1,2a\n"),
            "line 3: \"2a\" in the column \"X\" is not a number" + advice);
  EXPECT_EQ(errorOf("time,X\nnoon,1\n12:31,2\n"),
            "line 2: \"noon\" in the column \"time\" is not a number");
}

TEST(RunTableRefusals, RefusesRowsOfAnotherLength)
{
  EXPECT_EQ(errorOf("time,X\n0,1\n1\n"), "line 3 has 1 field, the first line has 2");
  EXPECT_EQ(errorOf("time,X\n0,1\n0,1,2\n"), "line 3 has 3 fields, the first line has 2");
}

TEST(RunTableRefusals, CountsRunsAsTheirIndexDoes)
{
  // The index of the runs of a table without a run column is 0, 1, 2.
  const std::string complete = "time,X\n0,1\n1,2\n0,1\n1,2\n0,1\n";
  EXPECT_EQ(values(imported(complete + "1,2\n"), ": Run Index").back(), 2.0);
  EXPECT_EQ(errorOf(complete),
            "run 2 (from line 6, where time falls back) has 1 point, other runs have 2" +
                doubtedRestarts);
}

TEST(RunTableRefusals, RefusesARowWithoutItsRun)
{
  EXPECT_EQ(errorOf("run,time,X\n0,0,1\n,1,2\n"),
            "line 3: the run has no name in the column \"run\"; fill it in, or name other columns "
            "(--run)");
}

TEST(RunTableRefusals, RefusesWhatIsNoTable)
{
  EXPECT_EQ(errorOf(""), "the file is empty");
  EXPECT_EQ(errorOf("\n\n"), "the file is empty");
  EXPECT_EQ(errorOf("\xEF\xBB\xBF"), "the file is empty");
  EXPECT_EQ(errorOf("time,X\n"), "the table has no rows below its headers");
  EXPECT_EQ(errorOf("Dear reader\nthis is prose\n"), "not a table: no column holds numbers");
  EXPECT_EQ(
      errorOf("0,1\n1,2\n"),
      "the first line holds numbers, not the names of the columns; write a line of names above "
      "it, as many as there are columns");
  EXPECT_EQ(errorOf(std::string("a,b\n1,\0\n", 8)), "not a table: the file holds binary data");
  EXPECT_EQ(errorOf("time,X\n0,\"1\n"), "line 2: a quoted field is not closed");
  EXPECT_EQ(errorOf("time,\"X\n0,1\n"), "line 1: a quoted name is not closed");
}

TEST(RunTableRefusals, RefusesAbsurdlyManyColumns)
{
  EXPECT_EQ(errorOf("a" + std::string(20000, ',') + "b\n"),
            "the table has 20001 columns; at most 20000 can be read");
}

TEST(RunTableRefusals, KeepsMessagesInOneShortLine)
{
  const std::string error = errorOf("time,X\n0,1\n1,\"a\nb\x01" + std::string(100, 'x') + "\"\n");
  EXPECT_EQ(error, "line 3: \"a b " + std::string(36, 'x') +
                       "...\" in the column \"X\" is not a number" + advice);
}

TEST(RunTableRefusals, SurvivesDamagedTables)
{
  const std::string whole =
      "run,\"time [s]\",k1,X\r\n0,0,\"0,5\",1\n0,1,0.5,3\n1,0,,5\n1;1;0,7;inf\n";
  const std::string spice = "\",;\t\r\n.e-+0NaN \xEF\xBB\xBF\xFF:#D\xC2\xA0\xE2\x88\x92";
  std::mt19937 generator(7);
  for (int i = 0; i < 20000; ++i)
  {
    std::string text = whole;
    for (int edits = static_cast<int>(generator() % 8); edits >= 0; --edits)
    {
      const std::size_t at = generator() % (text.size() + 1);
      const char c = spice[generator() % spice.size()];
      if (generator() % 3 == 0 && at < text.size())
        text.erase(at, 1 + generator() % 5);
      else
        text.insert(at, 1, c);
    }
    const Result<ImportedTable> read = importRunTable(text);
    ASSERT_NE(read.hasValue(), !read.error().empty()) << text;
    ASSERT_EQ(read.error().find('\n'), std::string::npos) << text;
    const ImportedTable table = read.hasValue() ? read.value() : ImportedTable();
    ASSERT_EQ(read.hasValue(), (table.runs != nullptr) != (table.table != nullptr)) << text;
    if (table.runs)
    {
      ASSERT_EQ(table.runs->items.size(), table.runs->values.size());
      ASSERT_GT(table.runs->numberOfTrajectories * table.runs->pointsPerTrajectory, 0u);
    }
  }
}

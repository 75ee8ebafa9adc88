/// Tables as spreadsheets, pandas, numpy, R, Fortran and people write them.

#include "app/import/RunTableImport.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "import/ImportedRuns.h"

using namespace Talmesh::app;

namespace
{

using Labels = std::vector<std::string>;
using Notes = std::vector<std::string>;

constexpr double missing = std::numeric_limits<double>::quiet_NaN();
constexpr const char* noRuns = "There is no time column, so the rows are not taken for runs.";
constexpr const char* counterLeftOut =
    "The first column has no name and counts the rows; it is left out.";

} // namespace

TEST(RunTableHabits, SkipsBlankRowsWhereverTheyStand)
{
  const ImportedTable table = imported(",,\n   \nrun,time,X\n,,\n0,0,1\n0,1,2\n , \t,\n,,,,\n"
                                       "1,0,3\n\u00A0\n1,1,4\n,,\n");
  expectShape(table, 2, 2);
  expectValues(table, "Molecule: X", {1, 2, 3, 4});
  EXPECT_EQ(errorOf("run,time,X\n,,\n0,0,1\n,,\n0,a,2\n"),
            "line 5: \"a\" in the column \"time\" is not a number");
}

TEST(RunTableHabits, KeepsTheGapsOfATableOfOneColumn)
{
  EXPECT_EQ(imported("X\n1\n  \n3\n").table->GetNumberOfRows(), 3);
}

TEST(RunTableHabits, FindsTheTimeUnderNamesThatPeopleGiveIt)
{
  for (const char* name : {"Time / s", "t / h", "\"Time, s\"", "# time", "simulation_time",
                           "sim time", "T [s]", "T (h)", "Zeit", "Zeit [s]"})
  {
    const ImportedTable table = imported(std::string(name) + ",X\n0,1\n1,2\n0,3\n1,4\n");
    ASSERT_TRUE(table.runs) << name;
    expectShape(table, 2, 2);
  }
  EXPECT_EQ(labels(imported("# time,X\n0,1\n1,2\n"))[1], ": time");
  EXPECT_TRUE(imported("T,X\n0,1\n1,2\n").table);
}

TEST(RunTableHabits, PrefersANameOfTimeToOneThatOnlyAUnitMakes)
{
  // t_min is a parameter here, and the only time there.
  const ImportedTable table = imported("k,t_min,time,X\n1,5,0,1\n1,5,1,2\n2,7,0,3\n2,7,1,4\n");
  expectShape(table, 2, 2);
  EXPECT_EQ(labels(table),
            (Labels{"Molecule: X", ": time", ": Run Index", "Parameter: k", "Parameter: t_min"}));
  expectShape(imported("t_min,X\n0,1\n1,2\n0,3\n1,4\n"), 2, 2);
}

TEST(RunTableHabits, FindsTheStartOfARunBehindAMissingTime)
{
  // What has no time is in no run.
  expectShape(imported("time,X\n0,1\n1,2\n,3\n0,4\n1,5\n,6\n"), 2, 2);
  expectShape(imported("time,X\n,0\n0,1\n1,2\n0,4\n1,5\n"), 2, 2);
}

TEST(RunTableHabits, LeavesOutTheMarksOfAFormerSelection)
{
  const ImportedTable table = imported(
      "\": Time [s]\",\": Run Index\",\"Molecule: A\",\"Parameter: k\",\"selected points\"\n"
      "0,0,1,5,1\n1,0,2,5,1\n0,1,3,6,0\n1,1,4,6,0\n");
  EXPECT_EQ(labels(table), (Labels{": Time [s]", ": Run Index", "Molecule: A", "Parameter: k"}));
  EXPECT_EQ(table.notes,
            Notes{"The column \"selected points\" marks a former selection and is left out."});
  EXPECT_EQ(imported("x,y,vtkRemainderSelection\n1,2,0\n2,1,1\n").table->GetNumberOfColumns(), 2);
  EXPECT_EQ(errorOf("selected points\n0\n1\n"), "not a table: no column holds numbers");
}

TEST(RunTableHabits, SaysThatThereIsNoTime)
{
  EXPECT_EQ(imported("T,X\n0,1\n1,2\n").notes, Notes{noRuns});
  EXPECT_EQ(imported("run,X\n0,1\n0,2\n").notes,
            Notes{"There is no time column, so the points of a run are in the order of the file."});
  EXPECT_EQ(imported("run,X\n0,1\n1,2\n").notes, Notes());
  EXPECT_EQ(imported("time,X\n0,1\n1,2\n").notes, Notes());
}

TEST(RunTableHabits, LeavesTheRowNumbersOfPandasAndROut)
{
  for (const char* first : {",time,X\n0,0,5\n1,1,6\n2,0,7\n3,1,8\n",
                            "\"\",\"time\",\"X\"\n\"1\",0,5\n\"2\",1,6\n\"3\",0,7\n\"4\",1,8\n"})
  {
    const ImportedTable table = imported(first);
    EXPECT_EQ(labels(table), (Labels{"Molecule: X", ": time", ": Run Index"}));
    expectValues(table, "Molecule: X", {5, 6, 7, 8});
    EXPECT_EQ(table.notes, Notes{counterLeftOut});
  }
  const ImportedTable table = imported(",x,y\n0,5,6\n1,7,8\n");
  EXPECT_EQ(table.table->GetNumberOfColumns(), 2);
  EXPECT_EQ(table.notes, (Notes{counterLeftOut, noRuns}));
}

TEST(RunTableHabits, KeepsAColumnWithoutANameThatIsNoRowNumber)
{
  for (const char* text : {",time\n0,0\n1,1\n3,2\n", ",time\n2,0\n3,1\n4,2\n",
                           ",time\n0,0\n,1\n2,2\n", "n,time\n0,0\n1,1\n2,2\n"})
    EXPECT_EQ(imported(text).runs->items.size(), 3u) << text;
  EXPECT_EQ(imported("\"\"\n0\n1\n").table->GetNumberOfColumns(), 1);
  EXPECT_EQ(imported(",drug\n0,a\n1,b\n").table->GetNumberOfColumns(), 2);
}

TEST(RunTableHabits, ReadsBlanksAroundQuotes)
{
  const ImportedTable table = imported("\"time\" , \"A\"\n0, \"1.5\"\n1,\"2\" \n");
  expectValues(table, "Molecule: A", {1.5, 2});
}

TEST(RunTableHabits, ReadsUnitsBehindCommasBetweenSemicolons)
{
  const ImportedTable table = imported("Time, s;Conc, mM\n0,5;1,25\n1,5;2,5\n");
  EXPECT_EQ(labels(table), (Labels{"Molecule: Conc, mM", ": Time, s", ": Run Index"}));
  expectValues(table, ": Time, s", {0.5, 1.5});
  expectValues(table, "Molecule: Conc, mM", {1.25, 2.5});
}

TEST(RunTableHabits, SortsTheRowsOfARunByTime)
{
  const ImportedTable table = imported("run,time,X\nb,2,6\nb,0,4\nb,1,5\na,0,1\na,1,2\na,2,3\n");
  expectShape(table, 2, 3);
  expectValues(table, ": time", {0, 1, 2, 0, 1, 2});
  expectValues(table, "Molecule: X", {4, 5, 6, 1, 2, 3});
  EXPECT_TRUE(table.notes.empty());
}

TEST(RunTableHabits, SortsTheScatteredRowsOfARunByTime)
{
  const ImportedTable table = imported("time,run,X\n1,1,2\n1,2,4\n0,2,3\n0,1,1\n");
  expectShape(table, 2, 2);
  expectValues(table, "Molecule: X", {1, 2, 3, 4});
}

TEST(RunTableHabits, KeepsTheOrderOfPointsAtOneTime)
{
  const ImportedTable table = imported("run,time,X\n0,0,1\n0,1,9\n0,1,2\n");
  expectValues(table, "Molecule: X", {1, 9, 2});
}

TEST(RunTableHabits, TakesASpeciesOfTheNameOfRunsForAnItem)
{
  const ImportedTable table = imported("time,Rep,X\n0,0.5,1\n1,2,2\n0,0.25,3\n1,,4\n");
  expectShape(table, 2, 2);
  EXPECT_EQ(labels(table), (Labels{"Molecule: Rep", "Molecule: X", ": time", ": Run Index"}));
  expectValues(table, "Molecule: Rep", {0.5, 2, 0.25, missing});
}

TEST(RunTableHabits, TakesTheNextColumnOfRunsBesideASpeciesOfTheirName)
{
  const ImportedTable table = imported("Rep,run,time,X\n0.5,7,0,1\n2,7,1,2\n0.25,8,1,3\n1,8,2,4\n");
  expectShape(table, 2, 2);
  expectValues(table, "Molecule: Rep", {0.5, 2, 0.25, 1});
  expectValues(table, ": Run Index", {7, 7, 8, 8});
}

TEST(RunTableHabits, TakesTextsAmongDecimalsForNamesOfRuns)
{
  const ImportedTable table = imported("run,time,X\n0.5,0,1\n0.5,1,2\ncontrol,0,3\ncontrol,1,4\n");
  expectShape(table, 2, 2);
  expectValues(table, ": Run Index", {0, 0, 1, 1});
}

TEST(RunTableHabits, DoesNotCountNamesOfRunsAmongDecimals)
{
  // The name with a point is no number with a decimal point, so that commas may be decimal.
  const ImportedTable table = imported("run;time;X\n1.5;0;0,5\nb;0;2\n");
  expectValues(table, "Molecule: X", {0.5, 2});
}

TEST(RunTableHabits, ReadsTheNumbersOfFortranAndOfTypesetters)
{
  const ImportedTable table = imported("time,X\n0,1.0D-03\n1,\u22122.5\n2,\u00A07\u00A0\n");
  expectValues(table, "Molecule: X", {1e-3, -2.5, 7});
}

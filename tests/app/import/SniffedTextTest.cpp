/// How the text of a table is understood: what parts its fields, and what stands above its rows.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "import/DescribedTable.h"

using namespace Talmesh::app;

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

/// A table of one run of two points of A and B.
void expectOneRun(const std::string& text, const Names& items = {"A", "B"})
{
  SCOPED_TRACE(text);
  const DescribedTable table = described(text);
  expectDescribed(table, "stacked", 1, 2, items);
  if (table.table.runs)
    expectValues(table.table, "Molecule: " + items.front(), {1.5, 3});
}

} // namespace

TEST(SniffedText, KnowsEverySeparator)
{
  for (const std::string separator : {",", ";", "\t", "|", ":", " ", "   ", " \t"})
    expectOneRun("time" + separator + "A" + separator + "B\n0" + separator + "1.5" + separator +
                 "2\n1" + separator + "3" + separator + "4\n");
}

TEST(SniffedText, TakesTheSeparatorThatTheFirstLineNames)
{
  expectOneRun("sep=;\ntime;A;B\n0;1,5;2\n1;3;4\n");
  expectOneRun("\"sep=,\"\r\ntime,A,B\r\n0,1.5,2\r\n1,3,4\r\n");
}

TEST(SniffedText, FindsTheHeaderBehindAMarkOfComments)
{
  expectOneRun("#          time          A          B\n 0.0 1.5 2.0e+00\n 1.0 3 4\n");
  expectOneRun("#time A B\n0 1.5 2\n1 3 4\n");
  expectOneRun("% time,A,B\n0,1.5,2\n1,3,4\n");
  expectOneRun("# made by us\n# time\tA\tB\n# ----\n0\t1.5\t2\n1\t3\t4\n");
}

TEST(SniffedText, SkipsCommentsAboveAndAmongTheRows)
{
  expectOneRun("# made by us, on a Monday\n#\ntime,A,B\n# the first row\n0,1.5,2\n1,3,4\n# end\n");
  expectOneRun("// made by us\ntime;A;B\n0;1.5;2\n1;3;4\n");
}

TEST(SniffedText, SkipsWhatStandsAboveTheTable)
{
  expectOneRun("[Header]\nDevice=X;1\n[Data]\ntime;A;B\n0;1.5;2\n1;3;4\n");
  expectOneRun("Measured by us\nOn a Monday\ntime,A,B\n0,1.5,2\n1,3,4\n");
  EXPECT_TRUE(described("Title\n\ntime,A\n0,1\n").warns("Line 1 stands above the table"));
}

TEST(SniffedText, JoinsUnitsToNames)
{
  expectOneRun("time,A,B\ns,mM,nM\n0,1.5,2\n1,3,4\n", {"A [mM]", "B [nM]"});
  expectOneRun("time,A,B\n[h],[mM],-\n0,1.5,2\n1,3,4\n", {"A [mM]", "B"});
  expectOneRun("# time A B\n# [s] [mM] [nM]\n0 1.5 2\n1 3 4\n", {"A [mM]", "B [nM]"});
  EXPECT_EQ(described("time,A\ns,mM\n0,1\n").report.time, "time [s]");
}

TEST(SniffedText, JoinsTwoLinesOfNames)
{
  expectOneRun(",cell one,\ntime,A,B\n0,1.5,2\n1,3,4\n", {"cell one A", "cell one B"});
  expectOneRun("time;TetR;cI\n;mean;mean\n0;1.5;2\n1;3;4\n", {"TetR mean", "cI mean"});
}

TEST(SniffedText, TakesAHeaderThatIsOneNameShortForRowNames)
{
  expectOneRun("\"time\" \"A\" \"B\"\n\"1\" 0 1.5 2\n\"2\" 1 3 4\n");
  expectOneRun("time,A,B\nfirst,0,1.5,2\nsecond,1,3,4\n");
  EXPECT_EQ(described("\"time\" \"A\"\n\"r 1\" 0 1\n\"r 2\" 1 3\n").report.ignored,
            Names{"Column 1"});
}

TEST(SniffedText, LeavesRowNumbersOut)
{
  for (const std::string name : {"rownames", "X", "...1", "Unnamed: 0", "index", "", "\"\""})
  {
    expectOneRun(name + ",time,A,B\n0,0,1.5,2\n1,1,3,4\n");
    expectOneRun(name + ",time,A,B\n1,0,1.5,2\n2,1,3,4\n");
  }
  expectDescribed(described("X,time\n5,0\n7,1\n"), "stacked", 1, 2, {"X"});
}

TEST(SniffedText, LeavesNamesOfRowsOut)
{
  const DescribedTable cars = described("\"rownames\",\"mpg\",\"cyl\"\n\"Mazda\",21,6\n"
                                        "\"Datsun\",22.8,4\n");
  expectDescribed(cars, "table", 0, 2, {"mpg", "cyl"});
  EXPECT_EQ(cars.report.ignored, Names{"rownames"});
}

TEST(SniffedText, ReadsDecimalCommasInQuotesBetweenCommasWhereItIsToldTo)
{
  ImportRequest request;
  request.decimalMark = ',';
  expectValues(described("time,A\n0,\"1,5\"\n1,\"2,5\"\n", request).table, "Molecule: A",
               {1.5, 2.5});
}

TEST(SniffedText, CountsWhatLiesBeyondMeasuringAsMissingAndSaysSo)
{
  const DescribedTable table =
      described("time,A\n0,1\n1,<BLQ\n2,BLOQ\n3,<0.5\n4,NA\n5,null\n6,.\n7,inf\n");
  expectValues(table.table, "Molecule: A",
               {1, missing, missing, missing, missing, missing, missing,
                std::numeric_limits<double>::infinity()});
  EXPECT_EQ(table.report.warnings,
            Names{"Line 3: \"<BLQ\" in the column \"A\" is beyond what could be measured, and "
                  "counts as missing (3 in all)."});
}

TEST(SniffedText, MakesTimesOfDates)
{
  const DescribedTable days = described("date,A\n2024-02-28,1\n2024-02-29,2\n2024-03-01,3\n");
  EXPECT_EQ(days.report.time, "date [d]");
  expectValues(days.table, ": date [d]", {0, 1, 2});
  const DescribedTable clock = described(
      "A,time\n1,2024-01-01T12:00:00Z\n2,2024-01-01 12:00:30.5\n3,2024-01-01T13:01+01:00\n");
  EXPECT_EQ(clock.report.time, "time [s]");
  expectValues(clock.table, ": time [s]", {0, 30.5, 60});
  expectValues(described("time,A\n12:30,1\n12:31:30,2\n").table, ": time [s]", {0, 90});
}

TEST(SniffedText, ToleratesALastLineThatIsCut)
{
  const DescribedTable table = described("time,A,B\n0,1.5,2\n1,3,4\n2,5");
  expectDescribed(table, "stacked", 1, 2, {"A", "B"});
  EXPECT_TRUE(table.warns("Line 4, the last one, is cut short"));
  EXPECT_EQ(described("time,A,B\n0,1,2\n1,3\n").error, "line 3 has 2 fields, the first line has 3");
}

TEST(SniffedText, AsksWhetherACommaPartsThousands)
{
  const std::string text = "time;A\n0;1,234\n1;2,345\n";
  EXPECT_EQ(described(text).options(), (Names{"--decimal ,", "--decimal ."}));
  ImportRequest request;
  request.decimalMark = ',';
  expectValues(described(text, request).table, "Molecule: A", {1.234, 2.345});
  request.decimalMark = '.';
  EXPECT_EQ(described(text, request).error,
            "line 2: \"1,234\" in the column \"A\" has commas between thousands; write the numbers "
            "without them");
  // A comma that parts no thousands settles it.
  expectValues(described("time;A\n0;1,234\n1;2,3\n").table, "Molecule: A", {1.234, 2.3});
}

TEST(SniffedText, RefusesThousandsThatAreNoNumbers)
{
  EXPECT_NE(described("time;A\n0;1,234,567\n1;2\n").error.find("commas between thousands"),
            std::string::npos);
  EXPECT_NE(described("time,A\n0,\"1,234\"\n1,2\n").error.find("commas between thousands"),
            std::string::npos);
}

TEST(SniffedText, GivesTheReasonOfEachGuess)
{
  EXPECT_EQ(described("time;A\n0;1\n").report.reasons,
            (Names{"semicolons part 2 fields in 2 of the lines looked at",
                   "the layout is stacked: a row per run and time"}));
}

TEST(SniffedText, LooksAtTheWholeFileAndNotAtItsHeadOnly)
{
  // The blanks of the comment-like head part as many fields as the commas of the rows.
  std::string text = "time,A,drug\n";
  for (int row = 0; row < 40000; ++row)
    text += std::to_string(row) + ",1.5," + (row < 39000 ? "7" : "x") + '\n';
  // Late texts are still found, and tell that the column is none of numbers.
  const DescribedTable table = described(text);
  EXPECT_EQ(table.report.categories, Names{"drug"});
  EXPECT_TRUE(table.warns("Line 39002: \"x\" in the column \"drug\" is not a number"));
  std::string measured = "time,A\n";
  for (int row = 0; row < 40000; ++row)
    measured +=
        std::to_string(row) + ',' + (row == 39000 ? "x" : std::to_string(row) + ".5") + '\n';
  EXPECT_EQ(described(measured).error,
            "line 39002: \"x\" in the column \"A\" is not a number. --ignore \"A\" leaves the "
            "column out, --condition \"A\" takes it for texts");
}

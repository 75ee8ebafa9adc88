#include "app/import/DateText.h"
#include "app/import/UnitText.h"
#include "app/import/Utf16Text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "import/DescribedTable.h"

using namespace Talmesh::app;

namespace
{

bool refusesWith(const std::string& text, const std::string& part)
{
  const std::string error = described(text).error;
  EXPECT_NE(error.find(part), std::string::npos) << error;
  return !error.empty();
}

} // namespace

TEST(StrangeCells, OfNumbersWithBlanksBetweenThousandsAreRefused)
{
  EXPECT_TRUE(refusesWith("Zeit;A\n0;1 000,5\n1;2 009,5\n2;3 018,5\n", "between thousands"));
  EXPECT_TRUE(looksLikeThousands("1\xC2\xA0"
                                 "000"));
  EXPECT_TRUE(looksLikeThousands("12\xE2\x80\xAF"
                                 "345,5"));
  EXPECT_TRUE(looksLikeThousands("1'000.5"));
  EXPECT_FALSE(looksLikeThousands("1 00"));
  EXPECT_FALSE(looksLikeThousands("1 000 cells"));
}

TEST(StrangeCells, OfPercentagesAreRefusedUnlessTheyTellConditions)
{
  EXPECT_TRUE(refusesWith("time,A\n0,0%\n1,1%\n2,2%\n", "percent sign"));
  expectDescribed(described("run,serum,time,A\n1,5%,0,1\n1,5%,1,2\n2,10%,0,3\n2,10%,1,4\n"),
                  "stacked", 2, 2, {"A"}, {}, {"serum"});
}

TEST(StrangeCells, OfDatesInOtherOrdersAreRefused)
{
  EXPECT_TRUE(refusesWith("Datum;Wert\n01.03.2024;0,5\n02.03.2024;1,5\n", "2024-03-31"));
  EXPECT_TRUE(refusesWith("date,A\n03/01/2024,0\n03/02/2024,1\n", "2024-03-31"));
  EXPECT_TRUE(isLocalDate("1/2/2024 12:30"));
  EXPECT_FALSE(isLocalDate("2024-03-01"));
  EXPECT_FALSE(isLocalDate("1.2.10"));
}

TEST(StrangeCells, OfNothingButDifferentTextsAreNoRuns)
{
  EXPECT_TRUE(refusesWith("time,A\n0,a1\n1,a2\n2,a3\n", "line 2: \"a1\" in the column \"A\""));
  expectDescribed(described("time,state,A\n0,on,1\n1,off,2\n2,on,3\n"), "stacked", 1, 3, {"A"}, {},
                  {"state"});
}

TEST(StrangeCells, ThatAreReadWithTheOptionOfTheRefusal)
{
  const std::string text = "time,A,state\n0,1,0\n1,2,1\n2,3,0\n3,4,done\n";
  EXPECT_TRUE(refusesWith(text, "--ignore \"state\""));
  ImportRequest request;
  request.conditions = {"state"};
  expectDescribed(described(text, request), "stacked", 1, 4, {"A"}, {}, {"state"});
}

TEST(StrangeCells, OfUtf16AreRead)
{
  const auto utf16 = [](const std::string& text, bool little)
  {
    std::string bytes = little ? "\xFF\xFE" : "\xFE\xFF";
    for (const char c : text)
      bytes += little ? std::string{c, '\0'} : std::string{'\0', c};
    return bytes;
  };
  for (const bool little : {true, false})
    expectDescribed(described(utf16("time\tA\r\n0\t1\r\n1\t2\r\n", little)), "stacked", 1, 2,
                    {"A"});
  EXPECT_EQ(utf8FromUtf16(std::string("\xFF\xFE\xBC\x03\x3D\xD8\x00\xDE\x00\xD8", 10)),
            "\xCE\xBC\xF0\x9F\x98\x80\xEF\xBF\xBD");
  EXPECT_EQ(described("\xFF\xFE").error, "the file is empty");
}

TEST(StrangeCells, OfColumnsThatNeverVaryAreTold)
{
  const DescribedTable table = described("time,A,T_ref\n0,1,37\n1,2,37\n");
  expectDescribed(table, "stacked", 1, 2, {"A", "T_ref"});
  EXPECT_TRUE(table.warns("The same value stands in all rows of \"T_ref\"."));
  EXPECT_FALSE(described("time,A\n0,1\n1,2\n").warns("The same value"));
}

TEST(StrangeCells, OfErrorsOfOtherColumnsAreNotPlotted)
{
  const DescribedTable table = described("time,A,A_sd,B_mean,B_SD\n0,1,0.1,2,0.2\n1,2,0.1,3,0.3\n");
  expectDescribed(table, "stacked", 1, 2, {"A", "B_mean"});
  EXPECT_EQ(table.report.ignored, (Names{"A_sd", "B_SD"}));
  expectDescribed(described("time,A,C_sd\n0,1,0.1\n1,2,0.2\n"), "stacked", 1, 2, {"A", "C_sd"});
}

TEST(StrangeCells, OfFewCodesAreNamesWhereATextIsAmongThem)
{
  std::string text = "time,A,state\n";
  for (int row = 0; row < 40; ++row)
    text +=
        std::to_string(row) + ',' + std::to_string(row) + ".5," + std::to_string(row / 20) + '\n';
  const DescribedTable table = described(text + "40,1,done\n");
  expectDescribed(table, "stacked", 1, 41, {"A"}, {}, {"state"});
  EXPECT_EQ(table.table.categories.front().levels, (Names{"done", "0", "1"}));
  EXPECT_TRUE(table.warns("Line 42: \"done\" in the column \"state\" is not a number"));
  // A measurement that overflowed is no code.
  EXPECT_NE(described("time,A\n0,1.5\n1,overflow\n2,3.5\n").error, "");
}

TEST(StrangeCells, OfOldProgramsOfWindowsAreNoNumbersOrInfinite)
{
  const DescribedTable table =
      described("time,A,B\n0,1.#QNAN,1\n1,-1.#IND00,1.#INF00\n2,3,-1.#INF\n");
  expectDescribed(table, "stacked", 1, 3, {"A", "B"});
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  constexpr double infinite = std::numeric_limits<double>::infinity();
  expectValues(table.table, "Molecule: A", {none, none, 3});
  expectValues(table.table, "Molecule: B", {1, infinite, -infinite});
}

TEST(StrangeCells, OfFewRowsAreNotSaidToBeInAll)
{
  EXPECT_TRUE(described("time,A,note\n0,1,\n1,2,pump failed\n")
                  .warns("The column \"note\" holds no other text than \"pump failed\""));
}

TEST(StrangeCells, ThatNameRowsAreLeftOutWhateverTheyCount)
{
  const DescribedTable table = described("rownames,Ozone,Wind\n3,41,7.5\n7,36,8\n12,12,12.5\n");
  EXPECT_EQ(table.report.items, (Names{"Ozone", "Wind"}));
  EXPECT_EQ(table.report.ignored, Names{"rownames"});
  EXPECT_EQ(described("X,Ozone,Wind\n3,41,7.5\n7,36,8\n12,12,12.5\n").report.items,
            (Names{"X", "Ozone", "Wind"}));
}

TEST(StrangeCells, OfHeadersBetweenTheRowsAreLeftOut)
{
  const DescribedTable table = described("time,A\n0,1\n1,2\ntime,A\n0,3\n1,4\ntime,A\n0,5\n1,6\n");
  expectDescribed(table, "stacked", 3, 2, {"A"});
  EXPECT_TRUE(table.warns("Line 4 repeats the header and is left out (2 in all)."));
}

TEST(StrangeCells, OfColumnsThatTheUserCallsErrorsAreNotShown)
{
  ImportRequest request;
  request.errors = {"spread"};
  const DescribedTable table = described("time,A,spread\n0,1,0.1\n1,2,0.2\n", request);
  expectDescribed(table, "stacked", 1, 2, {"A"});
  EXPECT_EQ(table.report.ignored, Names{"spread"});
}

TEST(StrangeCells, OfDatesThatCouldNameRunsAreTheTime)
{
  const std::string text = "patient,A\n2026-03-17,1\n2026-03-18,2\n";
  expectDescribed(described(text), "stacked", 1, 2, {"A"});
  ImportRequest request;
  request.run = {"patient"};
  EXPECT_EQ(described(text, request).report.runs, 2U) << "a day each";
  request.time = "patient";
  EXPECT_NE(described(text, request).error.find("cannot be the time and name the runs"),
            std::string::npos);
  request = {};
  request.run = {"time"};
  described("time,A\n0,1\n1,2\n", request);
}

TEST(StrangeCells, OfRemarksOnSingleValuesTellNoRunsApart)
{
  const DescribedTable table =
      described("time,species,value,comment\n0,A,1,\n1,A,2,\n2,A,3,pump off\n"
                "0,B,4,\n1,B,5,\n2,B,6,pump on\n");
  expectDescribed(table, "tidy", 1, 3, {"A", "B"});
}

TEST(StrangeCells, OfUnitsOfItemsTellNoRunsApart)
{
  expectDescribed(described("time,species,value,unit\n0,A,1,nM\n1,A,2,nM\n0,B,4,uM\n1,B,5,uM\n"),
                  "tidy", 1, 2, {"A", "B"});
  const std::string drugs = "time,species,value,unit,drug\n0,A,1,nM,x\n1,A,2,nM,x\n0,B,4,uM,x\n"
                            "1,B,5,uM,x\n0,A,6,nM,y\n1,A,7,nM,y\n0,B,8,uM,y\n1,B,9,uM,y\n";
  expectDescribed(described(drugs), "tidy", 2, 2, {"A", "B"}, {}, {"drug"});
}

TEST(StrangeCells, ThatAreBlankWhereRunsAreToldApartAreNoNames)
{
  const DescribedTable table =
      described("time,species,value,drug\n0,A,1,\n1,A,2,\n0,A,3,x\n1,A,4,x\n"
                "0,B,5,\n1,B,6,\n0,B,7,x\n1,B,8,x\n");
  EXPECT_NE(table.error, "");
  EXPECT_EQ(table.runs(), 0U);
}

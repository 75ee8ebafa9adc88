#include "app/import/RunSeriesName.h"

#include <gtest/gtest.h>

#include <string>

#include "import/DescribedTable.h"

using namespace Talmesh::app;

namespace
{

/// Two rows of numbers under a time and so many columns of a name.
std::string numbered(const std::string& name, int columns)
{
  std::string header = "time";
  std::string rows[2] = {"0", "1"};
  for (int i = 1; i <= columns; ++i)
  {
    header += "," + name + std::to_string(i);
    rows[0] += "," + std::to_string(i);
    rows[1] += "," + std::to_string(2 * i);
  }
  return header + '\n' + rows[0] + '\n' + rows[1] + '\n';
}

} // namespace

TEST(WideLayout, TakesNumberedColumnsForRuns)
{
  const DescribedTable wide = described(numbered("run_", 300));
  expectDescribed(wide, "wide", 300, 2, {"value"});
  EXPECT_EQ(values(wide.table, "Molecule: value")[599], 600.0);
  expectDescribed(described("t\t1\t2\t3\n0\t4\t5\t6\n1\t7\t8\t9\n"), "wide", 3, 2, {"value"});
}

TEST(WideLayout, TellsItemsFromRuns)
{
  const DescribedTable wide = described("time,A_run1,A_run2,B_run1,B_run2\n0,1,2,3,4\n1,5,6,7,8\n");
  expectDescribed(wide, "wide", 2, 2, {"A", "B"});
  expectValues(wide.table, "Molecule: A", {1, 5, 2, 6});
  expectValues(wide.table, "Molecule: B", {3, 7, 4, 8});
  const DescribedTable first =
      described("time,run1.A,run1.B,run2.A,run2.B\n0,1,2,3,4\n1,5,6,7,8\n");
  expectDescribed(first, "wide", 2, 2, {"A", "B"});
  expectValues(first.table, "Molecule: B", {2, 6, 4, 8});
}

TEST(WideLayout, LeavesAFewNumberedSpeciesAlone)
{
  expectDescribed(described(numbered("x", 3)), "stacked", 1, 2, {"x1", "x2", "x3"});
}

TEST(WideLayout, AsksWhereManyColumnsAreNumbered)
{
  const DescribedTable table = described(numbered("x", 40));
  EXPECT_EQ(table.options(), (Names{"--layout stacked", "--layout wide"}));
  ImportRequest request;
  request.layout = "wide";
  expectDescribed(described(numbered("x", 40), request), "wide", 40, 2, {"x"});
}

TEST(WideLayout, TakesAllColumnsOfNumbersWhereItIsAskedFor)
{
  ImportRequest request;
  request.layout = "wide";
  expectDescribed(described("time,anna,bert\n0,1,2\n1,3,4\n", request), "wide", 2, 2, {"value"});
}

TEST(WideLayout, TakesValuesOfAParameterInNamesForRuns)
{
  const DescribedTable wide = described("time,k=0.1,k=0.2,k=1\n0,1,2,3\n1,4,5,6\n");
  expectDescribed(wide, "wide", 3, 2, {"value"}, {"k"});
  expectValues(wide.table, "Parameter: k", {0.1, 0.1, 0.2, 0.2, 1, 1});
}

TEST(WideLayout, LeavesOutWhatSumsTheRunsUp)
{
  const DescribedTable wide = described("time,run_1,run_2,mean\n0,1,3,2\n1,4,6,5\n");
  expectDescribed(wide, "wide", 2, 2, {"value"});
  EXPECT_TRUE(wide.warns("\"mean\" is of no run"));
  EXPECT_EQ(described("time,run_1,run_2,temperature\n0,1,3,2\n1,4,6,5\n").options(),
            (Names{"--layout stacked", "--layout wide"}));
}

TEST(WideLayout, AsksWhereManyRunsOfSeveralItemsAreNumbered)
{
  std::string text = "time";
  for (const char* item : {"A", "B"})
    for (int run = 1; run <= 12; ++run)
      text += std::string(",") + item + '_' + std::to_string(run);
  for (const char* time : {"\n0", "\n1"})
  {
    text += time;
    for (int i = 0; i < 24; ++i)
      text += "," + std::to_string(i);
  }
  text += '\n';
  EXPECT_EQ(described(text).options(), (Names{"--layout stacked", "--layout wide"}));
  ImportRequest request;
  request.layout = "wide";
  expectDescribed(described(text, request), "wide", 12, 2, {"A", "B"});
}

TEST(WideLayout, TakesWellsForRuns)
{
  std::string text = "time";
  for (char row = 'A'; row <= 'H'; ++row)
    for (int column = 1; column <= 12; ++column)
      text += std::string(",") + row + std::to_string(column);
  for (const char* time : {"\n0", "\n1"})
  {
    text += time;
    for (int i = 0; i < 96; ++i)
      text += "," + std::to_string(i);
  }
  expectDescribed(described(text + '\n'), "wide", 96, 2, {"value"});
}

TEST(WideLayout, TakesHundredsOfNumbersBehindPointsForRuns)
{
  expectDescribed(described(numbered("TetR.", 300)), "wide", 300, 2, {"TetR"});
}

TEST(WideLayout, ReadsTheNamesOfSeries)
{
  const auto read = [](const char* name) { return readRunSeriesName(name); };
  EXPECT_EQ(read("Run 12")->run, 12);
  EXPECT_EQ(read("Run 12")->item, "");
  EXPECT_TRUE(read("Run 12")->isClear);
  EXPECT_EQ(read("TetR.sim3")->item, "TetR");
  EXPECT_EQ(read("run3: TetR")->item, "TetR");
  EXPECT_FALSE(read("x7")->isClear);
  EXPECT_EQ(read("x7")->item, "x");
  EXPECT_FALSE(read("TetR"));
  EXPECT_FALSE(read("0.5"));
  EXPECT_FALSE(read("-3"));
}

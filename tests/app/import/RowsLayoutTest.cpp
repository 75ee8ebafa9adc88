#include <gtest/gtest.h>

#include <string>

#include "import/DescribedTable.h"

using namespace Talmesh::app;

TEST(RowsLayout, TakesTheRowsOfAScanForRuns)
{
  const DescribedTable scan = described("k1,k2,peak\n0.1,1,5\n0.2,1,6\n0.3,2,9\n");
  expectDescribed(scan, "rows", 3, 1, {"peak"}, {"k1", "k2"});
  expectValues(scan.table, ": Run Index", {0, 1, 2});
  expectDescribed(described("run,k,score\n0,1,2\n1,3,4\n2,5,6\n"), "rows", 3, 1, {"score"}, {"k"});
}

TEST(RowsLayout, TakesTheDrawsOfASamplerForRuns)
{
  const DescribedTable draws = described(".chain,.draw,lp__,growth,loss rate\n"
                                         "1,1,-10.5,0.1,0.2\n1,2,-10.1,0.2,0.3\n2,1,-9,0.1,0.2\n");
  expectDescribed(draws, "rows", 3, 1, {".draw", "lp__"}, {".chain", "growth", "loss rate"});
  expectDescribed(described("fval,a,b\n3,1,2\n4,5,6\n"), "rows", 2, 1, {"fval"}, {"a", "b"});
}

TEST(RowsLayout, DoesNotTakeARisingParameterForTime)
{
  EXPECT_EQ(described("kcat,alpha,X\n1,2,3\n2,2,4\n3,2,5\n").report.time, "");
}

TEST(RowsLayout, AsksWhereOneNameIsThatOfAParameter)
{
  const DescribedTable table = described("alpha,height,width\n1,2,3\n2,3,4\n");
  EXPECT_EQ(table.options(), (Names{"--layout table", "--layout rows"}));
}

TEST(RowsLayout, TakesTheParametersThatAreNamed)
{
  ImportRequest request;
  request.parameters = {"a"};
  expectDescribed(described("a,b,c\n1,2,3\n4,5,6\n", request), "rows", 2, 1, {"b", "c"}, {"a"});
}

TEST(RowsLayout, KeepsTheTextsOfRuns)
{
  const DescribedTable rows = described("run;gene;k1\na;wild;1\nb;mutant;2\nc;wild;3\n");
  EXPECT_EQ(rows.report.layout, "rows");
  EXPECT_EQ(rows.report.categories, Names{"gene"});
  EXPECT_EQ(rows.levels("Parameter: gene"), (Names{"wild", "mutant"}));
}

TEST(RowsLayout, TakesAScanForRunsOfItsFirstColumn)
{
  ImportTask task;
  task.isScan = true;
  ImportReport report;
  const auto scan = importTable("# IPTG GFP other\n1 0 3\n2 5 4\n4 6 1\n", task, report);
  ASSERT_TRUE(scan.hasValue()) << scan.error();
  EXPECT_EQ(report.layout, "rows");
  EXPECT_EQ(report.runs, 3u);
  EXPECT_EQ(report.parameters, Names{"IPTG"});
  EXPECT_EQ(report.items, (Names{"GFP", "other"}));
}

TEST(RowsLayout, AsksWhereADoseMayBeScanned)
{
  EXPECT_EQ(described("dose,response\n0.01,1\n0.02,2\n").options(),
            (Names{"--layout table", "--layout rows"}));
}

TEST(PlainLayout, ShowsATableWithoutTimeWithItsCategories)
{
  const DescribedTable iris = described("Sepal.Length,Sepal.Width,Species\n"
                                        "5.1,3.5,setosa\n4.9,3.0,setosa\n7.0,3.2,versicolor\n");
  expectDescribed(iris, "table", 0, 3, {"Sepal.Length", "Sepal.Width"}, {}, {"Species"});
  EXPECT_EQ(iris.levels("Species"), (Names{"setosa", "versicolor"}));
  const DescribedTable cars = described("\"mpg\" \"cyl\"\n\"Mazda RX4\" 21 6\n\"Datsun\" 22.8 4\n");
  expectDescribed(cars, "table", 0, 2, {"mpg", "cyl"});
}

#include <gtest/gtest.h>

#include <string>

#include "import/DescribedTable.h"

using namespace Talmesh::app;

TEST(OrderSearch, TakesCountingNumbersForTime)
{
  for (const char* name : {"hours", "days", "cycle", "timestep", "generation", "iteration", "Jahr"})
  {
    const DescribedTable table = described(std::string(name) + ",A\n0,5\n1,4\n2,3\n");
    expectDescribed(table, "stacked", 1, 3, {"A"});
    EXPECT_EQ(table.report.time, name);
  }
  expectDescribed(described("iteration,loss,val_loss\n1,9,9.5\n2,8,8.5\n3,7,7.5\n"), "stacked", 1,
                  3, {"loss", "val_loss"});
}

TEST(OrderSearch, LeavesNumbersThatDoNotCountAlone)
{
  EXPECT_EQ(described("year,A\n2001,5\n2001,4\n2000,3\n").report.time, "");
  EXPECT_EQ(described("age,A\n20,5\n30,4\n40,3\n").report.time, "");
  // Days of months of different lengths are no runs.
  EXPECT_EQ(described("Wind,Month,Day\n9,5,1\n8,5,2\n7,5,3\n7,6,1\n6,6,2\n").report.time, "");
  expectDescribed(described("chain,iteration,k1,k2\n1,1,2,3\n1,2,3,4\n2,1,5,6\n"), "rows", 3, 1,
                  {"iteration"}, {"chain", "k1", "k2"});
}

TEST(OrderSearch, FindsCountingNumbersThatStartAgain)
{
  const DescribedTable trees =
      described("Tree,age,width\n1,118,3\n1,484,4\n1,664,5\n2,118,4\n2,484,5\n2,664,7\n");
  expectDescribed(trees, "stacked", 2, 3, {"width"});
  EXPECT_EQ(trees.report.time, "age");
  const DescribedTable replicates =
      described("replicate,generation,size\n1,0,5\n1,1,6\n2,0,7\n2,1,9\n");
  expectDescribed(replicates, "stacked", 2, 2, {"size"});
  EXPECT_EQ(replicates.report.time, "generation");
}

TEST(OrderSearch, TakesWhatPartsTheRowsForNamesOfRuns)
{
  for (const char* name : {"ID", "seed", "trial", "well", "particle", "Chick", "Run #", "Versuch",
                           "Durchlauf", "simulaci\xC3\xB3n"})
    expectDescribed(
        described(std::string(name) + ",time,k,A\n1,0,0.5,5\n1,1,0.5,6\n2,0,0.7,5\n2,1,0.7,8\n"),
        "stacked", 2, 2, {"A"}, {"k"});
}

TEST(OrderSearch, NamesRunsOfDifferentLengths)
{
  const DescribedTable chicks =
      described("weight,Time,Chick,Diet\n42,0,1,1\n51,2,1,1\n59,4,1,1\n40,0,2,2\n49,2,2,2\n");
  EXPECT_EQ(chicks.error, "");
  EXPECT_EQ(chicks.report.runs, 2u);
  EXPECT_EQ(chicks.report.fewestPoints, 2u);
  EXPECT_EQ(chicks.report.mostPoints, 3u);
}

TEST(OrderSearch, LeavesQuantitiesOfOneRunAlone)
{
  expectDescribed(described("time,cell\n0,1\n1,1\n2,2\n3,2\n"), "stacked", 1, 4, {"cell"});
}

TEST(OrderSearch, ReadsARunThatWasWrittenBackwards)
{
  const DescribedTable table = described("time,A\n3,4\n2,5\n1,6\n");
  expectDescribed(table, "stacked", 1, 3, {"A"});
  expectValues(table.table, "Molecule: A", {6, 5, 4});
  EXPECT_TRUE(table.warns("from the last to the first"));
}

TEST(OrderSearch, AsksWherePointsOfARunRepeat)
{
  const DescribedTable table = described("time,A\n0,1\n0,2\n0,3\n1,1\n1,2\n1,3\n");
  EXPECT_EQ(table.options(), (Names{"--layout stacked", "--layout table"}));
  EXPECT_NE(table.error.find("line 3: a second point"), std::string::npos);
  ImportRequest request;
  request.layout = "stacked";
  EXPECT_TRUE(
      described("time,A\n0,1\n0,2\n1,1\n1,2\n", request).warns("Line 3: a run has a second"));
  // An event has a point before and one after it.
  const DescribedTable event = described("time,A\n0,1\n1,2\n1,5\n2,6\n");
  expectDescribed(event, "stacked", 1, 4, {"A"});
  EXPECT_TRUE(event.warns("Line 4: a run has a second point"));
}

TEST(OrderSearch, LeavesOutPointsWithoutATime)
{
  const DescribedTable table = described("time,A\n0,1\nNA,2\n2,3\n");
  expectDescribed(table, "stacked", 1, 2, {"A"});
  expectValues(table.table, "Molecule: A", {1, 3});
  EXPECT_TRUE(table.warns("Line 3: the time is missing"));
  EXPECT_EQ(described("time,A\nNA,1\nNA,2\n").error, "no row has a time");
}

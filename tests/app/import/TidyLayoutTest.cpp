#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "import/DescribedTable.h"

using namespace Talmesh::app;

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST(TidyLayout, MakesAnItemOfEachSpecies)
{
  const DescribedTable tidy = described("sim,time,species,value\n"
                                        "1,0,A,1\n1,0,B,2\n1,1,A,3\n1,1,B,4\n"
                                        "2,0,A,5\n2,0,B,6\n2,1,A,7\n2,1,B,8\n");
  expectDescribed(tidy, "tidy", 2, 2, {"A", "B"});
  EXPECT_EQ(tidy.report.time, "time");
  expectValues(tidy.table, "Molecule: A", {1, 3, 5, 7});
  expectValues(tidy.table, "Molecule: B", {2, 4, 6, 8});
  expectValues(tidy.table, ": Run Index", {1, 1, 2, 2});
}

TEST(TidyLayout, KeepsWhatIsSaidOfRunsAsParametersAndCategories)
{
  const DescribedTable tidy = described("drug;dose;t [h];Spezies;Konzentration;sd\n"
                                        "none;0;0;A;1,5;0,1\nnone;0;1;A;2,5;0,1\n"
                                        "none;0;0;B;1;0,2\nnone;0;1;B;2;0,1\n"
                                        "x;5;0;A;3;0,1\nx;5;1;A;4;0,1\n"
                                        "x;5;0;B;5;0,1\nx;5;1;B;6;0,1\n");
  expectDescribed(tidy, "tidy", 2, 2, {"A", "B"}, {"dose"}, {"drug"});
  EXPECT_EQ(tidy.levels("Parameter: drug"), (Names{"none", "x"}));
  EXPECT_EQ(tidy.report.ignored, Names{"sd"});
  expectValues(tidy.table, "Molecule: A", {1.5, 2.5, 3, 4});
  expectValues(tidy.table, "Parameter: drug", {0, 0, 1, 1});
}

TEST(TidyLayout, TakesSimulationAndReplicateTogetherForTheRun)
{
  const std::string text = "sim,rep,time,species,conc\n"
                           "1,1,0,A,1\n1,1,1,A,2\n1,2,0,A,3\n1,2,1,A,4\n2,1,0,A,5\n2,1,1,A,6\n"
                           "1,1,0,B,1\n1,1,1,B,2\n1,2,0,B,3\n1,2,1,B,4\n2,1,0,B,5\n2,1,1,B,6\n";
  ImportRequest request;
  request.run = {"sim", "rep"};
  const DescribedTable asked = described(text, request);
  expectDescribed(asked, "tidy", 3, 2, {"A", "B"});
  expectValues(asked.table, "Molecule: B", {1, 2, 3, 4, 5, 6});
}

TEST(TidyLayout, LeavesGapsWhereItemsWereNotMeasuredAndCrossesThemByLines)
{
  const std::string text = "run,time,item,value\n1,0,A,1\n1,1,B,5\n1,2,A,3\n1,3,B,7\n";
  const DescribedTable crossed = described(text);
  expectDescribed(crossed, "tidy", 1, 4, {"A", "B"});
  expectValues(crossed.table, "Molecule: A", {1, 2, 3, missing});
  expectValues(crossed.table, "Molecule: B", {missing, 5, 6, 7});
  EXPECT_TRUE(crossed.warns("Straight lines"));
  ImportRequest request;
  request.unequal = UnequalRuns::Union;
  expectValues(described(text, request).table, "Molecule: A", {1, missing, 3, missing});
}

TEST(TidyLayout, TakesTheColumnsThatAreNamed)
{
  ImportRequest request;
  request.layout = "tidy";
  request.time = "when";
  request.item = "what";
  request.value = "much";
  request.parameters = {"k"};
  expectDescribed(
      described("when,what,much,other,k\n0,A,1,9,2\n1,A,2,9,2\n0,B,3,9,2\n1,B,4,9,2\n", request),
      "tidy", 1, 2, {"A", "B", "other"}, {"k"});
}

TEST(TidyLayout, AsksWhereATextColumnMayBeItemOrCondition)
{
  const DescribedTable table = described("drug,time,value\nx,0,1\nx,1,2\ny,0,3\ny,1,4\n");
  EXPECT_EQ(table.options(), (Names{"--layout stacked", "--layout tidy"}));
  EXPECT_EQ(described("time,cond,rep,A\n0,x,1,1\n1,x,1,2\n0,y,1,5\n1,y,1,6\n").options(),
            (Names{"--layout tidy", "--layout stacked"}));
  EXPECT_NE(table.error.find("--layout tidy"), std::string::npos);
  EXPECT_NE(table.error.find("--layout stacked"), std::string::npos);
}

TEST(TidyLayout, RefusesASecondValueOfOnePoint)
{
  EXPECT_EQ(described("run,time,item,value\n1,0,A,1\n1,0,B,2\n1,0,A,3\n").error,
            "line 4: a second value of \"A\" at the same time. Name the columns that tell the runs "
            "apart (--run)");
}

TEST(TidyLayout, RefusesTextAmongTheValues)
{
  EXPECT_EQ(described("run,time,item,value\n1,0,A,1\n1,0,B,2b\n1,1,A,3\n1,1,B,4\n").error,
            "line 3: \"2b\" in the column \"value\" is not a number");
}

TEST(TidyLayout, RefusesMoreItemsThanAnyPointHas)
{
  std::string text = "run,time,item,value\n";
  for (int i = 0; i < 5000; ++i)
    text += "1," + std::to_string(i) + ",i" + std::to_string(i) + ",1\n";
  ImportRequest request;
  request.layout = "tidy";
  request.item = "item";
  request.value = "value";
  EXPECT_NE(described(text, request).error.find("5000 items at 5000 points"), std::string::npos);
}

TEST(TidyLayout, HasNoRunAllOfWhoseRowsAreLeftOut)
{
  ImportRequest request;
  request.layout = "tidy";
  const auto table =
      described("sim,time,species,value\n1,0,A,1\n1,0,B,2\n2,0,A,1\n21,,B,2\n", request);
  EXPECT_EQ(table.error, "");
  EXPECT_EQ(table.report.runs, 2U);
}

TEST(TidyLayout, ReadsNumberedItemsWherePointsRepeat)
{
  expectDescribed(described("sim,time,species_id,value\n1,0,1,5\n1,0,2,6\n1,1,1,7\n1,1,2,8\n"
                            "2,0,1,5\n2,0,2,6\n2,1,1,7\n2,1,2,8\n"),
                  "tidy", 2, 2, {"1", "2"});
}

TEST(TidyLayout, TakesNoConditionForAnItem)
{
  const std::string drugs = "subject,drug,time,conc\n1,aspirin,0,9\n1,aspirin,1,8\n"
                            "2,placebo,0,7\n2,placebo,1,6\n";
  expectDescribed(described(drugs), "stacked", 2, 2, {"conc"}, {}, {"drug"});
  const DescribedTable doses = described("ID,TIME,DV,SEX\n1,0,9,F\n1,1,8,F\n2,0,7,M\n2,1,6,M\n");
  expectDescribed(doses, "stacked", 2, 2, {"DV"}, {}, {"SEX"});
}

TEST(TidyLayout, TellsReplicatesOfConditionsApart)
{
  const std::string text = "drug,replicate,time_h,analyte,conc\n"
                           "DMSO,1,0,A,1\nDMSO,1,0,B,2\nDMSO,1,5,A,3\nDMSO,1,5,B,4\n"
                           "MEK,1,0,A,5\nMEK,1,0,B,6\nMEK,1,5,A,7\nMEK,1,5,B,8\n";
  expectDescribed(described(text), "tidy", 2, 2, {"A", "B"}, {}, {"drug"});
  ImportRequest request;
  request.run = {"drug", "replicate"};
  expectDescribed(described(text, request), "tidy", 2, 2, {"A", "B"}, {}, {"drug"});
}

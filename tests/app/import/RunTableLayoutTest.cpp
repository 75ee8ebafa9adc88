#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PlotScene.h"
#include "support/SampleRuns.h"

#include <vtkTable.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "SampleStudies.h"
#include "import/ImportedRuns.h"

using namespace Talmesh::app;

namespace
{

using Labels = std::vector<std::string>;

/// Three runs of two points with the indices 0, 1 and 2 under four headers; the columns behind run
/// and time are 1, 2 and 3 in the runs, and different in every row.
std::string threeRuns(const std::string& headers)
{
  return headers + "\n0,0,1,5\n0,1,1,7\n1,0,2,6\n1,1,2,4\n2,0,3,9\n2,1,3,8\n";
}

/// The runs of one side of a split: `table` is a derived table of the container.
std::set<double> runsIn(const PlotContainer& container, std::size_t table)
{
  const std::vector<double> runs =
      SampleRuns::valuesOf(container.getDerivedTables().at(table), ": Run Index");
  return {runs.begin(), runs.end()};
}

/// Selects run 1 of the three and compares it with the others.
void expectTheRightRuns(const std::string& text)
{
  SCOPED_TRACE(text);
  PlotScene view;
  PlotContainer container(nullptr);
  container.setScene(view.scene());
  showStudy(sampleStudy(text), container);
  ParameterSelection chosen;
  chosen.runs = {1};
  container.setSelection(&chosen, 0);
  ASSERT_EQ(container.getDerivedTables().size(), 8u);
  EXPECT_EQ(runsIn(container, 2), std::set<double>{1});
  EXPECT_EQ(runsIn(container, 5), (std::set<double>{0, 2}));
}

} // namespace

TEST(RunTableLayout, KeepsItemsFirstWhereNoNameMisleadsThePlots)
{
  const Labels usual = {"Molecule: X", ": time", ": Run Index", "Parameter: k"};
  EXPECT_EQ(labels(imported(threeRuns("run,time,k,X"))), usual);
  // A name behind the time cannot be taken for it.
  EXPECT_EQ(labels(imported(threeRuns("run,Time [s],Period,X"))),
            (Labels{"Molecule: X", ": Time [s]", ": Run Index", "Parameter: Period"}));
  EXPECT_EQ(labels(imported(threeRuns("run,time,Index,X"))),
            (Labels{"Molecule: X", ": time", ": Run Index", "Parameter: Index"}));
}

TEST(RunTableLayout, PutsTimeFirstWhereAnItemHasAWordOfTimeInItsName)
{
  for (const char* item : {"Value", "Period", "Lifetime or Time"})
    EXPECT_EQ(labels(imported(threeRuns(std::string("run,time,k,") + item))),
              (Labels{": Time", ": Run Index", "Parameter: k", std::string("Molecule: ") + item}));
  EXPECT_EQ(labels(imported(threeRuns("run,Time [s],k,Value"))),
            (Labels{": Time [s]", ": Run Index", "Parameter: k", "Molecule: Value"}));
  EXPECT_EQ(labels(imported(threeRuns("run,t [s],k,Value"))),
            (Labels{": Time [s]", ": Run Index", "Parameter: k", "Molecule: Value"}));
}

TEST(RunTableLayout, PutsTimeFirstWhereAParameterHasAWordThatTheTimeLacks)
{
  EXPECT_EQ(labels(imported(threeRuns("run,time,Period,X"))),
            (Labels{": Time", ": Run Index", "Parameter: Period", "Molecule: X"}));
}

TEST(RunTableLayout, PutsTheRunIndexBeforeAnItemWithItsWord)
{
  for (const char* item : {"Index", "Mitotic Index"})
    EXPECT_EQ(labels(imported(threeRuns(std::string("run,time,k,") + item))),
              (Labels{": Time", ": Run Index", "Parameter: k", std::string("Molecule: ") + item}));
  // What says nothing of itself in a row per run is a parameter of it.
  EXPECT_EQ(labels(imported("run,Index,X\n3,1,2\n4,3,4\n")),
            (Labels{": Run Index", "Parameter: Index", "Parameter: X"}));
}

TEST(RunTableLayout, KeepsItemsThatNeverVaryBehindTheOthers)
{
  const ImportedTable table = imported("time,Value,X\n0,7,1\n1,7,2\n");
  EXPECT_EQ(labels(table), (Labels{": Time", ": Run Index", "Molecule: X", "Molecule: Value"}));
}

TEST(RunTableLayout, LetsASelectionCompareTheRightRuns)
{
  for (const char* headers :
       {"run,time,k,X", "run,time,k,Value", "run,time,k,Period", "run,Time [s],k,Value",
        "run,time,Period,X", "run,time,k,Index", "run,time,k,Mitotic Index", "run,time,Index,Value",
        "run,timepoint,k,Value", "Rep,Zeit,k,Value", "run,time,Parameter: k,Molecule: A",
        "run,t,k,Molecule: Value"})
    expectTheRightRuns(threeRuns(headers));
}

TEST(RunTableLayout, PlotsTheFirstItemOverTimeAtFirst)
{
  PlotScene view;
  PlotContainer container(nullptr);
  container.setScene(view.scene());
  showStudy(sampleStudy("run,time,k,flat,Y,Value\n0,0,1,3,5,1\n0,1,1,3,7,2\n1,0,2,3,6,3\n"
                        "1,1,2,3,4,4\n"),
            container);
  const PlotMetaData& settings = *container.getMetaData();
  EXPECT_EQ(container.getLabels(),
            (QStringList{": Time", ": Run Index", "Parameter: k", "Molecule: Y", "Molecule: Value",
                         "Molecule: flat"}));
  EXPECT_EQ(settings.xColumns, std::vector<int>{0});
  EXPECT_EQ(settings.yColumns, std::vector<int>{3});
  EXPECT_EQ(settings.parameterColumns, std::vector<int>{2});
}

TEST(RunTableLayout, FindsTimeAndRunsByTheirNamesInTheFile)
{
  PlotScene view;
  PlotContainer container(nullptr);
  container.setScene(view.scene());
  showStudy(sampleStudy(threeRuns("# run,time,k,Value")), container);
  for (const char* name : {"time", "Time", ": Time"})
    EXPECT_EQ(findColumn(container, name).value(), 0) << name;
  for (const char* name : {"run", "# run", "Run Index"})
    EXPECT_EQ(findColumn(container, name).value(), 1) << name;
  EXPECT_EQ(findColumn(container, "Value").value(), 3);
  EXPECT_EQ(findColumn(container, "period").error(),
            "no such column: period; the columns are Time, Run Index, k, Value");
}

TEST(RunTableLayout, PrefersAnItemOfThatNameToTheTime)
{
  PlotScene view;
  PlotContainer container(nullptr);
  container.setScene(view.scene());
  showStudy(sampleStudy(threeRuns("run,time,k,t")), container);
  EXPECT_EQ(findColumn(container, "t").value(), 0);
  EXPECT_EQ(container.getLabels()[0], "Molecule: t");
}

TEST(RunTableLayout, GroupsTypedColumnsByTheRealTime)
{
  // By the value there would be one run more.
  const ImportedTable table = imported(": Value,: Time [s],Molecule: X\n"
                                       "5,0,1\n4,1,2\n3,0,3\n6,1,4\n");
  expectShape(table, 2, 2);
  EXPECT_EQ(labels(table), (Labels{": Value", ": Time [s]", "Molecule: X"}));
}

TEST(RunTableLayout, PutsTheTypedTimeOnTheXAxis)
{
  for (const char* text : {": Run Index,: t,Molecule: X,Parameter: k\n"
                           "0,0,1,1\n0,1,2,1\n1,0,3,2\n1,1,4,2\n2,0,5,3\n2,1,6,3\n",
                           ": Run Index,time,Molecule: X,Parameter: k\n"
                           "0,0,1,1\n0,1,2,1\n1,0,3,2\n1,1,4,2\n2,0,5,3\n2,1,6,3\n"})
  {
    PlotScene view;
    PlotContainer container(nullptr);
    container.setScene(view.scene());
    showStudy(sampleStudy(text), container);
    EXPECT_EQ(container.getMetaData()->xColumns, std::vector<int>{0});
    EXPECT_EQ(SampleRuns::valuesOf(container.getTable()->GetColumn(0)),
              (std::vector<double>{0, 1, 0, 1, 0, 1}));
    expectTheRightRuns(text);
  }
}

TEST(RunTableLayout, LeavesTheOrderOfTypedColumnsWhereTheTimeIsFound)
{
  EXPECT_EQ(labels(imported(": Run Index,Molecule: X,: Time [s]\n0,1,0\n0,2,1\n")),
            (Labels{": Run Index", "Molecule: X", ": Time [s]"}));
  EXPECT_EQ(labels(imported("Molecule: X,: t,: Run Index\n1,0,0\n2,1,0\n")),
            (Labels{"Molecule: X", ": t", ": Run Index"}));
}

TEST(RunTableLayout, GivesAPlainColumnAnotherNameThanATypedOne)
{
  for (const char* headers : {": Time [s],Molecule: A,A,B", ": Time [s],A,Molecule: A,B"})
  {
    const ImportedTable table = imported(std::string(headers) + "\n0,1,2,3\n1,4,5,6\n");
    const bool typedFirst = std::string(headers).find("Molecule: A,A") != std::string::npos;
    expectValues(table, "Molecule: A",
                 typedFirst ? std::vector<double>{1, 4} : std::vector<double>{2, 5});
    expectValues(table, "Molecule: A (2)",
                 typedFirst ? std::vector<double>{2, 5} : std::vector<double>{1, 4});
    expectValues(table, "Molecule: B", {3, 6});
    PlotScene view;
    PlotContainer container(nullptr);
    container.setScene(view.scene());
    showStudy({"twins", table.runs, nullptr}, container);
    EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 4);
  }
}

TEST(RunTableLayout, KeepsDeclaredParametersThatOnlySomeRunsHave)
{
  const ImportedTable table =
      imported(": Time [s],Molecule: X,: Run Index,Parameter: k,Parameter: l,Parameter: m\n"
               "0,1,0,4,inf,7\n1,2,0,4,inf,7\n0,3,1,,0,7\n1,4,1,,0,7\n");
  EXPECT_EQ(table.notes, (std::vector<std::string>{
                             "The parameter \"m\" is the same in all runs and is left out."}));
  // 4 and 0 lie inside what the plots take for the bounds.
  ASSERT_EQ(table.runs->parameterRanges.size(), 3u);
  EXPECT_LT(table.runs->parameterRanges[0].first, 4.0);
  EXPECT_GT(table.runs->parameterRanges[0].second, 4.0);
  EXPECT_LT(table.runs->parameterRanges[1].first, 0.0);
  EXPECT_GT(table.runs->parameterRanges[1].second, 0.0);
  EXPECT_EQ(table.runs->parameterRanges[2], std::make_pair(7.0, 7.0));

  PlotScene view;
  PlotContainer container(nullptr);
  container.setScene(view.scene());
  showStudy({"partly", table.runs, nullptr}, container);
  EXPECT_EQ(container.getMetaData()->parameterColumns, (std::vector<int>{3, 4}));
}

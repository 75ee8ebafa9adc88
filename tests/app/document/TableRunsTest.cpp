#include "app/document/DocumentScene.h"
#include "app/document/RunConditions.h"

#include <vtkIntArray.h>
#include <vtkSmartPointer.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

using namespace Talmesh::app;

namespace
{

class SelectedTableRuns : public DocumentScene
{
protected:
  /// What the document says to words.
  std::string selectWords(const std::vector<std::string>& words)
  {
    TableRuns runs(container());
    const Result<std::vector<bool>> hit = runsWhere(runs, words);
    if (hit.hasValue())
      runs.select(hit.value());
    QCoreApplication::processEvents();
    return hit.error();
  }

  std::vector<vtkIdType> selectedRows()
  {
    const auto flags = vtkSmartPointer<vtkIntArray>::Take(container().getCurrentSelection());
    std::vector<vtkIdType> rows;
    for (vtkIdType row = 0; row < flags->GetNumberOfValues(); ++row)
      if (flags->GetValue(row) != 0)
        rows.push_back(row);
    return rows;
  }
};

using Runs = std::set<int>;
using Bits = std::vector<bool>;

} // namespace

TEST_F(SelectedTableRuns, SelectsAllRowsOfTheRunsThatMeetWords)
{
  ASSERT_EQ(open(), "");
  // X of run 1 falls from 16 to 2, of run 3 from 32 to 4.
  EXPECT_EQ(selectWords({"final(X) = 2 or final(X) = 4"}), "");
  EXPECT_EQ(selectedRuns(), (Runs{1, 3}));
  EXPECT_EQ(selectedRows(),
            (std::vector<vtkIdType>{8, 9, 10, 11, 12, 13, 14, 15, 24, 25, 26, 27, 28, 29, 30, 31}));
}

TEST_F(SelectedTableRuns, CountsTheSameRunsInEveryStyle)
{
  ASSERT_EQ(open(), "");
  EXPECT_EQ(selectWords({"k > 2 and m < 5"}), "");
  const Runs runs = selectedRuns();
  EXPECT_EQ(runs, (Runs{3, 4, 5})) << "m is 5 in run 2, then 4, 3 and 2";
  for (const plotStyles style : {xyPlot, scatterPlotMatrix, parallelCoordinates, selectionCdfPlot})
  {
    PlotChoice choice = document.choice();
    choice.style = style;
    document.choose(choice);
    QCoreApplication::processEvents();
    EXPECT_EQ(selectedRuns(), runs) << style;
    EXPECT_EQ(TableRuns(container()).selected(), (Bits{false, false, false, true, true, true}));
  }
}

TEST_F(SelectedTableRuns, AddsWhatSeveralConditionsSelect)
{
  ASSERT_EQ(open(), "");
  EXPECT_EQ(selectWords({"k = 1", "k = 6"}), "");
  EXPECT_EQ(selectedRuns(), (Runs{0, 5}));
}

TEST_F(SelectedTableRuns, KeepsTheSelectionWhenWordsAreWrong)
{
  ASSERT_EQ(open(), "");
  EXPECT_EQ(selectWords({"k = 1"}), "");
  EXPECT_EQ(selectWords({"k = 6", "k = \"Ü\" and 3"}).substr(0, 20), "k = \"Ü\" and 3: at c");
  EXPECT_EQ(selectedRuns(), Runs{0});
}

TEST_F(SelectedTableRuns, CountsTheCharactersBeforeWhatIsWrong)
{
  EXPECT_EQ(describe({6, "wrong"}, "\"Ü\" > k"), "\"Ü\" > k: at character 6: wrong");
}

TEST_F(SelectedTableRuns, HaveOneValueOfWhatChangesInNoRun)
{
  ASSERT_EQ(open("run,time,k,fixed,X\n0,0,1,7,1\n0,1,1,7,2\n1,0,2,7,2\n1,1,2,7,5\n"), "");
  EXPECT_EQ(selectWords({"fixed = 7 and k < 2"}), "");
  EXPECT_EQ(selectedRuns(), Runs{0});
  const TableRuns runs(container());
  EXPECT_EQ(runs.items().size(), 1u);
  std::vector<std::string> names;
  for (const RunColumn& column : allColumnsOfRuns(runs))
    names.push_back(column.words);
  EXPECT_EQ(names, (std::vector<std::string>{"k", "fixed", "max(X)", "mean(X)", "final(X)"}));
}

TEST_F(SelectedTableRuns, KnowsWhatHasOneValueForARun)
{
  ASSERT_EQ(open(), "");
  EXPECT_NE(selectWords({"X > 3"}).find("X changes during a run"), std::string::npos);
  EXPECT_EQ(selectWords({"run = 4"}), "");
  EXPECT_EQ(selectedRuns(), Runs{4});
}

TEST_F(SelectedTableRuns, FindsNoRunsInAPlainTable)
{
  ASSERT_EQ(open("a,b\n1,2\n3,4\n"), "");
  EXPECT_EQ(selectWords({"a > 1"}), "This table has no runs to select.");
}

TEST_F(SelectedTableRuns, SelectsWhatIsWishedWhenAStudyIsOpened)
{
  PlotWishes wishes;
  wishes.select = {"k < 3"};
  ASSERT_EQ(open(sixRuns(), wishes), "");
  EXPECT_EQ(selectedRuns(), (Runs{0, 1}));
}

TEST_F(SelectedTableRuns, AreDrawnOnceWhenAStudyIsOpened)
{
  // The library draws by itself when a selection of runs with parameters changes.
  PlotWishes wishes;
  wishes.select = {"k < 3"};
  int drawn = 0;
  Document counted(
      [&](PlotContainer& shown)
      {
        shown.setScene(scene.scene());
        shown.addCompletion(&counter, [&drawn] { ++drawn; });
      });
  OpenedStudy opened;
  opened.study = sampleStudy(sixRuns());
  ASSERT_EQ(counted.open(opened, wishes), "");
  EXPECT_EQ(drawn, 1);
}

TEST(RunCombination, ReplacesAddsSubtractsAndToggles)
{
  const Bits before = {false, false, true, true};
  const Bits hit = {false, true, false, true};
  EXPECT_EQ(combineRuns(before, hit, RunCombination::Replace), hit);
  EXPECT_EQ(combineRuns(before, hit, RunCombination::Add), (Bits{false, true, true, true}));
  EXPECT_EQ(combineRuns(before, hit, RunCombination::Subtract), (Bits{false, false, true, false}));
  EXPECT_EQ(combineRuns(before, hit, RunCombination::Toggle), (Bits{false, true, true, false}));
}

TEST_F(SelectedTableRuns, ListsParametersAndItemsUnderNamesThatFiltersKnow)
{
  ASSERT_EQ(open(), "");
  const TableRuns runs(container());
  EXPECT_EQ(runs.parameters(), (std::vector<int>{4, 5}));
  EXPECT_EQ(runs.items(), (std::vector<int>{0, 1})) << "neither time nor numbers of runs";
  std::vector<std::string> words;
  for (const RunColumn& column : allColumnsOfRuns(runs))
    words.push_back(column.words);
  EXPECT_EQ(words, (std::vector<std::string>{"k", "m", "max(X)", "mean(X)", "final(X)", "max(Y)",
                                             "mean(Y)", "final(Y)"}));
}

TEST_F(SelectedTableRuns, NamesColumnsInFullWhereTheirLabelsAreAlike)
{
  ASSERT_EQ(open("run,time,A [x],Reaction: A [x],k-1\n1,0,1,2,5\n1,1,2,3,5\n2,0,1,2,6\n"
                 "2,1,0,9,6\n"),
            "");
  const TableRuns runs(container());
  for (const RunColumn& column : allColumnsOfRuns(runs))
  {
    FilterFault fault;
    RunFilter::read(column.words + " > 0", runs, fault);
    EXPECT_EQ(fault.text, "") << column.words;
    EXPECT_NE(column.words.find('"'), std::string::npos) << column.words;
  }
}

TEST_F(SelectedTableRuns, HasNoMoreThanTheLastValueOfRunsOfOnePoint)
{
  ASSERT_EQ(open("run,k,X\n1,5,1\n2,6,3\n3,7,2\n"), "");
  ASSERT_EQ(TableRuns(container()).numberOfRuns(), 3U);
  for (const RunColumn& column : allColumnsOfRuns(TableRuns(container())))
    EXPECT_TRUE(!column.feature || column.feature == RunFeature::Final) << column.words;
}

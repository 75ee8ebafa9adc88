#include "app/document/SelectionWords.h"

#include "app/document/DocumentScene.h"
#include "app/document/TableRuns.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <QUndoStack>

#include <random>
#include <string>
#include <vector>

using namespace Talmesh::app;

namespace
{

class SelectionInWords : public DocumentScene
{
protected:
  SelectionInWords() { EXPECT_EQ(open(), ""); }

  SelectionController& selection() { return document.selection(); }
  QUndoStack& steps() { return selection().undoStack(); }

  void step(const std::string& words, RunCombination how)
  {
    ASSERT_EQ(selection().selectWhere(words, how).text, "") << words;
  }

  /// The runs that meet what the controller says of its selection.
  std::vector<bool> runsOfWords()
  {
    TableRuns runs(container());
    FilterFault fault;
    const RunFilter filter = RunFilter::read(selection().words(), runs, fault);
    EXPECT_EQ(fault.text, "") << selection().words();
    return filter.select(runs, {}).value();
  }
};

constexpr RunCombination operations[] = {RunCombination::Replace, RunCombination::Add,
                                         RunCombination::Subtract, RunCombination::Toggle};

} // namespace

TEST(SelectionWords, AreNoneOfAnyConditionsWhereOneIsTooLong)
{
  EXPECT_EQ(wordsOfAny({"a > 1", "b > 1"}), "a > 1 or b > 1");
  EXPECT_EQ(wordsOfAny({std::string(mostCharactersOfWords + 1, 'a'), "b > 1"}), "");
}

TEST_F(SelectionInWords, IsTheConditionThatOnlyTheSelectedRunsMeet)
{
  const std::vector<std::string> conditions = {"k > 2", "m < 4 or k = 1", "not m = 3",
                                               "run = 2 or k < 2 and m > 0", "runs(0, 5)"};
  std::mt19937 random(7);
  int said = 0;
  for (int i = 0; i < 200; ++i)
  {
    step(conditions[random() % conditions.size()], operations[random() % 4]);
    const std::vector<bool> selected = selection().selectedRuns();
    if (selected == std::vector<bool>(6, false) || selection().words().empty())
      continue;
    ++said;
    ASSERT_EQ(runsOfWords(), selected) << selection().words();
  }
  EXPECT_GT(said, 100);
}

TEST_F(SelectionInWords, NamesTheRunsWhoseRowsAClientHasSelected)
{
  step("k > 2", RunCombination::Replace);
  select({0});
  EXPECT_EQ(selection().words(), "runs(0)");
  step("k > 2", RunCombination::Add);
  EXPECT_EQ(selection().words(), "runs(0) or k > 2");
}

TEST_F(SelectionInWords, SaysWhatIsSelectedByWhoeverSaysNothing)
{
  selection().selectAll();
  EXPECT_EQ(selection().words(), "all");
  EXPECT_EQ(steps().text(0), "Select 6 runs: all");
  step("k > 2", RunCombination::Subtract);
  EXPECT_EQ(selection().words(), "(all) and not (k > 2)");
  Talmesh::selectRows(container().getAnnotationLink(), container().getTable(),
                      std::vector<bool>(48, true), 0);
  EXPECT_EQ(selection().words(), "all") << "whole runs of a client";
  selection().clear();
  EXPECT_EQ(steps().text(3), "Select nothing: none");
  EXPECT_EQ(steps().undoText(), "Select nothing");
  group();
  document.groups().select(0);
  EXPECT_EQ(steps().text(4).toStdString().find(": runs("), 13u) << "Select n runs: runs(...)";
  EXPECT_EQ(runsOfWords(), selection().selectedRuns());
}

TEST_F(SelectionInWords, AreNotNeededForARunAfterAnother)
{
  TableRuns runs(container());
  EXPECT_EQ(runs.words({true, true, true, true, false, true}), "0 <= run <= 3 or runs(5)");
  EXPECT_EQ(runs.words({false, true, true, true, false, true}), "runs(1, 2, 3, 5)");
  EXPECT_EQ(runs.words({false, false, true, true, true, true}), "2 <= run <= 5");
  step(runs.words({true, true, true, true, false, true}), RunCombination::Replace);
  EXPECT_EQ(selectedRuns(), (std::set<int>{0, 1, 2, 3, 5}));
}

TEST_F(SelectionInWords, AreTakenAwayFromWithoutEnd)
{
  selection().selectAll();
  std::string words = selection().words();
  for (int i = 0; i < 300; ++i)
    words = wordsAfter(words, true, {RunCombination::Subtract, "k > 9"});
  step(words, RunCombination::Replace);
  EXPECT_EQ(selectedRuns().size(), 6u);
  for (int i = 0; i < 300; ++i)
    words = wordsOfOthers(words);
  step(words, RunCombination::Replace);
  EXPECT_EQ(selectedRuns().size(), 6u);
  words = "k > 1";
  for (int i = 0; i < 300 && !words.empty(); ++i)
  {
    TableRuns runs(container());
    FilterFault fault;
    RunFilter::read(words, runs, fault);
    ASSERT_EQ(fault.text, "") << i;
    words =
        wordsAfter(words, true, {i % 2 ? RunCombination::Add : RunCombination::Subtract, "m = 1"});
  }
}

TEST_F(SelectionInWords, IsTurnedRoundWithTheSelection)
{
  step("k > 2 or m = 1", RunCombination::Replace);
  const std::vector<bool> before = selection().selectedRuns();
  selection().invert();
  EXPECT_EQ(selection().words(), "not (k > 2 or m = 1)");
  EXPECT_EQ(steps().text(1), "Invert Selection: not (k > 2 or m = 1)");
  EXPECT_NE(runsOfWords(), before);
  EXPECT_EQ(runsOfWords(), selection().selectedRuns());
  selection().invert();
  EXPECT_EQ(selection().words(), "k > 2 or m = 1");
  step("not (k > 2) or not (m = 5)", RunCombination::Replace);
  selection().invert();
  EXPECT_EQ(selection().words(), "not (not (k > 2) or not (m = 5))");
  EXPECT_EQ(runsOfWords(), selection().selectedRuns());
}

TEST_F(SelectionInWords, AreAllAfterNothingIsTurnedRound)
{
  selection().invert();
  EXPECT_EQ(selection().words(), "all");
  EXPECT_EQ(steps().text(0), "Invert Selection: all");
  selection().invert();
  EXPECT_EQ(selectedRuns(), std::set<int>{});
  EXPECT_EQ(selection().words(), "");
}

TEST_F(SelectionInWords, NameTheRunsWhereTheWayThereIsTooLong)
{
  const std::string blanks(mostCharactersOfWords - 10, ' ');
  step("k > 4 or" + blanks + "m = 1", RunCombination::Replace);
  step("k > 4 and" + blanks + "m > 1", RunCombination::Add);
  ASSERT_FALSE(selectedRuns().empty());
  EXPECT_LT(selection().words().size(), 100U);
  EXPECT_EQ(runsOfWords(), selection().selectedRuns());
  selection().invert();
  step("k > 4 or" + blanks + "m = 1", RunCombination::Replace);
  selection().invert();
  EXPECT_LT(selection().words().size(), 100U);
  EXPECT_EQ(runsOfWords(), selection().selectedRuns());
}

TEST_F(SelectionInWords, IsNothingWithoutASelection)
{
  step("k > 2", RunCombination::Replace);
  selection().clear();
  EXPECT_EQ(selection().words(), "");
  step("m > 2", RunCombination::Toggle);
  EXPECT_EQ(selection().words(), "m > 2") << "toggled from nothing";
}

TEST_F(SelectionInWords, KeepConditionsThatNoRunMeetsHere)
{
  step("k > 99", RunCombination::Replace);
  EXPECT_EQ(steps().count(), 0) << "nothing was selected, and nothing is";
  step("m > 2", RunCombination::Add);
  EXPECT_EQ(selection().words(), "k > 99 or m > 2");
  step("k > 99", RunCombination::Replace);
  EXPECT_EQ(selection().words(), "");
  step("m = 1", RunCombination::Toggle);
  EXPECT_EQ(selection().words(), "(k > 99) xor (m = 1)");
  EXPECT_EQ(runsOfWords(), selection().selectedRuns());
}

TEST_F(SelectionInWords, AreThoseOfWhatWasSelectedAtFirst)
{
  EXPECT_EQ(selection().wordsAtFirst(), "");
  PlotWishes wishes;
  wishes.select = {"k > 4", "m = 1"};
  ASSERT_EQ(open(sixRuns(), wishes), "");
  EXPECT_EQ(selection().wordsAtFirst(), "k > 4 or m = 1");
  for (int i = 0; i < 130; ++i)
    step(i % 2 ? "k > 4" : "m > 4", RunCombination::Replace);
  EXPECT_EQ(steps().count(), 100);
  EXPECT_EQ(selection().forgottenSteps(), 30);
}

TEST_F(SelectionInWords, FollowsUndoAndRedo)
{
  step("k > 2", RunCombination::Replace);
  step("m = 1", RunCombination::Subtract);
  EXPECT_EQ(selection().words(), "k > 2") << "run 0 alone has m = 1, and k = 1: nothing changed";
  step("m > 4", RunCombination::Add);
  EXPECT_EQ(selection().words(), "k > 2 or m > 4");
  steps().undo();
  EXPECT_EQ(selection().words(), "k > 2");
  steps().undo();
  EXPECT_EQ(selection().words(), "");
  steps().redo();
  steps().redo();
  EXPECT_EQ(selection().words(), "k > 2 or m > 4");
}

TEST(SelectionWords, AreNoWordsWhenTheyAreTooLongForAnyone)
{
  std::string words = "k > 1";
  for (int i = 0; i < 40; ++i)
    words = wordsAfter(words, true, {RunCombination::Toggle, "m > 2"});
  EXPECT_EQ(words.substr(0, 35), "(k > 1) xor (m > 2) xor (m > 2) xor") << "as long as it is said";
  const std::string tooLong = "m > " + std::string(mostCharactersOfWords, '1');
  EXPECT_EQ(wordsAfter(words, true, {RunCombination::Add, tooLong}), "");
}

TEST(SelectionWords, AreNotInAStepThatNamesTooManyRuns)
{
  const std::vector<bool> hit(9000, true);
  EXPECT_EQ(stepText(RunCombination::Replace, hit, std::string(mostCharactersOfWords + 1, '1')),
            "Select 9000 runs, too many to name\nSelect 9000 runs");
}

TEST_F(SelectionInWords, AreThoseOfTheStudyThatIsOpenedForWhoeverHearsOfIt)
{
  step("k > 2", RunCombination::Replace);
  std::vector<std::string> heard;
  QObject::connect(&steps(), &QUndoStack::indexChanged,
                   [&] { heard.push_back(selection().words()); });
  ASSERT_EQ(open(), "");
  EXPECT_EQ(heard, std::vector<std::string>{""});
}

TEST(SelectionWords, NameTheFewestRunsThatLeadToOthers)
{
  const auto bits = [](const char* text)
  {
    std::vector<bool> runs;
    for (; *text != 0; ++text)
      runs.push_back(*text == '1');
    return runs;
  };
  const auto expectStep =
      [&](const char* before, const char* after, RunCombination how, const char* hit)
  {
    const RunStep step = shortestStep(bits(before), bits(after));
    EXPECT_EQ(step.how, how) << before << ' ' << after;
    EXPECT_EQ(step.hit, bits(hit)) << before << ' ' << after;
  };
  expectStep("0000", "0110", RunCombination::Replace, "0110");
  expectStep("0110", "0111", RunCombination::Add, "0001");
  expectStep("0111", "0011", RunCombination::Subtract, "0100");
  expectStep("01111", "10111", RunCombination::Toggle, "11000");
  expectStep("1111", "1000", RunCombination::Replace, "1000");
  expectStep("1100", "0000", RunCombination::Replace, "0000");
}

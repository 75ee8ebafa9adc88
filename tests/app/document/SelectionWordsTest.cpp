#include "app/document/SelectionWords.h"

#include "app/document/DocumentScene.h"
#include "app/document/TableRuns.h"

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

TEST_F(SelectionInWords, IsUnknownAfterAChangeThatNobodyHasSaid)
{
  selection().selectAll();
  EXPECT_EQ(selection().words(), "");
  step("k > 2", RunCombination::Subtract);
  EXPECT_EQ(selection().words(), "") << "what it was taken from is unknown";
  step("m > 2", RunCombination::Replace);
  EXPECT_EQ(selection().words(), "m > 2");
}

TEST_F(SelectionInWords, IsTurnedRoundWithTheSelection)
{
  step("k > 2 or m = 1", RunCombination::Replace);
  const std::vector<bool> before = selection().selectedRuns();
  selection().invert();
  EXPECT_EQ(selection().words(), "not (k > 2 or m = 1)");
  EXPECT_NE(runsOfWords(), before);
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
  EXPECT_EQ(words, "");
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

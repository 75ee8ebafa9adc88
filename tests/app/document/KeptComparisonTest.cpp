#include "app/comparison/ComparisonSummary.h"
#include "app/document/ComparedSides.h"
#include "app/document/DocumentScene.h"

#include <vtkChartMatrix.h>

#include <algorithm>

using namespace Talmesh::app;
using State = Comparison::State;

namespace
{

class KeptComparison : public DocumentScene
{
protected:
  KeptComparison() { EXPECT_EQ(open(), ""); }

  void keep(const std::string& name, const std::set<std::size_t>& runs,
            const std::string& words = {})
  {
    std::vector<bool> members(6, false);
    for (const std::size_t run : runs)
      members[run] = true;
    document.kept().keep(name, members, words);
  }

  const Comparison& compare(const std::string& compared, const std::string& with)
  {
    ComparisonChoice choice = comparisonChoiceOf(*document.container());
    choice.compared = compared;
    choice.comparedWith = with;
    document.compareBy(choice);
    return document.comparison().current();
  }

  void selectWhere(const std::string& words)
  {
    ASSERT_EQ(document.selection().selectWhere(words, RunCombination::Replace).text, "");
    QCoreApplication::processEvents();
  }

  ComparisonChoice chosen() { return comparisonChoiceOf(*document.container()); }
};

} // namespace

TEST_F(KeptComparison, IsOfTwoKeptSelections)
{
  keep("low", {0, 1});
  keep("high", {3, 4, 5});
  const Comparison& found = compare("high", "low");
  ASSERT_EQ(found.state, State::compared);
  // k is 1 to 6: 4, 5, 6 with 1, 2. p = 2 / choose(5, 2).
  EXPECT_EQ(found.parameters[0].result.selected, 3U);
  EXPECT_EQ(found.parameters[0].result.others, 2U);
  EXPECT_DOUBLE_EQ(found.parameters[0].result.distance, 1.0);
  EXPECT_NEAR(found.parameters[0].result.p, 0.2, 1e-15);
  EXPECT_DOUBLE_EQ(found.parameters[0].result.medianDifference, 3.5);
  EXPECT_TRUE(summaryText(found, 1).startsWith("high compared with low. Independent: 5 runs."))
      << summaryText(found, 1).toStdString();
}

TEST_F(KeptComparison, IsOfAKeptSelectionWithItsRest)
{
  selectWhere("k < 4.5");
  keep("high", {4, 5});
  const Comparison& found = compare("high", "");
  EXPECT_EQ(found.parameters[0].result.selected, 2U);
  EXPECT_EQ(found.parameters[0].result.others, 4U);
  EXPECT_EQ(found.parameters[0].obstacle, TestObstacle::none)
      << "the present selection asks for k, not this one";
}

TEST_F(KeptComparison, IsOfThePresentSelectionWithAKeptOne)
{
  keep("high", {4, 5}, "k > 4.5");
  selectWhere("max(X) < 25");
  const Comparison& found = compare("", "high");
  EXPECT_EQ(found.parameters[0].result.selected, 3U);
  EXPECT_EQ(found.parameters[0].result.others, 2U);
  EXPECT_EQ(found.parameters[0].obstacle, TestObstacle::chosenByParameter);
  EXPECT_TRUE(summaryText(found, 1).startsWith("The present selection compared with high."));
}

TEST_F(KeptComparison, LeavesOutRunsThatAreInBoth)
{
  keep("low", {0, 1, 2});
  keep("wide", {2, 3, 4, 5});
  const Comparison& found = compare("wide", "low");
  EXPECT_EQ(found.inBoth, 1U);
  EXPECT_EQ(found.parameters[0].result.selected, 3U);
  EXPECT_EQ(found.parameters[0].result.others, 2U);
  EXPECT_TRUE(summaryText(found, 1).contains("Runs in both, which count for neither: 1."));
  EXPECT_EQ(compare("low", "low").state, State::onlyInBoth);
  EXPECT_FALSE(explanationText(document.comparison().current()).isEmpty());
  keep("none", {});
  EXPECT_EQ(compare("none", "").state, State::nothingSelected);
  EXPECT_EQ(explanationText(document.comparison().current()), "none has no runs.");
  EXPECT_EQ(compare("low", "none").state, State::noOthers);
}

TEST_F(KeptComparison, FollowsNamesAndFallsBackWithoutThem)
{
  keep("low", {0, 1});
  compare("low", "");
  document.kept().rename(0, "small");
  EXPECT_EQ(chosen().compared, "small");
  EXPECT_EQ(document.comparison().current().state, State::compared);
  document.kept().remove(0);
  EXPECT_EQ(document.comparison().current().state, State::nothingSelected);
  document.selection().undoStack().undo();
  EXPECT_EQ(document.comparison().current().parameters[0].result.selected, 2U);
}

TEST_F(KeptComparison, IsDrawnInTheColoursOfTheKeptSelections)
{
  keep("low", {0, 1});
  keep("high", {3, 4, 5});
  document.kept().recolour(1, 0x102030);
  compare("high", "low");
  PlotChoice choice = document.choice();
  choice.style = selectionCdfPlot;
  document.choose(choice);
  auto* matrix = vtkChartMatrix::SafeDownCast(document.container()->getItem());
  ASSERT_NE(matrix, nullptr);
  const auto colour = [&](vtkIdType plot)
  {
    unsigned char rgb[3];
    matrix->GetChart(vtkVector2i(0, 0))->GetPlot(plot)->GetColor(rgb);
    return rgb[0] << 16 | rgb[1] << 8 | rgb[2];
  };
  EXPECT_EQ(colour(1), 0x102030);
  EXPECT_EQ(colour(2), static_cast<int>(document.kept().list()[0].colour));
  document.kept().recolour(1, 0x405060);
  EXPECT_EQ(colour(1), 0x405060);
  compare("high", "");
  EXPECT_EQ(colour(2), 0x808080);
}

TEST_F(KeptComparison, IsKeptInSessions)
{
  keep("low", {0, 1});
  keep("high", {3, 4, 5});
  selectWhere("max(X) < 25");
  selectWhere("max(X) < 17");
  compare("high", "low");
  ComparisonChoice choice = chosen();
  choice.seed = 4711;
  document.compareBy(choice);
  const std::size_t looked = document.comparison().selections();
  EXPECT_EQ(looked, 3U);
  const QString path = folder.filePath("kept.talmesh");
  ASSERT_EQ(document.save(path), "");
  const Result<OpenedStudy> opened = openStudyFile(path);
  ASSERT_TRUE(opened.hasValue()) << opened.error();
  ASSERT_EQ(document.open(opened.value()), "");
  EXPECT_EQ(chosen().compared, "high");
  EXPECT_EQ(chosen().comparedWith, "low");
  EXPECT_EQ(chosen().seed, 4711U);
  EXPECT_EQ(document.comparison().current().parameters[0].result.selected, 3U);
  EXPECT_EQ(document.comparison().selections(), looked);
  compare("low", "");
  EXPECT_EQ(document.comparison().selections(), looked + 1);
  compare("", "");
  PlotWishes wishes;
  wishes.select = {"max(X) < 35"};
  ASSERT_EQ(document.save(path), "");
  const std::size_t lookedThen = document.comparison().selections();
  const Result<OpenedStudy> again = openStudyFile(path);
  ASSERT_EQ(document.open(again.value(), wishes), "");
  ASSERT_EQ(document.comparison().current().state, State::compared);
  EXPECT_EQ(document.comparison().selections(), lookedThen + 1);
}

TEST_F(KeptComparison, SaysInHalvesWhatSelectsTheRuns)
{
  ComparisonChoice choice = chosen();
  choice.halves = true;
  document.compareBy(choice);
  selectWhere("max(X) > 25");
  EXPECT_TRUE(document.comparison().current().byWords);
  selectWhere("runs(1, 3)");
  EXPECT_FALSE(document.comparison().current().byWords) << "a list says nothing of other runs";
  EXPECT_TRUE(summaryText(document.comparison().current(), 1).contains("itself was split"));
  keep("kept", {0, 1});
  EXPECT_FALSE(compare("kept", "").byWords);
  keep("said", {4, 5}, "max(X) > 33");
  EXPECT_TRUE(compare("said", "").byWords);
}

TEST_F(KeptComparison, RemembersWhatWasAskedForWhereWordsAreLost)
{
  selectWhere("k < 2.5");
  document.selection().selectRuns({false, false, false, false, false, true}, {},
                                  RunCombination::Add);
  QCoreApplication::processEvents();
  ASSERT_EQ(document.selection().words().find('k'), std::string::npos) << "runs are named instead";
  const auto obstacleOf = [this](std::size_t k)
  { return document.comparison().current().parameters[k].obstacle; };
  EXPECT_EQ(obstacleOf(0), TestObstacle::chosenByParameter);
  EXPECT_EQ(obstacleOf(1), TestObstacle::none);
  document.selection().invert();
  QCoreApplication::processEvents();
  EXPECT_EQ(obstacleOf(0), TestObstacle::chosenByParameter);
  document.selection().undoStack().undo();
  QCoreApplication::processEvents();
  EXPECT_EQ(obstacleOf(0), TestObstacle::chosenByParameter);
  select({1, 2});
  EXPECT_EQ(obstacleOf(0), TestObstacle::none) << "replaced";
}

TEST_F(KeptComparison, LooksForNoRunsAgainInHalves)
{
  keep("said", {4, 5}, "max(X) > 33");
  // As runs that are normalised: none meets the words any more.
  Talmesh::plot::doubleColumn(document.container()->getTable(), 0)->FillComponent(0, 1.0);
  ComparisonChoice choice = chosen();
  choice.halves = true;
  document.compareBy(choice);
  EXPECT_EQ(compare("said", "").state, State::compared);
}

#include "app/document/AskedParameters.h"

#include "app/comparison/ComparisonResults.h"

#include "document/DocumentScene.h"

using namespace Talmesh::app;

namespace
{

/// Six runs with the parameters k and m, selected by a condition on k that is too long to be kept.
class AskedParameters : public DocumentScene
{
protected:
  AskedParameters()
  {
    EXPECT_EQ(open(), "");
    std::string words = "k > 3";
    while (words.size() <= mostCharactersOfWords)
      words += " and k > 3";
    EXPECT_EQ(document.selection().selectWhere(words, RunCombination::Replace).text, "");
    QCoreApplication::processEvents();
    EXPECT_EQ(document.selection().words(), "runs(3, 4, 5)");
  }

  std::vector<std::string> asked()
  {
    return askedBeside(document.selection().words(), container(),
                       document.selection().followedConditions());
  }

  TestObstacle obstacleOf(std::size_t parameter)
  {
    return document.comparison().current().parameters.at(parameter).obstacle;
  }

  void saveAndOpen()
  {
    const QString path = folder.filePath("study.talmesh");
    ASSERT_EQ(document.save(path), "");
    const Result<OpenedStudy> opened = openStudyFile(path);
    ASSERT_TRUE(opened.hasValue()) << opened.error();
    ASSERT_EQ(document.open(opened.value()), "");
  }
};

} // namespace

TEST_F(AskedParameters, AreThoseThatTheWordsDoNotName)
{
  EXPECT_EQ(asked(), std::vector<std::string>{"k"});
  EXPECT_TRUE(askedBeside("k > 1", container(), {"k > 3"}).empty());
  EXPECT_EQ(askedBeside("k > 1", container(), {"k > 3 and m < 2", "max(X) > 1", "strange"}),
            std::vector<std::string>{"m"});
}

TEST_F(AskedParameters, AreAskedAboutByConditionsOfTheirOwn)
{
  EXPECT_EQ(askedBeside({}, container(), conditionsOn({"k", "m"})),
            (std::vector<std::string>{"k", "m"}));
  EXPECT_EQ(conditionsOn({"k cat"}), std::vector<std::string>{"\"k cat\" = \"k cat\""});
}

TEST_F(AskedParameters, AreNotTestedInASessionEither)
{
  ASSERT_EQ(obstacleOf(0), TestObstacle::chosenByParameter);
  saveAndOpen();
  EXPECT_EQ(obstacleOf(0), TestObstacle::chosenByParameter);
  EXPECT_NE(obstacleOf(1), TestObstacle::chosenByParameter);
  saveAndOpen();
  EXPECT_EQ(obstacleOf(0), TestObstacle::chosenByParameter) << "nor in the one after";
}

TEST_F(AskedParameters, AreNotTestedOfAKeptSelection)
{
  document.kept().keep("fast", document.selection().selectedRuns(), document.selection().words(),
                       asked());
  document.selection().clear();
  QCoreApplication::processEvents();
  for (const bool isFirst : {true, false})
  {
    document.selection().selectRuns({true, false, true, false, true, false}, "runs(0, 2, 4)",
                                    RunCombination::Replace);
    QCoreApplication::processEvents();
    ComparisonChoice choice = comparisonChoiceOf(container());
    choice.compared = isFirst ? "fast" : "";
    choice.comparedWith = isFirst ? "" : "fast";
    document.compareBy(choice);
    EXPECT_EQ(obstacleOf(0), TestObstacle::chosenByParameter) << isFirst;
    EXPECT_NE(obstacleOf(1), TestObstacle::chosenByParameter) << isFirst;
  }
  saveAndOpen();
  EXPECT_EQ(obstacleOf(0), TestObstacle::chosenByParameter);
}

TEST_F(AskedParameters, AreNotTestedWhenTheKeptRunsAreSelectedAgain)
{
  const std::vector<std::string> fast = asked();
  document.selection().clear();
  QCoreApplication::processEvents();
  document.selection().selectRuns({false, false, false, true, true, true}, "runs(3, 4, 5)",
                                  RunCombination::Replace, conditionsOn(fast));
  QCoreApplication::processEvents();
  EXPECT_EQ(obstacleOf(0), TestObstacle::chosenByParameter);
  EXPECT_EQ(asked(), fast) << "for who keeps them once more";
  document.selection().selectRuns({true}, {}, RunCombination::Replace);
  document.selection().selectRuns({true, true, false, false, false, false}, "runs(0, 1)",
                                  RunCombination::Replace);
  QCoreApplication::processEvents();
  EXPECT_TRUE(asked().empty());
}

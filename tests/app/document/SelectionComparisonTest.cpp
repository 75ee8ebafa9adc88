#include "external/PlotMetaData.h"

#include <vtkTable.h>

#include <QSignalSpy>

#include <cmath>

#include "document/SelectionComparisonOfRuns.h"

using namespace Talmesh::app;
using State = Comparison::State;
namespace stats = Talmesh::stats;

namespace
{

/// Runs of three points; `values` has k of the run and the point, m is the run's own.
template <typename Values>
std::string runsWith(int runs, Values values)
{
  std::ostringstream text;
  text << "Molecule: X,: Time [s],Parameter: k,Parameter: m\n";
  for (int run = 0; run < runs; ++run)
    for (int point = 0; point < 3; ++point)
      text << run + point << ',' << point << ',' << values(run, point) << ',' << run * 7 % runs
           << '\n';
  return text.str();
}

class SelectionComparisonOfASwitch : public SelectionComparisonOfRuns
{
protected:
  SelectionComparisonOfASwitch()
      : SelectionComparisonOfRuns(runsWith(20, [](int run, int) { return run % 2; }))
  {
  }
};

class SelectionComparisonWithAGap : public SelectionComparisonOfRuns
{
protected:
  SelectionComparisonWithAGap()
      : SelectionComparisonOfRuns(runsWith(
            20, [](int run, int) { return run == 3 ? std::string("nan") : std::to_string(run); }))
  {
  }
};

class SelectionComparisonOfAChangingParameter : public SelectionComparisonOfRuns
{
protected:
  SelectionComparisonOfAChangingParameter()
      : SelectionComparisonOfRuns(runsWith(20, [](int run, int point) { return 10 * run + point; }))
  {
  }
};

} // namespace

TEST_F(SelectionComparisonOfRuns, FollowsTheSelection)
{
  EXPECT_EQ(comparison.current().state, State::nothingSelected);
  select(firstRuns(8));
  const Comparison& found = comparison.current();
  ASSERT_EQ(found.parameters.size(), 2U);
  EXPECT_EQ(found.parameters[0].name, "k");
  EXPECT_EQ(found.parameters[0].result.selected, 8U);
  EXPECT_EQ(found.parameters[0].result.others, 12U);
  // The two groups do not overlap in k: p = 2 / choose(20, 8).
  EXPECT_DOUBLE_EQ(found.parameters[0].result.distance, 1.0);
  EXPECT_NEAR(found.parameters[0].result.p, 2.0 / 125970.0, 1e-18);
  // R 4.2.2: ks.test(c(0,7,14,1,8,15,2,9), c(16,3,10,17,4,11,18,5,12,19,6,13))$statistic is 5/12
  EXPECT_NEAR(found.parameters[1].result.distance, 5.0 / 12.0, 1e-12);
  select(firstRuns(3));
  EXPECT_EQ(comparison.current().parameters[0].result.selected, 3U);
  select(firstRuns(20));
  EXPECT_EQ(comparison.current().state, State::noOthers);
}

TEST_F(SelectionComparisonOfRuns, CountsARunWithAnySelectedRow)
{
  selectRows({0, 4});
  EXPECT_EQ(comparison.current().parameters[0].result.selected, 2U);
}

TEST_F(SelectionComparisonOfRuns, HandsItsTestsToTheContainerBeforeItDraws)
{
  select(firstRuns(8));
  ASSERT_EQ(handed().size(), 2U);
  EXPECT_EQ(handed()[0].title, "adjusted p = 3.18e-05");
  EXPECT_EQ(handed()[0].pValue, comparison.current().parameters[0].result.adjusted);
  EXPECT_EQ(handed()[0].statistic, 1.0);
  selectRows({});
  EXPECT_EQ(handed()[0].title, "") << "drawn without tests of an earlier selection";
  EXPECT_TRUE(std::isnan(handed()[0].pValue));
}

TEST_F(SelectionComparisonOfRuns, FollowsTheThresholdsAndTheChosenTest)
{
  select(firstRuns(8));
  ComparisonChoice choice = comparisonChoiceOf(container());
  EXPECT_FALSE(comparison.current().parameters[1].significant);
  choice.pThreshold = 1.0;
  choice.comparedBy = stats::ComparedBy::rankSum;
  writeComparisonChoice(container(), choice);
  EXPECT_TRUE(comparison.current().parameters[1].significant);
  EXPECT_EQ(comparison.current().parameters[0].result.method, stats::TestMethod::exactRankSum);
  choice.halves = true;
  writeComparisonChoice(container(), choice);
  EXPECT_TRUE(comparison.current().halved);
}

TEST_F(SelectionComparisonOfRuns, CountsTheSelectionsThatWereLookedAt)
{
  EXPECT_EQ(comparison.selections(), 0U);
  select(firstRuns(8));
  container().redraw();
  EXPECT_EQ(comparison.selections(), 1U);
  selectRows({});
  select(firstRuns(5));
  select(firstRuns(8));
  EXPECT_EQ(comparison.selections(), 2U) << "nothing is none, and none counts twice";
  comparison.follow(&container());
  EXPECT_EQ(comparison.selections(), 0U);
}

TEST_F(SelectionComparisonOfRuns, DoesNotTestTheParameterThatTheWordsName)
{
  comparison.setWords([] { return std::string("max(X) > 3 and not k < 5"); });
  select(firstRuns(8));
  const Comparison& found = comparison.current();
  ASSERT_EQ(found.parameters.size(), 2U);
  EXPECT_EQ(found.parameters[0].obstacle, TestObstacle::chosenByParameter);
  EXPECT_EQ(found.parameters[1].obstacle, TestObstacle::none);
  EXPECT_EQ(handed()[0].title, "chosen by this parameter");
  comparison.setWords([] { return std::string("dot(k over m, 0, 1, 0, 1)"); });
  EXPECT_EQ(comparison.current().parameters[1].obstacle, TestObstacle::chosenByParameter);
  comparison.setWords([] { return std::string("not a condition ("); });
  EXPECT_EQ(comparison.current().parameters[0].obstacle, TestObstacle::none);
}

TEST_F(SelectionComparisonOfRuns, AnnouncesWhatTheChartsDoNotSay)
{
  QSignalSpy found(&comparison, &SelectionComparison::found);
  select(firstRuns(8));
  comparison.current();
  EXPECT_EQ(found.count(), 0) << "drawn so";
  comparison.setWords([] { return std::string("k < 8"); });
  comparison.current();
  EXPECT_EQ(found.count(), 1);
  comparison.current();
  EXPECT_EQ(found.count(), 1);
}

TEST_F(SelectionComparisonOfRuns, HasNothingToSayOfNoContainer)
{
  select(firstRuns(8));
  comparison.follow(nullptr);
  EXPECT_EQ(comparison.current().state, State::noParameters);
  widget.reset();
  EXPECT_EQ(comparison.current().state, State::noParameters);
}

TEST_F(SelectionComparisonOfASwitch, TestsParametersWhoseValuesRepeat)
{
  selectRunsByRows(firstRuns(8));
  const Comparison& found = comparison.current();
  ASSERT_EQ(found.parameters.size(), 2U);
  EXPECT_EQ(found.parameters[0].obstacle, TestObstacle::none);
  EXPECT_EQ(found.parameters[0].result.p, 1.0) << "each group has as many of both";
  EXPECT_EQ(found.units.units, 20U) << "m makes every run a set of its own";
}

TEST_F(SelectionComparisonWithAGap, LeavesOutTheRunWithoutAValue)
{
  selectRunsByRows({0, 3, 6, 9, 12});
  const Comparison& found = comparison.current();
  ASSERT_EQ(found.parameters.size(), 2U);
  EXPECT_EQ(found.parameters[0].result.selected, 4U);
  EXPECT_EQ(found.parameters[0].obstacle, TestObstacle::none);
  EXPECT_EQ(found.parameters[1].result.selected, 5U);
}

TEST_F(SelectionComparisonOfAChangingParameter, TestsTheOthersOnly)
{
  selectRunsByRows(firstRuns(8));
  const Comparison& found = comparison.current();
  ASSERT_EQ(found.parameters.size(), 2U);
  EXPECT_EQ(found.parameters[0].obstacle, TestObstacle::changingValues);
  EXPECT_EQ(found.parameters[1].obstacle, TestObstacle::none);
  EXPECT_FALSE(std::isnan(found.parameters[1].result.p));
}

TEST_F(SelectionComparisonOfRuns, HandsRunsOverOnlyWhereTheyAreDrawn)
{
  const auto groups = [this] { return ::stateOf(container()).distributionGroups; };
  const auto show = [this](plotStyles style)
  {
    const QSignalBlocker silent(container().getMetaData());
    container().getMetaData()->setPlotStyle(style);
  };
  show(xyPlot);
  comparison.follow(&container());
  container().setDistributionGroups(std::nullopt);
  select(firstRuns(8));
  comparison.current();
  EXPECT_FALSE(groups());
  show(selectionCdfPlot);
  comparison.current();
  ASSERT_TRUE(groups());
  EXPECT_EQ(groups()->at(1).values[0].size(), 8U);
}

#include "app/comparison/ComparisonResults.h"

#include <cmath>

#include "comparison/ComparedRuns.h"

using namespace Talmesh::app;
using State = Comparison::State;

namespace
{

class ComparisonResults : public ComparedRuns
{
};

} // namespace

TEST_F(ComparisonResults, CompareTheSelectedRunsWithAllOthers)
{
  select(firstRuns(8));
  const Comparison comparison = comparisonOf(container());
  ASSERT_EQ(comparison.state, State::compared);
  ASSERT_EQ(comparison.parameters.size(), 2U);
  const ComparedParameter& k = comparison.parameters[0];
  const ComparedParameter& m = comparison.parameters[1];
  EXPECT_EQ(k.name, "k");
  EXPECT_EQ(m.name, "m");
  for (const ComparedParameter& parameter : comparison.parameters)
  {
    EXPECT_EQ(parameter.selected, 8U);
    EXPECT_EQ(parameter.others, 12U);
  }
  // The two groups do not overlap in k.
  EXPECT_DOUBLE_EQ(k.statistic, 1.0);
  // ks.test(c(0,7,14,1,8,15,2,9), c(16,3,10,17,4,11,18,5,12,19,6,13))$statistic  # R: 5/12
  EXPECT_NEAR(m.statistic, 5.0 / 12.0, 1e-12);
  EXPECT_TRUE(k.significant);
  EXPECT_FALSE(m.significant);
}

TEST_F(ComparisonResults, AdjustForTheNumberOfParameters)
{
  std::set<int> runs = firstRuns(8);
  runs.insert(12);
  select(runs);
  const Comparison comparison = comparisonOf(container());
  ASSERT_EQ(comparison.parameters.size(), 2U);
  const ComparedParameter& k = comparison.parameters[0];
  const ComparedParameter& m = comparison.parameters[1];
  ASSERT_GT(k.pValue, 0.0);
  ASSERT_LT(k.pValue, m.pValue / 2.0);
  EXPECT_DOUBLE_EQ(k.adjustedPValue, 2.0 * k.pValue);
  EXPECT_DOUBLE_EQ(m.adjustedPValue, m.pValue);
}

TEST_F(ComparisonResults, FollowTheThresholds)
{
  select(firstRuns(8));
  PlotMetaData& settings = *container().getMetaData();
  settings.setPThreshold(1.0);
  EXPECT_TRUE(comparisonOf(container()).parameters[1].significant);
  settings.setKsThreshold(0.5);
  EXPECT_FALSE(comparisonOf(container()).parameters[1].significant);
  EXPECT_TRUE(comparisonOf(container()).parameters[0].significant);
}

TEST_F(ComparisonResults, FollowTheSelection)
{
  select(firstRuns(8));
  select(firstRuns(3));
  EXPECT_EQ(comparisonOf(container()).parameters[0].selected, 3U);
  EXPECT_EQ(comparisonOf(container()).parameters[0].others, 17U);
}

TEST_F(ComparisonResults, AreNoneWithoutASelection)
{
  EXPECT_EQ(comparisonOf(container()).state, State::nothingSelected);
  select(firstRuns(8));
  selectRows({});
  EXPECT_EQ(comparisonOf(container()).state, State::nothingSelected);
  EXPECT_TRUE(comparisonOf(container()).parameters.empty());
}

TEST_F(ComparisonResults, LeaveOutdatedTestsInTheContainerUntilTheyAreDropped)
{
  // As a container is without the viewer.
  container().removeDrawingSteps(&container());
  select(firstRuns(8));
  dropOutdatedTests(container());
  EXPECT_EQ(container().getKsResults().size(), 2U);
  selectRows({});
  EXPECT_EQ(container().getKsResults().size(), 2U);
  dropOutdatedTests(container());
  EXPECT_TRUE(container().getKsResults().empty());
}

TEST_F(ComparisonResults, AreForgottenByTheDrawingOfAnotherSelection)
{
  select(firstRuns(8));
  EXPECT_EQ(container().getKsResults().size(), 2U);
  selectRows({});
  EXPECT_TRUE(container().getKsResults().empty()) << "the charts are drawn without them";
}

TEST_F(ComparisonResults, AreNoneWhenNoRunIsSelectedAtEveryTime)
{
  // Run 0 at the first time, run 1 at the second.
  selectRows({0, 4});
  EXPECT_EQ(comparisonOf(container()).state, State::noRunSelected);
}

TEST_F(ComparisonResults, AreNoneWhenNoRunIsLeft)
{
  select(firstRuns(20));
  EXPECT_EQ(comparisonOf(container()).state, State::noOthers);
}

TEST_F(ComparisonResults, CountRunsHoweverManyOfTheirRowsAreSelected)
{
  selectRows(rowsOfRuns(8));
  for (const ComparedParameter& parameter : comparisonOf(container()).parameters)
  {
    EXPECT_EQ(parameter.selected, 8U);
    EXPECT_EQ(parameter.others, 12U);
  }
}

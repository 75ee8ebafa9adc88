#include "app/ComparisonResults.h"

#include "app/PictureFile.h"
#include "app/PlotChoice.h"
#include "app/Study.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/SelectionNodes.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAnnotationLink.h>

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <numeric>
#include <set>
#include <sstream>
#include <vector>

#include "SampleStudies.h"

using namespace Talmesh::app;
using State = Comparison::State;

namespace
{

/// Twenty runs. The parameter k rises with the run; m takes the same values, shuffled.
std::string twentyRuns()
{
  std::ostringstream text;
  text << "run,time,k,m,X\n";
  for (int run = 0; run < 20; ++run)
    for (int point = 0; point < 3; ++point)
      text << run << ',' << point << ',' << run << ',' << run * 7 % 20 << ',' << run + point
           << '\n';
  return text.str();
}

std::set<int> firstRuns(int count)
{
  std::set<int> runs;
  for (int run = 0; run < count; ++run)
    runs.insert(run);
  return runs;
}

class ComparisonResults : public ::testing::Test
{
protected:
  explicit ComparisonResults(const std::string& text = twentyRuns())
      : widget(makeHiddenPlot(QSize(300, 200)))
  {
    showStudy(sampleStudy(text), container());
    applyChoice(container(), choiceOf(container()));
  }

  PlotContainer& container() { return *widget->plotContainer(); }

  void select(const std::set<int>& runs)
  {
    ParameterSelection selection;
    selection.runs = runs;
    container().setSelection(&selection, 0);
  }

  void selectRows(const std::vector<vtkIdType>& rows)
  {
    container().getAnnotationLink()->SetCurrentSelection(Talmesh::plot::makeRowSelection(rows));
  }

  std::unique_ptr<VtkPlotWidget> widget;
};

/// Twenty runs of three points whose parameter k is `values` of the run and the point, and whose m
/// is the run's own.
template <typename Values>
std::string twentyRunsWith(Values values)
{
  std::ostringstream text;
  text << "Molecule: X,: Time [s],Parameter: k,Parameter: m\n";
  for (int run = 0; run < 20; ++run)
    for (int point = 0; point < 3; ++point)
      text << run + point << ',' << point << ',' << values(run, point) << ',' << run * 7 % 20
           << '\n';
  return text.str();
}

std::string asText(double value)
{
  return std::isnan(value) ? "nan" : std::to_string(value);
}

/// The rows of the first runs at all times.
std::vector<vtkIdType> rowsOfRuns(int count)
{
  std::vector<vtkIdType> rows(static_cast<std::size_t>(3 * count));
  std::iota(rows.begin(), rows.end(), 0);
  return rows;
}

class ComparisonResultsOfASwitch : public ComparisonResults
{
protected:
  ComparisonResultsOfASwitch()
      : ComparisonResults(twentyRunsWith([](int run, int) { return run % 2; }))
  {
  }
};

/// The second run has other times than all others.
class ComparisonResultsOfUnlikeTimes : public ComparisonResults
{
protected:
  ComparisonResultsOfUnlikeTimes()
      : ComparisonResults(textOfRuns())
  {
  }

private:
  static std::string textOfRuns()
  {
    std::ostringstream text;
    text << "run,time,k,X\n";
    for (int run = 0; run < 20; ++run)
      for (int point = 0; point < 3; ++point)
        text << run << ',' << (run == 1 ? 11 : 1) * point << ',' << run << ',' << run + point
             << '\n';
    return text.str();
  }
};

class ComparisonResultsWithAGap : public ComparisonResults
{
protected:
  ComparisonResultsWithAGap()
      : ComparisonResults(
            twentyRunsWith([](int run, int) { return run == 3 ? asText(NAN) : asText(run); }))
  {
  }
};

class ComparisonResultsOfAChangingParameter : public ComparisonResults
{
protected:
  ComparisonResultsOfAChangingParameter()
      : ComparisonResults(twentyRunsWith([](int run, int point) { return 10 * run + point; }))
  {
  }
};

class ComparisonResultsOfAPlainTable : public ComparisonResults
{
protected:
  ComparisonResultsOfAPlainTable()
      : ComparisonResults("a,b\n1,2\n3,4\n")
  {
  }
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
  select(firstRuns(8));
  dropOutdatedTests(container());
  EXPECT_EQ(container().getKsResults().size(), 2U);
  selectRows({});
  EXPECT_EQ(container().getKsResults().size(), 2U);
  dropOutdatedTests(container());
  EXPECT_TRUE(container().getKsResults().empty());
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

TEST_F(ComparisonResultsOfAPlainTable, AreNone)
{
  selectRows({0});
  EXPECT_EQ(comparisonOf(container()).state, State::noParameters);
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

TEST_F(ComparisonResultsOfUnlikeTimes, CountRunsThatAreNotSelectedAtEveryTimeAmongTheOthers)
{
  // Runs 0 and 1 at the first time, run 0 alone at the second, which run 1 does not have.
  selectRows({0, 1, 3});
  const Comparison comparison = comparisonOf(container());
  ASSERT_FALSE(comparison.parameters.empty());
  EXPECT_EQ(comparison.parameters[0].selected, 1U);
  EXPECT_EQ(comparison.parameters[0].others, 19U);
}

TEST_F(ComparisonResultsOfASwitch, TestNoParameterWhoseValuesRepeat)
{
  selectRows(rowsOfRuns(8));
  // The charts' own test takes the two values of each group for its runs.
  ASSERT_EQ(container().getKsResults().size(), 2U);
  const Comparison comparison = comparisonOf(container());
  ASSERT_EQ(comparison.parameters.size(), 2U);
  const ComparedParameter& k = comparison.parameters[0];
  const ComparedParameter& m = comparison.parameters[1];
  EXPECT_EQ(k.obstacle, TestObstacle::repeatedValues);
  EXPECT_TRUE(std::isnan(k.statistic));
  EXPECT_TRUE(std::isnan(k.pValue));
  EXPECT_TRUE(std::isnan(k.adjustedPValue));
  EXPECT_FALSE(k.significant);
  EXPECT_EQ(k.selected, 8U);
  EXPECT_EQ(k.others, 12U);
  EXPECT_EQ(m.obstacle, TestObstacle::none);
  // The same runs as above. One test needs no adjustment.
  EXPECT_NEAR(m.statistic, 5.0 / 12.0, 1e-12);
  EXPECT_DOUBLE_EQ(m.adjustedPValue, m.pValue);
}

TEST_F(ComparisonResultsOfASwitch, TestNoParameterWhoseValuesRepeatAmongTheOthersOnly)
{
  selectRows({0, 1, 2});
  const Comparison comparison = comparisonOf(container());
  ASSERT_EQ(comparison.parameters.size(), 2U);
  EXPECT_EQ(comparison.parameters[0].obstacle, TestObstacle::repeatedValues);
  EXPECT_EQ(comparison.parameters[1].obstacle, TestObstacle::none);
}

TEST_F(ComparisonResultsWithAGap, TestNoParameterThatLacksAValue)
{
  selectRows({0, 3, 6, 9, 12});
  const Comparison comparison = comparisonOf(container());
  ASSERT_EQ(comparison.parameters.size(), 2U);
  EXPECT_EQ(comparison.parameters[0].obstacle, TestObstacle::missingValues);
  EXPECT_TRUE(std::isnan(comparison.parameters[0].pValue));
  EXPECT_EQ(comparison.parameters[0].selected, 5U);
  EXPECT_EQ(comparison.parameters[1].obstacle, TestObstacle::none);
  EXPECT_FALSE(std::isnan(comparison.parameters[1].pValue));
}

TEST_F(ComparisonResultsOfAChangingParameter, TestNothingThatItDistorts)
{
  selectRows(rowsOfRuns(8));
  const Comparison comparison = comparisonOf(container());
  ASSERT_EQ(comparison.parameters.size(), 2U);
  EXPECT_EQ(comparison.parameters[0].obstacle, TestObstacle::changingValues);
  // Its 24 values fill up the 8 of the other.
  EXPECT_EQ(comparison.parameters[1].obstacle, TestObstacle::otherParameter);
  EXPECT_EQ(comparison.parameters[1].selected, 8U);
  EXPECT_EQ(comparison.parameters[1].others, 12U);
}

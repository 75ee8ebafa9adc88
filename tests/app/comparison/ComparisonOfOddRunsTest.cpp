#include "app/comparison/ComparisonResults.h"

#include <cmath>

#include "comparison/ComparedRuns.h"

using namespace Talmesh::app;
using State = Comparison::State;

namespace
{

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

class ComparisonResultsOfASwitch : public ComparedRuns
{
protected:
  ComparisonResultsOfASwitch()
      : ComparedRuns(twentyRunsWith([](int run, int) { return run % 2; }))
  {
  }
};

/// The second run has other times than all others.
class ComparisonResultsOfUnlikeTimes : public ComparedRuns
{
protected:
  ComparisonResultsOfUnlikeTimes()
      : ComparedRuns(textOfRuns())
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

class ComparisonResultsWithAGap : public ComparedRuns
{
protected:
  ComparisonResultsWithAGap()
      : ComparedRuns(
            twentyRunsWith([](int run, int) { return run == 3 ? asText(NAN) : asText(run); }))
  {
  }
};

class ComparisonResultsOfAChangingParameter : public ComparedRuns
{
protected:
  ComparisonResultsOfAChangingParameter()
      : ComparedRuns(twentyRunsWith([](int run, int point) { return 10 * run + point; }))
  {
  }
};

class ComparisonResultsOfAPlainTable : public ComparedRuns
{
protected:
  ComparisonResultsOfAPlainTable()
      : ComparedRuns("a,b\n1,2\n3,4\n")
  {
  }
};

} // namespace

TEST_F(ComparisonResultsOfAPlainTable, AreNone)
{
  selectRows({0});
  EXPECT_EQ(comparisonOf(container()).state, State::noParameters);
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

#include <QSignalSpy>

#include <cmath>

#include "document/SelectionComparisonOfRuns.h"

using namespace Talmesh::app;
using State = Comparison::State;
namespace stats = Talmesh::stats;

namespace
{

/// Five sets of four runs.
std::string replicatedRuns()
{
  std::ostringstream text;
  text << "run,time,k,X\n";
  for (int run = 0; run < 20; ++run)
    for (int point = 0; point < 3; ++point)
      text << run << ',' << point << ',' << run / 4 << ',' << run + point << '\n';
  return text.str();
}

class SelectionComparisonOfReplicates : public SelectionComparisonOfRuns
{
protected:
  SelectionComparisonOfReplicates()
      : SelectionComparisonOfRuns(replicatedRuns())
  {
  }
};

} // namespace

TEST_F(SelectionComparisonOfReplicates, PermutesAtOnceWithoutABackground)
{
  select({0, 1, 2, 4});
  const Comparison& found = comparison.current();
  EXPECT_EQ(found.units.kind, stats::IndependentUnit::parameterSet);
  EXPECT_EQ(found.permutations, 9'999U);
  EXPECT_FALSE(std::isnan(found.parameters[0].result.p));
}

TEST_F(SelectionComparisonOfReplicates, ShowsTheResultsOfTheBackgroundWhenTheyAreThere)
{
  delay();
  QSignalSpy found(&comparison, &SelectionComparison::found);
  select({0, 1, 2, 4});
  EXPECT_TRUE(comparison.current().pending);
  EXPECT_EQ(handed()[0].title, "\u2026");
  EXPECT_GT(comparison.current().parameters[0].result.distance, 0.0);
  container().redraw();
  ASSERT_EQ(begun.size(), 1U) << "begun once";
  finish(0);
  EXPECT_EQ(found.count(), 1);
  EXPECT_FALSE(comparison.current().pending);
  EXPECT_EQ(handed()[0].title.rfind("adjusted p", 0), 0U);
  EXPECT_EQ(begun.size(), 1U);
}

TEST_F(SelectionComparisonOfReplicates, GivesUpWhatANewerSelectionSupersedes)
{
  delay();
  select({0, 1, 2, 4});
  select({0, 1, 2, 5, 6});
  EXPECT_EQ(cancelled, 1);
  ASSERT_EQ(begun.size(), 2U);
  selectRows({});
  EXPECT_EQ(cancelled, 2);
  EXPECT_EQ(comparison.current().state, State::nothingSelected);
}

TEST_F(SelectionComparisonOfReplicates, CanBeGivenUp)
{
  delay();
  select({0, 1, 2, 4});
  comparison.giveUp();
  EXPECT_EQ(cancelled, 1);
  EXPECT_EQ(comparison.current().parameters[0].obstacle, TestObstacle::cancelled);
  EXPECT_EQ(handed()[0].title, "cancelled");
  comparison.giveUp();
  EXPECT_EQ(cancelled, 1) << "nothing is under way";
  select({0, 1, 5});
  EXPECT_EQ(begun.size(), 2U);
}

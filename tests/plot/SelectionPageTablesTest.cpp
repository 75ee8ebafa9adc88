#include "plot/ContainerAccess.h"

#include <gtest/gtest.h>

#include "SelectionPageFixture.h"

namespace
{

/// Where the page finds its curves and results.
class SelectionPageTables : public SelectionPageFixture
{
protected:
  const std::vector<vtkSmartPointer<vtkTable>>& tables() { return container.getDerivedTables(); }
  vtkPlot* ownCurve() { return cell(0, 0)->GetPlot(0); }
};

TEST_F(SelectionPageTables, TakeTheFirstSlotsFromAdditionalData)
{
  draw(3);
  stateOf(container).derivedTables = {plainTable(), plainTable()};
  container.redraw();
  ASSERT_EQ(tables().size(), 2U);
  EXPECT_EQ(ownCurve()->GetInput(), tables()[0]);
  EXPECT_EQ(plottedName(ownCurve(), 1), "Rank of Parameter: k1");
  EXPECT_NE(tables()[1]->GetColumnByName("Density of Parameter: k1"), nullptr);
  scene.render(container);
}

TEST_F(SelectionPageTables, AreRebuiltWhenOnlyTheDensitiesAreMissing)
{
  draw(3);
  settings().setUseDensity(true);
  for (const auto& other : {vtkSmartPointer<vtkTable>(), plainTable()})
  {
    stateOf(container).derivedTables[1] = other;
    container.redraw();
    ASSERT_NE(tables()[1], nullptr);
    EXPECT_EQ(ownCurve()->GetInput(), tables()[1]);
    EXPECT_EQ(plottedName(ownCurve(), 1), "Density of Parameter: k1");
  }
}

TEST_F(SelectionPageTables, AreRebuiltWhenTheRunsWereRankedForAnotherSlot)
{
  draw(3);
  stateOf(container).derivedTables.clear();
  container.generateRankedParameters(container.getTable(), 3);
  ASSERT_TRUE(settings().rankedDataCurrent);
  container.redraw();
  ASSERT_NE(tables()[0], nullptr);
  EXPECT_EQ(ownCurve()->GetInput(), tables()[0]);
}

TEST_F(SelectionPageTables, AreKeptWhileTheyAreCurrent)
{
  draw(3);
  const vtkMTimeType built = tables()[0]->GetColumn(0)->GetMTime();
  vtkAbstractArray* const ranks = tables()[0]->GetColumn(0);
  container.redraw();
  EXPECT_EQ(tables()[0]->GetColumn(0), ranks);
  EXPECT_EQ(ranks->GetMTime(), built);
}

TEST_F(SelectionPageTables, GiveEveryParameterItsOwnResultWhenOneCannotBeRanked)
{
  draw(4);
  addStringColumn(container.getTable(), "Parameter: k2");
  settings().rankedDataCurrent = false;
  selectFirstRuns(8);
  const std::vector<KsStatistics> results = container.getKsResults();
  ASSERT_EQ(results.size(), 4U);
  EXPECT_EQ(results[1].pValue, 1.0);
  EXPECT_EQ(results[1].statistic, 0.0);
  // The rank tables hold pairs of columns for k1, k3 and k4.
  container.ksTestSelection(3, 6);
  const std::vector<KsStatistics> pairs = container.getKsResults();
  ASSERT_EQ(pairs.size(), 3U);
  EXPECT_DOUBLE_EQ(pairs[0].statistic, 1.0);
  EXPECT_LT(pairs[1].statistic, 1.0);
  const std::size_t parameters[] = {0, 2, 3};
  for (std::size_t pair = 0; pair < 3; ++pair)
  {
    EXPECT_EQ(results[parameters[pair]].statistic, pairs[pair].statistic);
    EXPECT_EQ(results[parameters[pair]].pValue, pairs[pair].pValue);
  }
  scene.render(container);
}

} // namespace

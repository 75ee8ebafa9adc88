#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/PlotScene.h"
#include "support/SampleTables.h"

#include <vtkFloatArray.h>

#include <gtest/gtest.h>

namespace
{

using Values = std::vector<double>;

Values sequence(double first, int count)
{
  Values values;
  for (int i = 0; i < count; ++i)
    values.push_back(first + i);
  return values;
}

/// A rank table: per sample a column of ranks, which the test does not read, and the sorted values.
vtkSmartPointer<vtkTable> rankTable(const std::vector<Values>& samples)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  for (std::size_t k = 0; k < samples.size(); ++k)
  {
    table->AddColumn(Talmesh::plot::makeColumn("Rank of p" + std::to_string(k),
                                               Values(samples[k].size(), -1.0)));
    table->AddColumn(Talmesh::plot::makeColumn("Sorted p" + std::to_string(k), samples[k]));
  }
  return table;
}

class KsComparison : public ::testing::Test
{
protected:
  const std::vector<KsStatistics>& compare(vtkSmartPointer<vtkTable> a, vtkSmartPointer<vtkTable> b)
  {
    stateOf(container).derivedTables = {nullptr, a, nullptr, b};
    container.ksTestSelection(1, 3);
    return container.getKsResults();
  }

  PlotContainer container{nullptr};
};

TEST_F(KsComparison, GivesOneResultPerParameterInOrder)
{
  const auto& results = compare(rankTable({sequence(1, 20), sequence(1, 20)}),
                                rankTable({sequence(10.5, 20), sequence(50, 20)}));
  ASSERT_EQ(results.size(), 2U);
  EXPECT_DOUBLE_EQ(results[0].statistic, 0.5);
  // R 4.2.2: 1 - .Call(stats:::C_pKolmogorov2x, 0.5, 10)
  EXPECT_NEAR(results[0].pValue, 0.00777740999999976, 1e-12);
  EXPECT_DOUBLE_EQ(results[1].statistic, 1.0);
  EXPECT_LT(results[1].pValue, 1e-12);
}

TEST_F(KsComparison, FindsNoEvidenceInAFewValues)
{
  const auto few = compare(rankTable({{1, 2, 3}}), rankTable({{4, 5, 6}}));
  ASSERT_EQ(few.size(), 1U);
  EXPECT_DOUBLE_EQ(few[0].statistic, 1.0);
  EXPECT_EQ(few[0].pValue, 1.0) << "an effective size of 1 tells nothing";
  const auto tied = compare(rankTable({{1}}), rankTable({{1}}));
  ASSERT_EQ(tied.size(), 1U);
  EXPECT_EQ(tied[0].statistic, 1.0) << "a tie advances the second sample";
  EXPECT_EQ(tied[0].pValue, 1.0);
}

TEST_F(KsComparison, FindsNoEvidenceInIdenticalSamples)
{
  const Values sample = sequence(1, 50);
  const auto& results = compare(rankTable({sample}), rankTable({sample}));
  ASSERT_EQ(results.size(), 1U);
  EXPECT_DOUBLE_EQ(results[0].statistic, 1.0 / 50.0);
  EXPECT_EQ(results[0].pValue, 1.0);
}

TEST_F(KsComparison, ComparesSamplesOfDifferentSizes)
{
  const auto& results = compare(rankTable({{1, 2}}), rankTable({{1.5, 1.6, 1.7, 1.8}}));
  ASSERT_EQ(results.size(), 1U);
  EXPECT_DOUBLE_EQ(results[0].statistic, 0.5);
}

TEST_F(KsComparison, CountsMissingAndMistypedColumnsAsEmptySamples)
{
  auto second = rankTable({{1, 2, 3}});
  vtkNew<vtkFloatArray> ranks;
  ranks->SetName("Rank of p1");
  ranks->SetNumberOfValues(3);
  vtkNew<vtkFloatArray> sorted;
  sorted->SetName("Sorted p1");
  sorted->SetNumberOfValues(3);
  second->AddColumn(ranks);
  second->AddColumn(sorted);
  const auto& results = compare(rankTable({{7, 8, 9}, {7, 8, 9}, {7, 8, 9}}), second);
  ASSERT_EQ(results.size(), 3U);
  EXPECT_EQ(results[0].statistic, 1.0);
  EXPECT_EQ(results[1].statistic, 0.0);
  EXPECT_EQ(results[1].pValue, 1.0);
  EXPECT_EQ(results[2].statistic, 0.0);
  EXPECT_EQ(results[2].pValue, 1.0);
}

TEST_F(KsComparison, CountsColumnsWithoutRowsAsEmptySamples)
{
  const auto& results = compare(rankTable({{}}), rankTable({{1, 2}}));
  ASSERT_EQ(results.size(), 1U);
  EXPECT_EQ(results[0].statistic, 0.0);
  EXPECT_EQ(results[0].pValue, 1.0);
}

TEST_F(KsComparison, IgnoresALastColumnWithoutPartner)
{
  auto first = rankTable({{1, 2}});
  first->AddColumn(Talmesh::plot::makeColumn("odd", {1, 2}));
  EXPECT_EQ(compare(first, rankTable({{1, 2}})).size(), 1U);
  EXPECT_TRUE(compare(tableOf({{"odd", {1, 2}}}), rankTable({{1, 2}})).empty());
}

TEST_F(KsComparison, NeitherDrawsNorMarksTheScene)
{
  PlotScene scene;
  container.setScene(scene.scene());
  container.redraw();
  scene.scene()->SetDirty(false);
  const unsigned long before = stateOf(container).drawings;
  const auto table = rankTable({{1, 2}});
  ASSERT_EQ(compare(table, table).size(), 1U);
  EXPECT_EQ(stateOf(container).drawings, before);
  EXPECT_FALSE(scene.scene()->GetDirty());
  container.dirty();
  EXPECT_TRUE(scene.scene()->GetDirty());
}

TEST_F(KsComparison, ForgetsTheResultsBefore)
{
  const auto two = rankTable({{1, 2}, {3, 4}});
  EXPECT_EQ(compare(two, two).size(), 2U);
  EXPECT_EQ(compare(rankTable({{1, 2}}), two).size(), 1U);
  EXPECT_TRUE(compare(rankTable({}), two).empty());
}

TEST_F(KsComparison, LeavesNoResultsForSlotsWithoutTable)
{
  const auto table = rankTable({{1, 2}});
  EXPECT_EQ(compare(table, table).size(), 1U);
  EXPECT_TRUE(compare(nullptr, table).empty());
  EXPECT_EQ(compare(table, table).size(), 1U);
  EXPECT_TRUE(compare(table, nullptr).empty());
  EXPECT_EQ(compare(table, table).size(), 1U);
  container.ksTestSelection(1, 4);
  EXPECT_TRUE(container.getKsResults().empty());
}

TEST_F(KsComparison, NeitherMovesNorSortsTheSamples)
{
  const auto a = rankTable({{1, 2}});
  compare(a, rankTable({{0, 5}}));
  EXPECT_EQ(a->GetValueByName(0, "Sorted p0").ToDouble(), 1.0);
  EXPECT_EQ(a->GetValueByName(1, "Sorted p0").ToDouble(), 2.0);
}

TEST_F(KsComparison, ComparesWhatTheRankingBuilt)
{
  stateOf(container).columnItems = {{Talmesh::Parameter, "k"}};
  container.findParameterColumns();
  stateOf(container).parameterBounds = {{0, 100}};
  container.generateRankedParameters(tableOf({{"k", {3, 1, 2, 4}}}), 1);
  container.generateRankedParameters(tableOf({{"k", {13, 11, 12, 14}}}), 3);
  container.ksTestSelection(1, 3);
  ASSERT_EQ(container.getKsResults().size(), 1U);
  EXPECT_DOUBLE_EQ(container.getKsResults()[0].statistic, 1.0);
}

} // namespace

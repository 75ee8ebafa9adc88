#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"

#include <gtest/gtest.h>

#include "ClusteringFixture.h"

namespace
{

class ClusterSelections : public ClusteringFixture
{
protected:
  ~ClusterSelections() override
  {
    for (ParameterSelection* selection : selections)
      delete selection;
  }

  void setMembership(const std::vector<int>& clusters)
  {
    auto membership = vtkSmartPointer<vtkIntArray>::New();
    for (const int c : clusters)
      membership->InsertNextValue(c);
    stateOf(container).clusterMembership = membership;
  }

  std::vector<ParameterSelection*> selections;
};

TEST_F(ClusterSelections, PartitionTheRuns)
{
  setRuns(threeShapes, 8);
  cluster(3);
  container.getMetaData()->sourceName = "study";
  container.getMetaData()->sourceId = 7;
  container.selectionsFromClusters("Cluster", selections);
  ASSERT_EQ(selections.size(), 3U);
  EXPECT_EQ(selections[0]->label, "Cluster 0");
  EXPECT_EQ(selections[1]->label, "Cluster 1");
  EXPECT_EQ(selections[2]->label, "Cluster 2");
  EXPECT_EQ(selections[0]->runs, (std::set<int>{0, 4, 6, 10}));
  EXPECT_EQ(selections[1]->runs, (std::set<int>{1, 7, 8, 9}));
  EXPECT_EQ(selections[2]->runs, (std::set<int>{2, 3, 5, 11}));
  for (const ParameterSelection* selection : selections)
  {
    EXPECT_EQ(selection->sourceName, "study");
    EXPECT_EQ(selection->sourceId, 7);
  }
}

TEST_F(ClusterSelections, OfASingleClusterHoldEveryRun)
{
  setMembership({0, 0, 0});
  container.selectionsFromClusters("C", selections);
  ASSERT_EQ(selections.size(), 1U);
  EXPECT_EQ(selections[0]->runs, (std::set<int>{0, 1, 2}));
}

TEST_F(ClusterSelections, OfAnUnusedNumberAreEmpty)
{
  setMembership({2, 0, 2});
  container.selectionsFromClusters("", selections);
  ASSERT_EQ(selections.size(), 3U);
  EXPECT_EQ(selections[1]->label, " 1");
  EXPECT_TRUE(selections[1]->runs.empty());
}

TEST_F(ClusterSelections, PutRunsIntoTheEntriesThatAreThere)
{
  selections.push_back(new ParameterSelection);
  setMembership({0, 1});
  container.selectionsFromClusters("C", selections);
  ASSERT_EQ(selections.size(), 3U);
  EXPECT_EQ(selections[0]->runs, (std::set<int>{0}));
  EXPECT_EQ(selections[1]->runs, (std::set<int>{1}));
  EXPECT_EQ(selections[1]->label, "C 0");
  EXPECT_TRUE(selections[2]->runs.empty());
}

TEST_F(ClusterSelections, WithoutMembershipAreNone)
{
  container.selectionsFromClusters("C", selections);
  EXPECT_TRUE(selections.empty());
  setMembership({});
  container.selectionsFromClusters("C", selections);
  EXPECT_TRUE(selections.empty());
  setMembership({-1, -2});
  container.selectionsFromClusters("C", selections);
  EXPECT_TRUE(selections.empty());
}

} // namespace

#include "plot/RunClustering.h"

#include "plot/TableColumns.h"

#include <memory>

#include "ClusteringFixture.h"

namespace
{

class RunClusteringOfShapes : public ClusteringFixture
{
protected:
  RunClusteringOfShapes()
  {
    setRuns(threeShapes, 8);
    PlotOptions quiet;
    quiet.showsDiagnostics = false;
    container.setOptions(quiet);
  }

  std::vector<int> membership()
  {
    vtkIntArray* found = container.getClusterMembership();
    return found ? std::vector<int>(found->GetPointer(0),
                                    found->GetPointer(0) + found->GetNumberOfTuples())
                 : std::vector<int>();
  }
};

} // namespace

TEST_F(RunClusteringOfShapes, FindsWhatTheContainerFinds)
{
  for (const int mode : {0, 2, 3})
  {
    const std::vector<int> expected = cluster(4, mode);
    const std::vector<double> mean0 = mean(0);
    const int columns = static_cast<int>(means()->GetNumberOfColumns());
    cluster(1, mode);
    Talmesh::RunClustering clustering(container, 4, mode);
    EXPECT_TRUE(clustering.compute());
    EXPECT_NE(membership(), expected) << "not before they are handed over, mode " << mode;
    clustering.handOver(container);
    EXPECT_EQ(membership(), expected) << mode;
    EXPECT_EQ(mean(0), mean0) << mode;
    EXPECT_EQ(means()->GetNumberOfColumns(), columns) << mode;
  }
}

TEST_F(RunClusteringOfShapes, ClustersTheValuesThatThereWereAtItsBeginning)
{
  const std::vector<int> expected = cluster(3);
  Talmesh::RunClustering clustering(container, 3, 0);
  Talmesh::plot::doubleColumn(container.getTable(), 0)->FillValue(1.0);
  clustering.compute();
  clustering.handOver(container);
  EXPECT_EQ(membership(), expected);
}

TEST_F(RunClusteringOfShapes, OutlivesTheContainer)
{
  const std::vector<int> expected = cluster(3);
  auto first = std::make_unique<PlotContainer>(nullptr);
  first->setPlotData(runsOfValues(threeShapes, 8));
  first->getMetaData()->setStride(8);
  Talmesh::RunClustering clustering(*first, 3, 0);
  first.reset();
  EXPECT_TRUE(clustering.compute());
  clustering.handOver(container);
  EXPECT_EQ(membership(), expected);
}

TEST_F(RunClusteringOfShapes, TellsHowFarItIs)
{
  Talmesh::RunClustering clustering(container, 4, 0);
  std::vector<double> parts;
  EXPECT_TRUE(clustering.compute(
      [&parts](double done)
      {
        parts.push_back(done);
        return true;
      }));
  ASSERT_GT(parts.size(), 3U) << "its beginning, its end and iterations";
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
  EXPECT_EQ(parts.front(), 0.0);
  EXPECT_EQ(parts.back(), 1.0);
}

TEST_F(RunClusteringOfShapes, CanBeGivenUpAtAnyTime)
{
  int calls = 1;
  for (int allowed = 0; calls > allowed; ++allowed)
  {
    Talmesh::RunClustering clustering(container, 4, 0);
    calls = 0;
    const bool done = clustering.compute([&](double) { return calls++ < allowed; });
    EXPECT_EQ(done, calls <= allowed) << allowed;
    EXPECT_LE(calls, allowed + 2) << "it goes on although nobody wants it";
  }
}

#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/PlotFixture.h"
#include "support/PlotScene.h"
#include "support/SampleTables.h"

#include <vtkPen.h>
#include <vtkPlotLine.h>

#include <gtest/gtest.h>

#include <limits>

#include "ClusteringFixture.h"

namespace
{

using Values = std::vector<double>;

const std::string noMembership = "void PlotContainer::clusterTimeSeries(int, int): Could not cast "
                                 "clusterMembership to vtkIntArray.\n";

class Clustering : public ClusteringFixture
{
};

// z <- t(scale(t(x))); k <- kmeans(z, z[1:3, ], algorithm = "Lloyd"); k$cluster - 1
TEST_F(Clustering, SortsRunsByShapeWhateverTheirLevelAndAmplitude)
{
  setRuns(threeShapes, 8);
  EXPECT_EQ(cluster(3), (std::vector<int>{0, 1, 2, 2, 0, 2, 0, 1, 1, 1, 0, 2}));
  EXPECT_EQ(error, "");
}

// for (n in c(2, 4, 5)) print(kmeans(z, z[1:n, ], algorithm = "Lloyd")$cluster - 1)
TEST_F(Clustering, AgreesWithAReferenceForOtherNumbersOfClusters)
{
  setRuns(threeShapes, 8);
  EXPECT_EQ(cluster(2), (std::vector<int>{0, 1, 1, 1, 0, 1, 0, 1, 1, 1, 0, 1}));
  EXPECT_EQ(cluster(4), (std::vector<int>{0, 1, 2, 3, 0, 2, 0, 1, 1, 1, 0, 3}));
  EXPECT_EQ(cluster(5), (std::vector<int>{0, 1, 2, 3, 0, 2, 4, 1, 1, 1, 4, 3}));
}

// m <- t(scale(apply(x, 1, function(r) Mod(fft(r)))))
// for (n in 2:4) print(kmeans(m, m[1:n, ], algorithm = "Lloyd")$cluster - 1)
TEST_F(Clustering, AgreesWithAReferenceOnMagnitudes)
{
  setRuns(threeShapes, 8);
  EXPECT_EQ(cluster(2, 3), (std::vector<int>{1, 1, 0, 0, 0, 0, 0, 1, 1, 1, 0, 0}));
  EXPECT_EQ(cluster(3, 3), (std::vector<int>{0, 1, 2, 2, 0, 2, 0, 1, 1, 1, 0, 2}));
  EXPECT_EQ(cluster(4, 3), (std::vector<int>{0, 1, 2, 3, 0, 3, 0, 1, 1, 1, 0, 3}));
}

TEST_F(Clustering, TellsTheNumberOfRunsAndTheSizeOfTheTableOfCurves)
{
  setRuns(threeShapes, 8);
  cluster(3);
  EXPECT_EQ(output, "12\n13  8\n");
}

TEST_F(Clustering, GivesTheSameClustersAgain)
{
  setRuns(threeShapes, 8);
  const std::vector<int> first = cluster(4);
  EXPECT_EQ(cluster(4), first);
  EXPECT_EQ(cluster(4, 1), first) << "modes 0 and 1 are the same";
  EXPECT_EQ(cluster(4, -5), first);
  PlotContainer another(nullptr);
  another.setPlotData(container.getTable());
  another.getMetaData()->setStride(8);
  CapturedOutput standardOutput(std::cout);
  another.clusterTimeSeries(4, 0);
  for (int run = 0; run < 12; ++run)
    EXPECT_EQ(another.getClusterMembership()->GetValue(run), first[static_cast<std::size_t>(run)]);
}

// sapply(0:2, function(c) colMeans(x[k$cluster - 1 == c, ]))
TEST_F(Clustering, MakesDecorationsOfTheMeanCurves)
{
  setRuns(threeShapes, 8);
  cluster(3);
  ASSERT_EQ(means()->GetNumberOfColumns(), 4);
  ASSERT_EQ(means()->GetNumberOfRows(), 8);
  const Values expected[] = {{4.575, 6.725, 8.8625, 10.9875, 13.1, 15.2, 17.35, 19.4875},
                             {34.7075, 20.4175, 10.9325, 6.18, 6.17, 10.9575, 20.4175, 34.6825},
                             {7.3625, 9.12, 5.85, 4.1175, 7.3875, 9.095, 5.8375, 4.1175}};
  for (int c = 0; c < 3; ++c)
  {
    EXPECT_EQ(Talmesh::plot::columnName(means(), c), std::to_string(c));
    for (std::size_t j = 0; j < 8; ++j)
      EXPECT_NEAR(mean(c)[j], expected[c][j], 1e-12) << c << ", " << j;
  }
  EXPECT_EQ(Talmesh::plot::columnName(means(), 3), "Time");
  EXPECT_EQ(mean(3), (Values{0, 0.5, 1, 1.5, 2, 2.5, 3, 3.5}));
  EXPECT_FALSE(container.getShowDecorations());
}

TEST_F(Clustering, CopiesTheTime)
{
  setRuns(threeShapes, 8);
  cluster(3);
  Talmesh::plot::doubleColumn(container.getTable(), 0)->SetValue(1, 99.0);
  EXPECT_EQ(mean(3)[1], 0.5);
}

TEST_F(Clustering, LeavesOutAPartialRun)
{
  Values values = threeShapes;
  values.resize(values.size() - 3);
  setRuns(values, 8);
  EXPECT_EQ(cluster(3).size(), 11U);
  EXPECT_EQ(output, "11\n12  8\n");
}

TEST_F(Clustering, WithMoreClustersThanRunsLeavesTheRestEmpty)
{
  setRuns({1, 2, 3, 3, 1, 2}, 3);
  EXPECT_EQ(cluster(5), (std::vector<int>{0, 1}));
  ASSERT_EQ(means()->GetNumberOfColumns(), 6);
  EXPECT_EQ(mean(1), (Values{3, 1, 2}));
  EXPECT_EQ(mean(4), (Values{0, 0, 0}));
  EXPECT_EQ(cluster(std::numeric_limits<int>::max()), (std::vector<int>{0, 1}));
}

TEST_F(Clustering, OfOneRunOrOnePositionWorks)
{
  setRuns({1, 2, 3}, 3);
  EXPECT_EQ(cluster(2), (std::vector<int>{0}));
  setRuns({1, 2, 3}, 1);
  EXPECT_EQ(cluster(1), (std::vector<int>{0, 0, 0}));
  EXPECT_EQ(cluster(2), (std::vector<int>{0, 0, 0})) << "single values have no shape to differ in";
}

TEST_F(Clustering, CopesWithValuesThatAreNotFinite)
{
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  setRuns({1, 2, 4, nan, 2, 1, infinity, 0, 1, 4, 2, 1}, 3);
  for (const int mode : {0, 2, 3})
    EXPECT_EQ(cluster(3, mode).size(), 4U) << mode;
}

TEST_F(Clustering, OfNothingSaysSoAndLeavesNoMembership)
{
  setRuns(threeShapes, 8);
  ASSERT_FALSE(cluster(3).empty());
  for (const int clusters : {0, -1, std::numeric_limits<int>::min()})
  {
    EXPECT_TRUE(cluster(clusters).empty());
    EXPECT_EQ(error, noMembership);
    EXPECT_EQ(output, "");
  }
  container.getMetaData()->setStride(1000);
  EXPECT_TRUE(cluster(3).empty());
  EXPECT_EQ(error, noMembership);
  container.getMetaData()->setStride(0);
  EXPECT_TRUE(cluster(3, 2).empty());
  EXPECT_EQ(error, noMembership);
  container.getMetaData()->setStride(8);
  container.getMetaData()->yColumns = {5};
  EXPECT_TRUE(cluster(3, 3).empty());
  EXPECT_EQ(error, noMembership);
}

TEST_F(Clustering, DrawsEveryRunInTheColourOfItsCluster)
{
  PlotScene scene;
  container.setScene(scene.scene());
  setRuns(threeShapes, 8);
  container.redraw();
  const vtkIdType before = container.getChartXY()->GetNumberOfPlots();
  cluster(3);
  ASSERT_EQ(container.getChartXY()->GetNumberOfPlots(), before + 12);
  auto* second = vtkPlotLine::SafeDownCast(container.getChartXY()->GetPlot(before + 1));
  ASSERT_NE(second, nullptr);
  unsigned char rgba[4];
  second->GetPen()->GetColor(rgba);
  EXPECT_EQ(rgba[0], 229);
  EXPECT_EQ(rgba[1], 229);
  EXPECT_EQ(rgba[2], 153);
  EXPECT_EQ(second->GetPen()->GetOpacity(), 180);
  EXPECT_EQ(second->GetWidth(), 4.0F);
  EXPECT_FALSE(second->GetSelectable());
  ASSERT_NE(second->GetInput(), nullptr);
  EXPECT_EQ(second->GetInput()->GetNumberOfColumns(), 13);
  EXPECT_EQ(second->GetInput()->GetNumberOfRows(), 8);
  EXPECT_EQ(second->GetInput()->GetValue(0, 1).ToDouble(), 16.41);
  EXPECT_EQ(second->GetInput()->GetValue(3, 12).ToDouble(), 1.5);
  EXPECT_EQ(plottedColumn(second, 0), second->GetInput()->GetColumn(12));
  EXPECT_EQ(plottedColumn(second, 1), second->GetInput()->GetColumn(1));
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 1000);
}

TEST_F(Clustering, WithoutAChartToDrawInStillClusters)
{
  setRuns(threeShapes, 8);
  stateOf(container).chartXY = nullptr;
  EXPECT_EQ(cluster(3).size(), 12U);
  stateOf(container).chartXY = vtkSmartPointer<vtkChartXY>::New();
}

TEST_F(Clustering, ShowsTheMeansAsDecorationsWhenAsked)
{
  PlotScene scene;
  container.setScene(scene.scene());
  setRuns(threeShapes, 8);
  cluster(3);
  container.setShowDecorations(true);
  container.redraw();
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 4);
}

} // namespace

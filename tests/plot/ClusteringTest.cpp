#include "plot/Clustering.h"

#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/SpectralFeatures.h"
#include "support/CapturedOutput.h"
#include "support/PlotScene.h"
#include "support/SampleTables.h"

#include <vtkContextMapper2D.h>
#include <vtkMath.h>
#include <vtkPen.h>
#include <vtkPlotLine.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

namespace
{

using Values = std::vector<double>;

const std::string noMembership = "void PlotContainer::clusterTimeSeries(int, int): Could not cast "
                                 "clusterMembership to vtkIntArray.\n";

// R 4.2.2: t <- 0:7; shape <- rbind(t, (t - 3.5)^2, sin(t * pi / 2 + 0.3))
//   x <- t(sapply(0:11, function(i)
//     round(shape[i %% 3 + 1, ] * (1 + i / 4) + i + ((7 * i + 3 * t^2) %% 5) / 20, 2)))
//   x <- x[c(1, 2, 3, 6, 4, 12, 7, 5, 11, 8, 10, 9), ]
const Values threeShapes = {
    0,     1.15,  2.1,   3.1,   4.15,  5,     6.15,  7.1,   16.41, 8.81,  4.01,  1.51,
    1.31,  3.91,  8.81,  16.51, 2.64,  3.53,  1.61,  0.62,  2.54,  3.63,  1.66,  0.62,
    5.66,  7.3,   4.44,  2.95,  5.81,  7.15,  4.49,  2.95,  3.05,  4.95,  6.65,  8.4,
    10.2,  11.8,  13.7,  15.4,  12.21, 14.58, 10.09, 7.62,  12.11, 14.68, 9.89,  7.62,
    6.1,   8.5,   11.2,  13.7,  16,    18.6,  21,    23.7,  28.65, 16.55, 8.5,   4.5,
    4.55,  8.65,  16.55, 28.5,  52.88, 32.02, 17.98, 10.97, 11.03, 17.88, 32.02, 52.98,
    40.89, 24.29, 13.24, 7.74,  7.79,  13.39, 24.29, 40.74, 9.15,  12.3,  15.5,  18.75,
    22.05, 25.4,  28.55, 31.75, 8.94,  11.07, 7.26,  5.28,  9.09,  10.92, 7.31,  5.28};

class Clustering : public ::testing::Test
{
protected:
  void setRuns(const Values& values, int stride)
  {
    Values time;
    for (std::size_t row = 0; row < values.size(); ++row)
      time.push_back(0.5 * static_cast<double>(row % static_cast<std::size_t>(stride)));
    container.setPlotData(tableOf({{"Time", time}, {"value", values}}));
    container.getMetaData()->setStride(stride);
  }

  /// Clusters and returns the membership; empty without one.
  std::vector<int> cluster(int clusters, int mode = 0)
  {
    CapturedOutput standardOutput(std::cout);
    CapturedOutput errors(std::cerr);
    container.clusterTimeSeries(clusters, mode);
    output = standardOutput.text();
    error = errors.text();
    vtkIntArray* membership = container.getClusterMembership();
    if (!membership)
      return {};
    return {membership->GetPointer(0), membership->GetPointer(0) + membership->GetNumberOfTuples()};
  }

  vtkTable* means() { return container.state().decorationTable; }
  Values mean(int column)
  {
    vtkDoubleArray* values = Talmesh::plot::doubleColumn(means(), column);
    return {values->GetPointer(0), values->GetPointer(0) + values->GetNumberOfTuples()};
  }

  PlotContainer container{nullptr};
  std::string output;
  std::string error;
};

// z <- t(scale(t(x))); k <- kmeans(z, z[1:3, ], algorithm = "Lloyd"); k$cluster - 1
TEST_F(Clustering, SortsRunsByShapeWhateverTheirLevelAndAmplitude)
{
  setRuns(threeShapes, 8);
  EXPECT_EQ(cluster(3), (std::vector<int>{0, 1, 2, 2, 0, 2, 0, 1, 1, 1, 0, 2}));
  EXPECT_EQ(error, "");
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

TEST_F(Clustering, ByMagnitudesIgnoresAShiftInTime)
{
  Values values;
  const auto addWave = [&](double frequency, int shift)
  {
    for (int i = 0; i < 16; ++i)
      values.push_back(std::cos(2.0 * vtkMath::Pi() * frequency * (i + shift) / 16.0));
  };
  addWave(1, 0);
  addWave(3, 0);
  addWave(1, 8);
  addWave(3, 5);
  addWave(1, 4);
  addWave(3, 11);
  setRuns(values, 16);
  EXPECT_EQ(cluster(2, 3), (std::vector<int>{0, 1, 0, 1, 0, 1}));
  EXPECT_EQ(output, "6\n7  16\n");
  // A cosine of 16 samples has the modulus 8 at its frequency and at the mirrored one.
  ASSERT_EQ(means()->GetNumberOfRows(), 16);
  for (std::size_t k = 0; k < 16; ++k)
  {
    EXPECT_NEAR(mean(0)[k], k == 1 || k == 15 ? 8.0 : 0.0, 1e-12);
    EXPECT_NEAR(mean(1)[k], k == 3 || k == 13 ? 8.0 : 0.0, 1e-12);
  }
}

TEST_F(Clustering, ByPhasesIgnoresTheAmplitudeAndSeesTheShift)
{
  Values values(6 * 7, 0.0);
  const std::size_t pulses[] = {1, 2, 2, 1, 1, 2};
  for (std::size_t run = 0; run < 6; ++run)
    values[run * 7 + pulses[run]] = static_cast<double>(1U << run);
  setRuns(values, 7);
  EXPECT_EQ(cluster(2, 2), (std::vector<int>{0, 1, 1, 0, 0, 1}));
  // The pulse at position 1 has the phase -2 pi k / 7, brought into (-pi, pi].
  for (std::size_t k = 0; k < 7; ++k)
  {
    const double phase = -2.0 * vtkMath::Pi() * static_cast<double>(k) / 7.0;
    EXPECT_NEAR(mean(0)[k], k > 3 ? phase + 2.0 * vtkMath::Pi() : phase, 1e-12) << k;
  }
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
  EXPECT_EQ(second->GetData()->GetInputAbstractArrayToProcess(0, second->GetInput()),
            second->GetInput()->GetColumn(12));
  EXPECT_EQ(second->GetData()->GetInputAbstractArrayToProcess(1, second->GetInput()),
            second->GetInput()->GetColumn(1));
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 1000);
}

TEST_F(Clustering, WithoutAChartToDrawInStillClusters)
{
  setRuns(threeShapes, 8);
  container.state().chartXY = nullptr;
  EXPECT_EQ(cluster(3).size(), 12U);
  container.state().chartXY = vtkSmartPointer<vtkChartXY>::New();
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

class ClusterSelections : public Clustering
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
    container.state().clusterMembership = membership;
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

TEST(SpectralFeatures, AreThoseOfTheFullTransform)
{
  using namespace Talmesh::plot;
  // The transform of (1, 2, 3, 4) is 10, -2 + 2i, -2, -2 - 2i.
  const auto curves = tableOf({{"time", {1, 2, 3, 4}}, {"constant", {3, 3, 3, 3}}});
  const auto magnitudes = spectralFeatures(curves, SpectralFeature::magnitude);
  ASSERT_EQ(magnitudes->GetNumberOfColumns(), 2);
  ASSERT_EQ(magnitudes->GetNumberOfRows(), 4);
  EXPECT_NEAR(doubleColumn(magnitudes, 0)->GetValue(0), 10.0, 1e-12);
  EXPECT_NEAR(doubleColumn(magnitudes, 0)->GetValue(1), std::sqrt(8.0), 1e-12);
  EXPECT_NEAR(doubleColumn(magnitudes, 0)->GetValue(2), 2.0, 1e-12);
  EXPECT_NEAR(doubleColumn(magnitudes, 0)->GetValue(3), std::sqrt(8.0), 1e-12);
  EXPECT_NEAR(doubleColumn(magnitudes, 1)->GetValue(0), 12.0, 1e-12);
  EXPECT_NEAR(doubleColumn(magnitudes, 1)->GetValue(1), 0.0, 1e-12);
  const auto phases = spectralFeatures(curves, SpectralFeature::phase);
  EXPECT_NEAR(doubleColumn(phases, 0)->GetValue(1), 0.75 * vtkMath::Pi(), 1e-12);
  EXPECT_NEAR(doubleColumn(phases, 0)->GetValue(3), -0.75 * vtkMath::Pi(), 1e-12);
  EXPECT_EQ(columnName(curves, 0), "time") << "the input keeps its names";
}

} // namespace

#include "external/vtkKMeansPearson.h"

#include <vtkDoubleArray.h>
#include <vtkKMeansStatistics.h>
#include <vtkNew.h>
#include <vtkTable.h>
#include <vtkVariantArray.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace
{

using Trajectory = std::vector<double>;

const double notANumber = std::numeric_limits<double>::quiet_NaN();
const double infinity = std::numeric_limits<double>::infinity();

double distance(const Trajectory& a, const Trajectory& b)
{
  vtkNew<vtkVariantArray> first;
  vtkNew<vtkVariantArray> second;
  for (double value : a)
    first->InsertNextValue(value);
  for (double value : b)
    second->InsertNextValue(value);
  vtkNew<vtkKMeansPearson> functor;
  double result = -99.0;
  (*functor)(result, first, second);
  return result;
}

// The number of each run's cluster.
std::vector<int> cluster(const std::vector<Trajectory>& runs, int clusters,
                         vtkKMeansDistanceFunctor* functor)
{
  vtkNew<vtkTable> table;
  vtkNew<vtkKMeansStatistics> statistics;
  for (std::size_t position = 0; position < runs[0].size(); ++position)
  {
    vtkNew<vtkDoubleArray> column;
    column->SetName(std::to_string(position).c_str());
    for (const Trajectory& run : runs)
      column->InsertNextValue(run[position]);
    table->AddColumn(column);
    statistics->SetColumnStatus(column->GetName(), 1);
  }
  statistics->RequestSelectedColumns();
  statistics->SetInputData(vtkStatisticsAlgorithm::INPUT_DATA, table);
  statistics->SetDistanceFunctor(functor);
  statistics->SetDefaultNumberOfClusters(clusters);
  statistics->SetAssessOption(true);
  statistics->Update();

  vtkTable* assessed = statistics->GetOutput();
  std::vector<int> membership;
  for (vtkIdType run = 0; run < assessed->GetNumberOfRows(); ++run)
    membership.push_back(assessed->GetValue(run, assessed->GetNumberOfColumns() - 1).ToInt());
  return membership;
}

} // namespace

TEST(KMeansPearson, IsOneMinusTheCorrelation)
{
  // R: print(1 - cor(c(1, 2, 4, 8), c(3, 1, 5, 4)), digits = 17)
  EXPECT_NEAR(distance({1, 2, 4, 8}, {3, 1, 5, 4}), 0.47984713188219352, 1e-15);
  EXPECT_NEAR(distance({3, 1, 5, 4}, {1, 2, 4, 8}), 0.47984713188219352, 1e-15);
  EXPECT_NEAR(distance({1, 0, -1, 0}, {0, 1, 0, -1}), 1.0, 1e-15);
}

TEST(KMeansPearson, IgnoresLevelAndAmplitude)
{
  EXPECT_NEAR(distance({1, 2, 4}, {100, 300, 700}), 0.0, 1e-15);
  EXPECT_NEAR(distance({1, 2, 4}, {-1e-3, -2e-3, -4e-3}), 2.0, 1e-15);
}

TEST(KMeansPearson, StaysWithinZeroAndTwo)
{
  for (int i = 1; i < 2000; ++i)
  {
    const Trajectory a{0.1 * i, 0.7 / i, 0.3 * i};
    const Trajectory same{1.1 * a[0], 1.1 * a[1], 1.1 * a[2]};
    const Trajectory opposite{-1.1 * a[0], -1.1 * a[1], -1.1 * a[2]};
    EXPECT_GE(distance(a, same), 0.0);
    EXPECT_LE(distance(a, opposite), 2.0);
  }
}

TEST(KMeansPearson, WorksForVeryLargeAndVerySmallValues)
{
  EXPECT_NEAR(distance({1e308, -1e308, 1e308}, {1, 0, 1}), 0.0, 1e-15);
  EXPECT_NEAR(distance({1e-310, 2e-310, 4e-310}, {1, 2, 4}), 0.0, 1e-12);
}

TEST(KMeansPearson, TwoConstantRunsCoincide)
{
  EXPECT_EQ(distance({3, 3, 3}, {3, 3, 3}), 0.0);
  EXPECT_EQ(distance({0.1, 0.1, 0.1}, {7, 7, 7}), 0.0);
  EXPECT_EQ(distance({1}, {2}), 0.0);
  EXPECT_EQ(distance({}, {}), 0.0);
}

TEST(KMeansPearson, RoundingNoiseIsNoShape)
{
  EXPECT_EQ(distance({0.1, 0.1 + 1e-16, 0.1}, {3, 3, 3 + 5e-16}), 0.0);
  EXPECT_EQ(distance({1e300, 1e300 * (1 + 1e-15), 1e300}, {1, 2, 3}), 1.0);
  EXPECT_NEAR(distance({1, 1 + 1e-9, 1 + 2e-9}, {1, 2, 3}), 0.0, 1e-6);
}

TEST(KMeansPearson, ExactlyOneConstantRunIsUnrelated)
{
  EXPECT_EQ(distance({0.1, 0.1, 0.1}, {1, 2, 3}), 1.0);
  EXPECT_EQ(distance({1, 2, 3}, {0, 0, 0}), 1.0);
}

TEST(KMeansPearson, AValueThatIsNotFiniteIsFarthest)
{
  for (double bad : {notANumber, infinity, -infinity})
  {
    EXPECT_EQ(distance({1, bad, 3}, {1, 2, 3}), 2.0);
    EXPECT_EQ(distance({1, 2, 3}, {1, bad, 3}), 2.0);
    EXPECT_EQ(distance({bad, bad, bad}, {bad, bad, bad}), 2.0);
  }
}

TEST(KMeansPearson, DifferentLengthsAreFarthest)
{
  EXPECT_EQ(distance({1, 2}, {1, 2, 3}), 2.0);
}

TEST(KMeansPearson, IsADistanceFunctorOfVtk)
{
  vtkNew<vtkKMeansPearson> functor;
  EXPECT_STREQ(functor->GetClassName(), "vtkKMeansPearson");
  EXPECT_TRUE(functor->IsA("vtkKMeansDistanceFunctor"));
}

TEST(KMeansPearson, GroupsRunsByShapeWhereTheEuclideanDistanceGroupsByLevel)
{
  const std::vector<Trajectory> runs{{1, 2, 3, 5}, {105, 103, 102, 101}, {101, 102, 103, 106},
                                     {6, 3, 2, 1}, {10, 20, 35, 50},     {190, 130, 120, 110}};
  vtkNew<vtkKMeansPearson> pearson;
  vtkNew<vtkKMeansDistanceFunctor> euclidean;
  EXPECT_EQ(cluster(runs, 2, pearson), (std::vector<int>{0, 1, 0, 1, 0, 1}));
  EXPECT_EQ(cluster(runs, 2, euclidean), (std::vector<int>{0, 1, 1, 0, 0, 1}));
}

TEST(KMeansPearson, ARunThatIsNotFiniteDoesNotSpoilItsCluster)
{
  const std::vector<Trajectory> runs{{1, 2, 3, 5},       {9, 7, 5, 2}, {1, notANumber, 3, 4},
                                     {2, 4, 6, 9},       {5, 4, 3, 2}, {3, 5, 6, 8},
                                     {infinity, 1, 1, 1}};
  vtkNew<vtkKMeansPearson> pearson;
  const std::vector<int> membership = cluster(runs, 2, pearson);
  ASSERT_EQ(membership.size(), runs.size());
  for (std::size_t rising : {0u, 3u, 5u})
    EXPECT_EQ(membership[rising], 0) << "run " << rising;
  for (std::size_t falling : {1u, 4u})
    EXPECT_EQ(membership[falling], 1) << "run " << falling;
}

TEST(KMeansPearson, CountsARunThatIsNotFiniteAsZerosInTheMean)
{
  vtkNew<vtkTable> centres;
  for (const char* name : {"0", "1"})
  {
    vtkNew<vtkDoubleArray> column;
    column->SetName(name);
    column->InsertNextValue(0.0);
    centres->AddColumn(column);
  }
  vtkNew<vtkKMeansPearson> functor;
  vtkIdType members = 0;
  for (const Trajectory& run : {Trajectory{3, 6}, Trajectory{notANumber, 100}, Trajectory{6, 9}})
  {
    vtkNew<vtkVariantArray> data;
    for (double value : run)
      data->InsertNextValue(value);
    functor->PairwiseUpdate(centres, 0, data, 1, ++members);
  }
  EXPECT_NEAR(centres->GetValue(0, 0).ToDouble(), 3.0, 1e-14);
  EXPECT_NEAR(centres->GetValue(0, 1).ToDouble(), 5.0, 1e-14);
}

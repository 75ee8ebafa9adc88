#include "external/vtkKMeansPearson.h"
#include "support/VtkErrors.h"
#include "vtk/vtkShapeKMeansStatistics.h"

#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkIntArray.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkTable.h>
#include <vtkVariantArray.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace
{

using Values = std::vector<double>;
constexpr int positions = 6;

vtkSmartPointer<vtkTable> oneColumn(const Values& values)
{
  vtkNew<vtkDoubleArray> column;
  column->SetName("run");
  column->SetNumberOfComponents(positions);
  for (const double value : values)
    column->InsertNextValue(value);
  auto table = vtkSmartPointer<vtkTable>::New();
  table->AddColumn(column);
  return table;
}

template <class Array>
vtkSmartPointer<vtkTable> columnPerPosition(const Values& values)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  for (std::size_t position = 0; position < positions; ++position)
  {
    vtkNew<Array> column;
    column->SetName(("p" + std::to_string(position)).c_str());
    for (std::size_t i = position; i < values.size(); i += positions)
      column->InsertNextValue(static_cast<typename Array::ValueType>(values[i]));
    table->AddColumn(column);
  }
  return table;
}

void configure(vtkKMeansStatistics* statistics, vtkTable* table, int clusters)
{
  statistics->SetInputData(vtkStatisticsAlgorithm::INPUT_DATA, table);
  for (vtkIdType i = 0; i < table->GetNumberOfColumns(); ++i)
    statistics->SetColumnStatus(table->GetColumnName(i), 1);
  statistics->RequestSelectedColumns();
  statistics->SetAssessOption(true);
  statistics->SetDefaultNumberOfClusters(clusters);
  statistics->Update();
}

vtkTable* modelOf(vtkKMeansStatistics* statistics)
{
  auto* model = vtkMultiBlockDataSet::SafeDownCast(
      statistics->GetOutputDataObject(vtkStatisticsAlgorithm::OUTPUT_MODEL));
  return vtkTable::SafeDownCast(model->GetBlock(0));
}

std::vector<int> closest(vtkKMeansStatistics* statistics)
{
  vtkTable* assessed = statistics->GetOutput();
  std::vector<int> clusters;
  for (vtkIdType row = 0; row < assessed->GetNumberOfRows(); ++row)
    clusters.push_back(assessed->GetValueByName(row, "ClosestId(0)").ToInt());
  return clusters;
}

/// Runs of a few shapes, some steady up to noise and some not finite.
Values randomRuns(unsigned seed, int runs)
{
  std::mt19937 engine(seed);
  std::normal_distribution<double> normal;
  Values values;
  for (int run = 0; run < runs; ++run)
  {
    const double level = normal(engine);
    for (int i = 0; i < positions; ++i)
      values.push_back(run % 7 == 3 ? level * (1.0 + 1e-16 * (i % 3))
                                    : level + std::sin(i * (1 + run % 3)) + 0.1 * normal(engine));
    if (run % 11 == 5)
      values.back() = std::nan("");
  }
  return values;
}

class ShapeKMeans : public ::testing::Test
{
protected:
  ShapeKMeans() { statistics->SetDistanceFunctor(pearson); }

  vtkNew<vtkShapeKMeansStatistics> statistics;
  vtkNew<vtkKMeansPearson> pearson;
  VtkErrors reports;
};

TEST_F(ShapeKMeans, AssessesTheDistancesOfItsFunctor)
{
  const Values values = randomRuns(1, 60);
  configure(statistics, oneColumn(values), 4);
  vtkTable* model = modelOf(statistics);
  auto* centres = vtkDoubleArray::SafeDownCast(model->GetColumnByName("run"));
  ASSERT_NE(centres, nullptr);
  ASSERT_EQ(centres->GetNumberOfComponents(), positions);
  for (vtkIdType run = 0; run < 60; ++run)
  {
    vtkNew<vtkVariantArray> observation;
    for (vtkIdType i = 0; i < positions; ++i)
      observation->InsertNextValue(values[static_cast<std::size_t>(run * positions + i)]);
    double least = 3.0;
    for (vtkIdType c = 0; c < centres->GetNumberOfTuples(); ++c)
    {
      vtkNew<vtkVariantArray> centre;
      for (int i = 0; i < positions; ++i)
        centre->InsertNextValue(centres->GetComponent(c, i));
      double distance = -1.0;
      (*pearson)(distance, centre, observation);
      least = std::min(least, distance);
    }
    EXPECT_NEAR(statistics->GetOutput()->GetValueByName(run, "Distance(0)").ToDouble(), least,
                1e-12)
        << run;
  }
}

TEST_F(ShapeKMeans, ReadsOneColumnOrManyOfAnyNumbers)
{
  const Values values = randomRuns(2, 40);
  configure(statistics, oneColumn(values), 3);
  const std::vector<int> expected = closest(statistics);
  for (const auto& table :
       {columnPerPosition<vtkDoubleArray>(values), columnPerPosition<vtkFloatArray>(values)})
  {
    vtkNew<vtkShapeKMeansStatistics> other;
    other->SetDistanceFunctor(pearson);
    configure(other, table, 3);
    EXPECT_EQ(closest(other), expected);
    EXPECT_EQ(modelOf(other)->GetNumberOfColumns(), 5 + positions);
  }
}

TEST_F(ShapeKMeans, HasTheModelAndClustersOfTheBase)
{
  // Distinct first runs, so that both begin alike.
  const Values values = {1, 2, 3, 4, 5, 7, 7, 5, 4, 3, 2, 1, 1, 5, 1, 5, 1, 5,
                         2, 3, 5, 6, 7, 9, 9, 7, 5, 4, 3, 2, 2, 8, 2, 9, 2, 8};
  configure(statistics, columnPerPosition<vtkDoubleArray>(values), 3);
  vtkNew<vtkKMeansStatistics> base;
  base->SetDistanceFunctor(pearson);
  configure(base, columnPerPosition<vtkDoubleArray>(values), 3);
  EXPECT_EQ(closest(statistics), closest(base));
  vtkTable* model = modelOf(statistics);
  vtkTable* expected = modelOf(base);
  ASSERT_EQ(model->GetNumberOfColumns(), expected->GetNumberOfColumns());
  ASSERT_EQ(model->GetNumberOfRows(), expected->GetNumberOfRows());
  for (vtkIdType i = 0; i < model->GetNumberOfColumns(); ++i)
  {
    EXPECT_STREQ(model->GetColumnName(i), expected->GetColumnName(i));
    EXPECT_STREQ(model->GetColumn(i)->GetClassName(), expected->GetColumn(i)->GetClassName());
    for (vtkIdType row = 0; row < model->GetNumberOfRows(); ++row)
      EXPECT_NEAR(model->GetValue(row, i).ToDouble(), expected->GetValue(row, i).ToDouble(), 1e-12);
  }
}

TEST_F(ShapeKMeans, SaysNothingOfClustersThatLostTheirMembers)
{
  configure(statistics, oneColumn(randomRuns(3, 30)), 29);
  Values alike;
  for (int i = 0; i < 8 * positions; ++i)
    alike.push_back(i % positions);
  vtkNew<vtkShapeKMeansStatistics> other;
  other->SetDistanceFunctor(pearson);
  configure(other, oneColumn(alike), 5);
  EXPECT_EQ(closest(other), std::vector<int>(8, 0));
  EXPECT_EQ(reports.text(), "");
}

TEST_F(ShapeKMeans, LeavesOtherDistancesToTheBase)
{
  const Values values = randomRuns(4, 4);
  vtkNew<vtkKMeansDistanceFunctor> euclidean;
  statistics->SetDistanceFunctor(euclidean);
  configure(statistics, columnPerPosition<vtkDoubleArray>(values), 2);
  vtkNew<vtkKMeansStatistics> base;
  base->SetDistanceFunctor(euclidean);
  configure(base, columnPerPosition<vtkDoubleArray>(values), 2);
  EXPECT_EQ(closest(statistics), closest(base));
}

} // namespace

#include "external/LinePlotTable.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/SampleTables.h"

#include <vtkDataSetAttributes.h>
#include <vtkFloatArray.h>
#include <vtkIntArray.h>

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

namespace
{

using Values = std::vector<double>;

struct Reference
{
  double lower;
  double median;
  double upper;
};

// R 4.2.2: x <- (37 * (1:40)) %% 101 - 50.5
//   for (n in 1:40) quantile(x[1:n], c(0.25, 0.5, 0.75), type = 2)
constexpr Reference typeTwoQuantiles[] = {
    {-13.5, -13.5, -13.5}, {-13.5, 5, 23.5},    {-40.5, -13.5, 23.5}, {-27, -8.5, 10},
    {-13.5, -3.5, 23.5},   {-30.5, -8.5, 23.5}, {-30.5, -3.5, 23.5},  {-22, 1.5, 28.5},
    {-20.5, -3.5, 23.5},   {-20.5, 1.5, 23.5},  {-30.5, -3.5, 23.5},  {-25.5, -7, 20},
    {-20.5, -3.5, 23.5},   {-30.5, -7, 23.5},   {-30.5, -3.5, 23.5},  {-25.5, -2, 25},
    {-27.5, -3.5, 23.5},   {-27.5, -2, 23.5},   {-27.5, -0.5, 26.5},  {-24, -2, 25},
    {-20.5, -0.5, 23.5},   {-27.5, -2, 23.5},   {-27.5, -3.5, 23.5},  {-24, -2, 25},
    {-27.5, -3.5, 23.5},   {-27.5, -2, 23.5},   {-27.5, -0.5, 26.5},  {-26, -2, 25},
    {-24.5, -0.5, 23.5},   {-24.5, 1, 26.5},    {-24.5, -0.5, 26.5},  {-22.5, 1, 25},
    {-24.5, -0.5, 23.5},   {-24.5, -2, 23.5},   {-24.5, -0.5, 26.5},  {-26, -2, 25},
    {-24.5, -0.5, 23.5},   {-24.5, 1, 26.5},    {-24.5, -0.5, 26.5},  {-23, 1, 25},
};

double referenceValue(int i)
{
  return (37 * (i + 1)) % 101 - 50.5;
}

class Quartiles : public ::testing::Test
{
protected:
  /// Runs of one column, over a time column.
  void setRuns(const Values& values, int stride)
  {
    container.setPlotData(runsOfValues(values, stride));
    container.getMetaData()->setStride(stride);
  }

  vtkTable* quartiles() { return container.getQuartileTable(); }
  vtkDoubleArray* column(const std::string& name)
  {
    return vtkDoubleArray::SafeDownCast(Talmesh::plot::columnNamed(quartiles(), name));
  }
  double at(vtkIdType row, int index)
  {
    return Talmesh::plot::doubleColumn(quartiles(), index)->GetValue(row);
  }

  PlotContainer container{nullptr};
};

const std::vector<std::string> allColumns = {"Quantile", "Minimum",        "First Quartile",
                                             "Median",   "Third Quartile", "Maximum",
                                             "Range",    "QRange",         "Time"};

TEST_F(Quartiles, SummariseEveryPositionOfTheRuns)
{
  setRuns({1, 10, 2, 20, 3, 30, 4, 40}, 2);
  container.generateQuartiles();
  ASSERT_EQ(quartiles()->GetNumberOfRows(), 2);
  ASSERT_EQ(quartiles()->GetNumberOfColumns(), 9);
  for (int i = 0; i < 9; ++i)
    EXPECT_EQ(Talmesh::plot::columnName(quartiles(), i), allColumns[static_cast<std::size_t>(i)]);
  for (int i = 1; i < 9; ++i)
    EXPECT_NE(Talmesh::plot::doubleColumn(quartiles(), i), nullptr) << i;
  EXPECT_EQ(quartiles()->GetValue(0, 0).ToString(), "0");
  EXPECT_EQ(quartiles()->GetValue(1, 0).ToString(), "1");
  const double expected[2][5] = {{1, 1.5, 2.5, 3.5, 4}, {10, 15, 25, 35, 40}};
  for (int row = 0; row < 2; ++row)
  {
    for (int i = 0; i < 5; ++i)
      EXPECT_EQ(at(row, i + 1), expected[row][i]) << row << ", " << i;
  }
}

TEST_F(Quartiles, PairTheExtremesAndTheQuartiles)
{
  setRuns({1, 10, 2, 20, 3, 30, 4, 40}, 2);
  container.generateQuartiles();
  ASSERT_EQ(column("Range")->GetNumberOfComponents(), 2);
  ASSERT_EQ(column("Range")->GetNumberOfTuples(), 2);
  EXPECT_EQ(column("Range")->GetComponent(1, 0), 10.0);
  EXPECT_EQ(column("Range")->GetComponent(1, 1), 40.0);
  ASSERT_EQ(column("QRange")->GetNumberOfComponents(), 2);
  EXPECT_EQ(column("QRange")->GetComponent(0, 0), 1.5);
  EXPECT_EQ(column("QRange")->GetComponent(0, 1), 3.5);
}

TEST_F(Quartiles, FollowTheAveragedInverseDistributionForEveryNumberOfRuns)
{
  Values values;
  for (int n = 1; n <= 40; ++n)
  {
    values.push_back(referenceValue(n - 1));
    setRuns(values, 1);
    container.generateQuartiles();
    ASSERT_EQ(quartiles()->GetNumberOfRows(), 1);
    const Reference& expected = typeTwoQuantiles[n - 1];
    EXPECT_EQ(at(0, 2), expected.lower) << n;
    EXPECT_EQ(at(0, 3), expected.median) << n;
    EXPECT_EQ(at(0, 4), expected.upper) << n;
    EXPECT_EQ(at(0, 1), *std::min_element(values.begin(), values.end())) << n;
    EXPECT_EQ(at(0, 5), *std::max_element(values.begin(), values.end())) << n;
  }
}

TEST_F(Quartiles, KeepTheOrderOfPositionsBeyondTen)
{
  Values values;
  for (int i = 0; i < 2 * 123; ++i)
    values.push_back(i % 123);
  setRuns(values, 123);
  container.generateQuartiles();
  ASSERT_EQ(quartiles()->GetNumberOfRows(), 123);
  for (int row = 0; row < 123; ++row)
    EXPECT_EQ(at(row, 3), row);
  EXPECT_EQ(quartiles()->GetValue(7, 0).ToString(), "007");
}

TEST_F(Quartiles, LeaveOutAPartialRun)
{
  setRuns({1, 10, 3, 30, 100}, 2);
  container.generateQuartiles();
  EXPECT_EQ(quartiles()->GetNumberOfRows(), 2);
  EXPECT_EQ(at(0, 5), 3.0);
}

TEST_F(Quartiles, StayAsTheyAreForAStrideBelowOne)
{
  setRuns({1, 2}, 1);
  container.generateQuartiles();
  vtkTable* before = quartiles();
  container.getMetaData()->setStride(0);
  container.generateQuartiles();
  EXPECT_EQ(quartiles(), before);
  container.getMetaData()->setStride(-3);
  container.generateQuartiles();
  EXPECT_EQ(quartiles(), before);
}

TEST_F(Quartiles, HaveEveryColumnButNoRowWithoutAWholeRun)
{
  const auto expectEmpty = [this](const std::string& why)
  {
    container.generateQuartiles();
    ASSERT_NE(quartiles(), nullptr) << why;
    EXPECT_EQ(quartiles()->GetNumberOfRows(), 0) << why;
    ASSERT_EQ(quartiles()->GetNumberOfColumns(), 9) << why;
    for (int i = 0; i < 9; ++i)
      EXPECT_EQ(Talmesh::plot::columnName(quartiles(), i), allColumns[static_cast<std::size_t>(i)]);
    EXPECT_EQ(column("Range")->GetNumberOfComponents(), 2) << why;
    EXPECT_EQ(column("Time")->GetNumberOfTuples(), 0) << why;
  };
  expectEmpty("empty container");
  setRuns({1, 2, 3}, 4);
  expectEmpty("run longer than the table");
  container.getMetaData()->setStride(std::numeric_limits<int>::max());
  expectEmpty("immense stride");
  container.getMetaData()->setStride(1);
  container.getMetaData()->yColumns = {17};
  expectEmpty("no such column");
  container.getMetaData()->yColumns = {};
  expectEmpty("no column chosen");
  addStringColumn(container.getTable(), "text");
  container.getMetaData()->yColumns = {2};
  expectEmpty("text");
}

TEST_F(Quartiles, ReadNumbersOfAnyType)
{
  setRuns({0, 0, 0}, 1);
  vtkNew<vtkIntArray> integers;
  integers->SetName("integers");
  for (const int value : {5, 1, 3})
    integers->InsertNextValue(value);
  container.getTable()->AddColumn(integers);
  container.getMetaData()->yColumns = {2};
  container.generateQuartiles();
  EXPECT_EQ(at(0, 3), 3.0);
}

TEST_F(Quartiles, LeaveNanOut)
{
  const double nan = std::numeric_limits<double>::quiet_NaN();
  setRuns({nan, 1, nan, 4, 2, nan, 1, 3, nan, 3, 4, nan}, 3);
  container.generateQuartiles();
  EXPECT_EQ(at(0, 1), 1.0);
  EXPECT_EQ(at(0, 3), 3.0);
  EXPECT_EQ(at(0, 5), 4.0);
  EXPECT_EQ(at(1, 3), 2.5) << "positions without NaN are as ever";
  EXPECT_TRUE(std::isnan(at(2, 1)));
  EXPECT_TRUE(std::isnan(at(2, 3)));
  EXPECT_EQ(column("Range")->GetComponent(0, 1), 4.0);
}

TEST_F(Quartiles, ShareTheTimesOfTheFirstRun)
{
  setRuns({1, 2, 3, 4}, 2);
  container.generateQuartiles();
  auto* time = Talmesh::plot::doubleColumn(container.getTable(), 0);
  ASSERT_EQ(column("Time")->GetNumberOfTuples(), 2);
  EXPECT_EQ(column("Time")->GetPointer(0), time->GetPointer(0));
  time->SetValue(1, 77.0);
  EXPECT_EQ(column("Time")->GetValue(1), 77.0);
}

TEST_F(Quartiles, KeepTheSharedTimesAlive)
{
  vtkSmartPointer<vtkTable> kept;
  auto lines = boost::make_shared<LinePlotTable>();
  lines->items = {{Talmesh::Molecule, "A"}, {Talmesh::TimeOrValue, "Time [s]"}};
  lines->values = {new double[4]{1, 2, 3, 4}, new double[4]{0, 9, 0, 9}};
  lines->numberOfTrajectories = 2;
  lines->pointsPerTrajectory = 2;
  {
    CapturedOutput output(std::cout);
    PlotContainer other(nullptr);
    other.setLinePlotTable(lines, true);
    lines.reset();
    kept = other.getQuartileTable();
    other.setPlotData(plainTable());
  }
  ASSERT_EQ(kept->GetNumberOfRows(), 2);
  auto* time = vtkDoubleArray::SafeDownCast(kept->GetColumnByName("Time"));
  EXPECT_EQ(time->GetValue(0), 0.0);
  EXPECT_EQ(time->GetValue(1), 9.0);
}

TEST_F(Quartiles, CopyTimesThatAreNotDoubles)
{
  setRuns({1, 2, 3, 4}, 2);
  vtkNew<vtkFloatArray> time;
  time->SetName("float time");
  for (const float value : {0.25F, 0.75F, 0.25F, 0.75F})
    time->InsertNextValue(value);
  container.getTable()->AddColumn(time);
  container.getMetaData()->xColumns = {2};
  container.generateQuartiles();
  EXPECT_EQ(column("Time")->GetValue(1), 0.75);
}

TEST_F(Quartiles, CountPositionsWhereThereIsNoTime)
{
  setRuns({1, 2, 3, 4}, 2);
  container.getMetaData()->xColumns = {};
  container.generateQuartiles();
  EXPECT_EQ(column("Time")->GetValue(1), 1.0);

  vtkNew<vtkDoubleArray> shorter;
  shorter->SetName("shorter");
  shorter->InsertNextValue(0.5);
  container.getTable()->GetRowData()->AddArray(shorter);
  container.getMetaData()->xColumns = {2};
  container.generateQuartiles();
  ASSERT_EQ(column("Time")->GetNumberOfTuples(), 2);
  EXPECT_EQ(column("Time")->GetValue(0), 0.5);
  EXPECT_EQ(column("Time")->GetValue(1), 1.0);
}

TEST_F(Quartiles, AreReplacedWhole)
{
  setRuns({1, 2}, 1);
  container.generateQuartiles();
  vtkSmartPointer<vtkTable> before = quartiles();
  container.generateQuartiles();
  EXPECT_NE(quartiles(), before);
  EXPECT_EQ(before->GetNumberOfColumns(), 9);
}

} // namespace

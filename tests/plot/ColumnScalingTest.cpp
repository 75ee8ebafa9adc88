#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/PlotScene.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"

#include <vtkDataSetAttributes.h>
#include <vtkFloatArray.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

using Values = std::vector<double>;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

class ColumnScaling : public ::testing::Test
{
protected:
  ColumnScaling() { container.setScene(scene.scene()); }

  void setRuns(const Values& values, int stride)
  {
    container.getMetaData()->blockSignals(true);
    container.setPlotData(tableOf({{"Time", Values(values.size())}, {"value", values}}));
    container.getMetaData()->setStride(stride);
    scene.scene()->SetDirty(false);
  }

  Values values(int index = 1)
  {
    return SampleRuns::valuesOf(container.getTable()->GetColumn(index));
  }

  bool isDirty() { return scene.scene()->GetDirty(); }
  double median(vtkIdType row)
  {
    return container.getQuartileTable()->GetValueByName(row, "Median").ToDouble();
  }

  void scale(Values factors, int column = 1) { container.scaleColumn(factors.data(), column); }

  PlotScene scene;
  PlotContainer container{nullptr};
};

TEST_F(ColumnScaling, MultipliesEveryRunByItsFactor)
{
  setRuns({1, 2, 3, 4, 5, 6}, 2);
  scale({10, -1, 0.5});
  EXPECT_EQ(values(), (Values{10, 20, -3, -4, 2.5, 3}));
  EXPECT_EQ(values(0), Values(6));
  EXPECT_EQ(median(0), 2.5);
  EXPECT_TRUE(isDirty());
}

TEST_F(ColumnScaling, ScalesNothingWithoutFactors)
{
  setRuns({1, 2, 3, 4}, 2);
  container.scaleColumn(nullptr, 1);
  EXPECT_EQ(values(), (Values{1, 2, 3, 4}));
  EXPECT_EQ(median(0), 2.0);
  EXPECT_TRUE(isDirty());
}

TEST_F(ColumnScaling, LeavesAnIncompleteLastRun)
{
  setRuns({1, 2, 3, 4, 8}, 2);
  scale({2, 2});
  EXPECT_EQ(values(), (Values{2, 4, 6, 8, 8}));
  container.scaleRelativeToMaxWithinTrajectory(1);
  EXPECT_EQ(values(), (Values{0.5, 1, 0.75, 1, 8}));
}

TEST_F(ColumnScaling, TakesTheRunsOfTheTableWhereAColumnIsLonger)
{
  vtkSmartPointer<vtkTable> table = tableOf({{"Time", {0, 1, 0, 1}}});
  table->GetRowData()->AddArray(Talmesh::plot::makeColumn("value", {1, 2, 3, 4, 5, 6}));
  container.getMetaData()->blockSignals(true);
  container.setPlotData(table);
  container.getMetaData()->setStride(2);
  // The caller has a factor for either run; a third would be beyond them.
  scale({10, 100, infinity});
  EXPECT_EQ(values(), (Values{10, 20, 300, 400, 5, 6}));
  container.scaleRelativeToMaxWithinTrajectory(1);
  EXPECT_EQ(values(), (Values{0.5, 1, 0.75, 1, 5, 6}));
  container.scaleColumnByColumn(1, 1, false);
  EXPECT_EQ(values(), (Values{0.25, 1, 0.5625, 1, 5, 6}));
}

TEST_F(ColumnScaling, OfATableShorterThanARunChangesNothingButTheQuartiles)
{
  setRuns({1, 2, 3}, 4);
  scale({});
  EXPECT_EQ(values(), (Values{1, 2, 3}));
  ASSERT_NE(container.getQuartileTable(), nullptr);
  EXPECT_EQ(container.getQuartileTable()->GetNumberOfRows(), 0);
  EXPECT_TRUE(isDirty());

  vtkSmartPointer<vtkTable> before = container.getQuartileTable();
  scene.scene()->SetDirty(false);
  container.scaleRelativeToMaxWithinTrajectory(1);
  EXPECT_EQ(values(), (Values{1, 2, 3}));
  EXPECT_NE(container.getQuartileTable(), before);
  EXPECT_TRUE(isDirty());
}

TEST_F(ColumnScaling, WithAStrideBelowOneScalesNoRun)
{
  for (const int stride : {0, -1, std::numeric_limits<int>::min()})
  {
    setRuns({1, 2, 3}, stride);
    scale({9, 9, 9});
    EXPECT_EQ(values(), (Values{1, 2, 3}));
    EXPECT_TRUE(isDirty());
    scene.scene()->SetDirty(false);
    container.scaleRelativeToMaxWithinTrajectory(1);
    EXPECT_EQ(values(), (Values{1, 2, 3}));
    EXPECT_TRUE(isDirty());
  }
}

TEST_F(ColumnScaling, ToTheMaximumPassesOverNan)
{
  setRuns({2, 4, nan, -1}, 4);
  container.scaleRelativeToMaxWithinTrajectory(1);
  const Values scaled = values();
  EXPECT_EQ(scaled[0], 0.5);
  EXPECT_EQ(scaled[1], 1.0);
  EXPECT_TRUE(std::isnan(scaled[2]));
  EXPECT_EQ(scaled[3], -0.25);
}

TEST_F(ColumnScaling, ToTheMaximumOfARunWithoutPositiveValuesIsInfiniteOrNan)
{
  setRuns({0, 0, -2, 0}, 2);
  container.scaleRelativeToMaxWithinTrajectory(1);
  const Values scaled = values();
  EXPECT_TRUE(std::isnan(scaled[0]));
  EXPECT_TRUE(std::isnan(scaled[1]));
  EXPECT_EQ(scaled[2], -infinity);
  EXPECT_TRUE(std::isnan(scaled[3]));
}

TEST_F(ColumnScaling, ToTheMaximumMultipliesByTheReciprocal)
{
  setRuns({49, 7}, 2);
  container.scaleRelativeToMaxWithinTrajectory(1);
  const volatile double reciprocal = 1.0 / 49.0;
  EXPECT_EQ(values()[0], 49.0 * reciprocal);
  EXPECT_NE(values()[0], 1.0) << "49 * (1 / 49) is not 1";
  EXPECT_EQ(values()[1], 7.0 * reciprocal);
}

TEST_F(ColumnScaling, RefreshesTheRangesThatVtkRemembers)
{
  setRuns({1, 2, 3, 4}, 2);
  double range[2];
  Talmesh::plot::doubleColumn(container.getTable(), 1)->GetRange(range);
  ASSERT_EQ(range[1], 4.0);
  const vtkMTimeType before = container.getTable()->GetMTime();
  scale({1, 100});
  Talmesh::plot::doubleColumn(container.getTable(), 1)->GetRange(range);
  EXPECT_EQ(range[1], 400.0);
  EXPECT_GT(container.getTable()->GetMTime(), before);
  container.scaleColumnByColumn(1, 1, true);
  Talmesh::plot::doubleColumn(container.getTable(), 1)->GetRange(range);
  EXPECT_EQ(range[1], 1.0);
}

TEST_F(ColumnScaling, OfAMissingOrMistypedColumnOnlyRefreshesQuartilesAndScene)
{
  setRuns({1, 2}, 1);
  vtkNew<vtkFloatArray> floats;
  floats->SetName("floats");
  floats->InsertNextValue(1.0F);
  floats->InsertNextValue(2.0F);
  container.getTable()->AddColumn(floats);
  for (const int column : {-1, 2, 3})
  {
    vtkSmartPointer<vtkTable> before = container.getQuartileTable();
    scene.scene()->SetDirty(false);
    scale({5, 5}, column);
    EXPECT_TRUE(isDirty()) << column;
    EXPECT_NE(container.getQuartileTable(), before) << column;
    before = container.getQuartileTable();
    scene.scene()->SetDirty(false);
    container.scaleRelativeToMaxWithinTrajectory(column);
    EXPECT_TRUE(isDirty()) << column;
    EXPECT_NE(container.getQuartileTable(), before) << column;
  }
  EXPECT_EQ(values(), (Values{1, 2}));
  EXPECT_EQ(floats->GetValue(1), 2.0F);
}

TEST_F(ColumnScaling, ByAnotherColumnWorksRowByRow)
{
  container.setPlotData(tableOf({{"a", {1, 2, 3}}, {"b", {4, 5, 6}}}));
  container.getMetaData()->setStride(2);
  container.scaleColumnByColumn(0, 1, false);
  EXPECT_EQ(values(0), (Values{4, 10, 18}));
  container.scaleColumnByColumn(0, 1, true);
  EXPECT_EQ(values(0), (Values{1, 2, 3}));
  EXPECT_EQ(values(1), (Values{4, 5, 6}));
}

TEST_F(ColumnScaling, ByItselfIsAllowed)
{
  container.setPlotData(tableOf({{"a", {1, 2, 3}}}));
  container.scaleColumnByColumn(0, 0, false);
  EXPECT_EQ(values(0), (Values{1, 4, 9}));
}

TEST_F(ColumnScaling, ByAnotherColumnDividesByZeroAndLeavesTheSceneClean)
{
  container.setPlotData(tableOf({{"c", {1, -1, 0, 6}}, {"d", {0, 0, 0, 2}}}));
  scene.scene()->SetDirty(false);
  container.scaleColumnByColumn(0, 1, true);
  EXPECT_EQ(values(0)[0], infinity);
  EXPECT_EQ(values(0)[1], -infinity);
  EXPECT_TRUE(std::isnan(values(0)[2]));
  EXPECT_EQ(values(0)[3], 3.0);
  EXPECT_FALSE(isDirty());
  EXPECT_EQ(container.getQuartileTable(), nullptr);
}

TEST_F(ColumnScaling, ByAColumnThatCannotBeReadChangesNothing)
{
  container.setPlotData(tableOf({{"a", {1, 2, 3}}}));
  addStringColumn(container.getTable(), "text");
  vtkNew<vtkFloatArray> floats;
  floats->SetName("floats");
  floats->SetNumberOfValues(3);
  container.getTable()->AddColumn(floats);
  for (const int by : {-1, 1, 2, 3})
  {
    container.scaleColumnByColumn(0, by, false);
    container.scaleColumnByColumn(by, 0, true);
  }
  EXPECT_EQ(values(0), (Values{1, 2, 3}));
}

TEST_F(ColumnScaling, OfAnEmptyContainerDoesNothing)
{
  PlotContainer empty(nullptr);
  double factor = 2.0;
  empty.scaleColumn(&factor, 0);
  empty.scaleRelativeToMaxWithinTrajectory(0);
  empty.scaleColumnByColumn(0, 0, true);
  EXPECT_EQ(empty.getTable()->GetNumberOfColumns(), 0);
}

} // namespace

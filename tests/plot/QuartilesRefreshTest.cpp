#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "support/SampleTables.h"

#include <vtkDoubleArray.h>
#include <vtkSmartPointer.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{

class QuartilesRefresh : public ::testing::Test
{
protected:
  QuartilesRefresh()
  {
    container.setPlotData(runsOfValues({1, 10, 2, 20, 3, 30, 4, 40}, 2));
    container.getMetaData()->blockSignals(true);
    container.getMetaData()->setStride(2);
    container.refreshQuartiles();
  }

  /// Whether a refresh makes another table.
  bool isRefreshed()
  {
    const vtkSmartPointer<vtkTable> before = container.getQuartileTable();
    container.refreshQuartiles();
    return container.getQuartileTable() != before;
  }

  vtkDoubleArray* plotted()
  {
    return vtkDoubleArray::SafeDownCast(
        container.getTable()->GetColumn(container.getMetaData()->yColumns.front()));
  }

  double median() { return container.getQuartileTable()->GetValueByName(0, "Median").ToDouble(); }

  PlotContainer container{nullptr};
};

TEST_F(QuartilesRefresh, MakesTheFirstTableAndNoOtherWithoutAChange)
{
  ASSERT_TRUE(container.getQuartileTable());
  EXPECT_FALSE(isRefreshed());
}

TEST_F(QuartilesRefresh, FollowsColumnsStrideAndValues)
{
  container.getMetaData()->setStride(4);
  EXPECT_TRUE(isRefreshed());
  EXPECT_FALSE(isRefreshed());
  container.getMetaData()->xColumns = {1};
  EXPECT_TRUE(isRefreshed());
  container.getMetaData()->yColumns = {0};
  EXPECT_TRUE(isRefreshed());
  EXPECT_FALSE(isRefreshed());
  plotted()->SetValue(0, 100.0);
  plotted()->Modified();
  EXPECT_TRUE(isRefreshed());
  EXPECT_FALSE(isRefreshed());
}

TEST_F(QuartilesRefresh, FollowsAnotherTableWithTheSameColumns)
{
  container.setPlotData(runsOfValues({5, 10, 6, 20, 7, 30, 8, 40}, 2));
  EXPECT_TRUE(isRefreshed());
  EXPECT_EQ(median(), 6.5);
}

TEST_F(QuartilesRefresh, KnowsTablesThatWereMadeForOthers)
{
  const double own = median();
  container.getMetaData()->yColumns = {0};
  container.generateQuartiles();
  container.getMetaData()->yColumns = {1};
  EXPECT_TRUE(isRefreshed());
  EXPECT_EQ(median(), own);
  container.generateQuartiles();
  EXPECT_FALSE(isRefreshed());
}

} // namespace

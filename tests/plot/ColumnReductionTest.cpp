#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/ParameterStudy.h"
#include "support/PlotScene.h"
#include "support/PlotStyleCount.h"
#include "support/SampleTables.h"
#include "support/SoundPicture.h"
#include "support/VtkErrors.h"

#include <vtkIntArray.h>

#include <gtest/gtest.h>

#include <QStringList>

namespace
{

vtkSmartPointer<vtkTable> nineColumns()
{
  NamedValues columns;
  for (int i = 0; i < 9; ++i)
    columns.emplace_back("column " + std::to_string(i), std::vector<double>{1.0 * i, 2.0 * i});
  return tableOf(columns);
}

class ColumnReduction : public ::testing::Test
{
protected:
  PlotMetaData& settings() { return *container.getMetaData(); }
  QStringList labels() { return container.getLabels(); }

  void useSomeOfNine()
  {
    container.setPlotData(nineColumns());
    settings().xColumns = {5};
    settings().yColumns = {2};
    settings().zColumns = {};
    settings().parameterColumns = {3, 7};
    settings().colorColumn = 0;
  }

  PlotScene scene;
  PlotContainer container{nullptr};
};

TEST_F(ColumnReduction, KeepsAndRenumbersTheUsedColumns)
{
  useSomeOfNine();
  vtkTable* table = container.getTable();
  CapturedOutput errors(std::cerr);
  container.shrinkToColumnSelection();
  EXPECT_EQ(errors.text(), "invalid color column :0\n");
  EXPECT_EQ(container.getTable(), table);
  EXPECT_EQ(labels().mid(0, 4), (QStringList{"column 2", "column 3", "column 5", "column 7"}));
  EXPECT_EQ(settings().xColumns, std::vector<int>{2});
  EXPECT_EQ(settings().yColumns, std::vector<int>{0});
  EXPECT_EQ(settings().parameterColumns, (std::vector<int>{1, 3}));
}

TEST_F(ColumnReduction, AppendsTheFlagsOfTheSelectedRowsLast)
{
  useSomeOfNine();
  container.shrinkToColumnSelection();
  ASSERT_EQ(container.getTable()->GetNumberOfColumns(), 5);
  EXPECT_TRUE(vtkIntArray::SafeDownCast(container.getTable()->GetColumn(4)));
  EXPECT_EQ(labels().last(), "selected points");
}

TEST_F(ColumnReduction, NumbersAColumnThatSeveralListsNameOnce)
{
  useSomeOfNine();
  settings().xColumns = {5, 3};
  settings().yColumns = {3};
  settings().zColumns = {5};
  settings().parameterColumns = {3};
  settings().colorColumn = 5;
  CapturedOutput errors(std::cerr);
  container.shrinkToColumnSelection();
  EXPECT_EQ(errors.text(), "");
  EXPECT_EQ(labels().mid(0, 2), (QStringList{"column 3", "column 5"}));
  EXPECT_EQ(settings().xColumns, (std::vector<int>{1, 0}));
  EXPECT_EQ(settings().yColumns, std::vector<int>{0});
  EXPECT_EQ(settings().zColumns, std::vector<int>{1});
  EXPECT_EQ(settings().parameterColumns, std::vector<int>{0});
  EXPECT_EQ(settings().colorColumn, 1);
}

TEST_F(ColumnReduction, LeavesEntriesOutsideTheTableAlone)
{
  useSomeOfNine();
  settings().zColumns = {-3, 40};
  container.shrinkToColumnSelection();
  EXPECT_EQ(settings().zColumns, (std::vector<int>{-3, 40}));
}

TEST_F(ColumnReduction, SwitchesOffColoringByARemovedColumn)
{
  useSomeOfNine();
  container.shrinkToColumnSelection();
  EXPECT_EQ(settings().colorColumn, -1);

  useSomeOfNine();
  settings().xColumns = {0};
  container.shrinkToColumnSelection();
  EXPECT_EQ(settings().colorColumn, 0) << "column 0 is still there";
}

TEST_F(ColumnReduction, KeepsTimeAndRunIndexWithTheirTypedItems)
{
  container.setLinePlotTable(parameterStudy(4, 3, 3), false);
  settings().xColumns = {1};
  settings().yColumns = {0};
  settings().zColumns = {};
  settings().parameterColumns = {4};
  settings().colorColumn = 4;
  container.shrinkToColumnSelection();
  EXPECT_EQ(labels().mid(0, 4),
            (QStringList{"Molecule: A", ": Time [s]", ": Run Index", "Parameter: k2"}));
  ASSERT_EQ(container.getColumnItems().size(), 4U);
  EXPECT_EQ(container.getColumnItems()[3].second, "k2");
  EXPECT_EQ(settings().parameterColumns, std::vector<int>{3});
}

TEST_F(ColumnReduction, MovesTheCurrentWindowIntoTheSettings)
{
  useSomeOfNine();
  stateOf(container).coordinateWindows[{5, 2, 0}] = {1, 2, 3, 4, true};
  stateOf(container).coordinateWindows[{0, 0, 0}] = {5, 6, 7, 8, true};
  container.shrinkToColumnSelection();
  EXPECT_TRUE(stateOf(container).coordinateWindows.empty());
  EXPECT_EQ(settings().storedCoordinateWindow.yMax, 4.0);
  EXPECT_TRUE(settings().storedCoordinateWindow.valid);
}

class ColumnReductionWhileShown : public ColumnReduction, public ::testing::WithParamInterface<int>
{
};

TEST_P(ColumnReductionWhileShown, KeepsThePictureAlive)
{
  const VtkErrors errors;
  container.setScene(scene.scene());
  container.setLinePlotTable(parameterStudy(6, 4, 3), false);
  settings().solidColor = false;
  container.setPlotStyle(static_cast<plotStyles>(GetParam()));
  container.redraw();
  expectSoundPicture(scene, container);
  settings().parameterColumns = {4};
  settings().zColumns = {};
  settings().colorColumn = 0;
  container.shrinkToColumnSelection();
  expectSoundPicture(scene, container);
  container.redraw();
  expectSoundPicture(scene, container);
  EXPECT_EQ(errors.text(), "");
}

INSTANTIATE_TEST_SUITE_P(EveryStyle, ColumnReductionWhileShown,
                         ::testing::Range(0, plotStyleCount));

TEST_F(ColumnReduction, IsPartOfSavingTheUsedColumns)
{
  useSomeOfNine();
  const std::unique_ptr<char[]> all(container.saveData("", true));
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 9);
  const std::unique_ptr<char[]> used(container.saveData("", false));
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 5);
  EXPECT_LT(std::string(used.get()).size(), std::string(all.get()).size());
}

} // namespace

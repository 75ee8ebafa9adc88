#include "plot/ContainerAccess.h"
#include "support/LineTables.h"
#include "support/PlotFixture.h"

#include <vtkDoubleArray.h>

#include <gtest/gtest.h>

using Talmesh::Complex;
using Talmesh::Parameter;
using Talmesh::Pattern;

namespace
{

class TableInput : public PlotFixture
{
};

TEST_F(TableInput, UsesTheTableItIsGiven)
{
  const vtkSmartPointer<vtkTable> data = plainTable();
  container.setPlotData(data);
  EXPECT_EQ(container.getTable(), data);
  data->GetColumn(0)->SetName("renamed");
  EXPECT_EQ(container.getLabels().front(), "renamed");
}

TEST_F(TableInput, EmptiesTheDerivedTablesForANewTable)
{
  stateOf(container).derivedTables = {plainTable(), nullptr};
  container.setPlotData(plainTable());
  EXPECT_TRUE(container.getDerivedTables().empty());
}

TEST_F(TableInput, FindsTheParametersOfTheItemsItHas)
{
  stateOf(container).columnItems = {{Complex, "A"}, {Parameter, "k"}};
  settings().parameterColumns = {7, 8};
  container.setPlotData(plainTable());
  EXPECT_EQ(settings().parameterColumns, std::vector<int>{1});
  EXPECT_EQ(container.getColumnItems().size(), 2U);
}

TEST_F(TableInput, DoesNotDrawANewTable)
{
  newDrawings();
  container.setPlotData(plainTable());
  EXPECT_EQ(newDrawings(), 0U);
  container.redraw();
  EXPECT_EQ(newDrawings(), 1U);
}

TEST_F(TableInput, LeavesTheSettingsSignalsAsTheyAreForANewTable)
{
  for (const bool blocked : {true, false})
  {
    settings().blockSignals(blocked);
    container.setPlotData(plainTable());
    EXPECT_EQ(settings().signalsBlocked(), blocked);
  }
}

TEST_F(TableInput, IgnoresANullTable)
{
  const vtkTable* before = container.getTable();
  container.setPlotData(nullptr);
  EXPECT_EQ(container.getTable(), before);
}

TEST_F(TableInput, FindsParameterColumnsByTheirPositionAmongTheItems)
{
  stateOf(container).columnItems = {
      {Complex, "A"}, {Parameter, "k1"}, {Pattern, "P"}, {Parameter, "k2"}};
  settings().parameterColumns = {9};
  newDrawings();
  container.findParameterColumns();
  EXPECT_EQ(settings().parameterColumns, (std::vector<int>{1, 3}));
  container.findParameterColumns();
  EXPECT_EQ(settings().parameterColumns, (std::vector<int>{1, 3}));
  EXPECT_EQ(newDrawings(), 0U);
}

TEST_F(TableInput, FindsNoParameterColumnsWithoutItems)
{
  settings().parameterColumns = {9};
  container.findParameterColumns();
  EXPECT_TRUE(settings().parameterColumns.empty());
}

TEST_F(TableInput, NamesAllColumnsInTheirOrder)
{
  EXPECT_EQ(container.getLabels(), (QStringList{"a", "b", "c", "d"}));
  container.setPlotData(vtkSmartPointer<vtkTable>::New());
  EXPECT_EQ(container.getLabels(), QStringList());
}

TEST_F(TableInput, NamesAnUnnamedColumnWithTheEmptyText)
{
  container.getTable()->GetColumn(1)->SetName(nullptr);
  EXPECT_EQ(container.getLabels(), (QStringList{"a", "", "c", "d"}));
}

TEST_F(TableInput, AddsADoubleColumn)
{
  newDrawings();
  container.addColumn({1.5, 2, 3, 4, 5}, "added");
  ASSERT_EQ(container.getTable()->GetNumberOfColumns(), 5);
  auto* column = vtkDoubleArray::SafeDownCast(container.getTable()->GetColumn(4));
  ASSERT_NE(column, nullptr);
  EXPECT_STREQ(column->GetName(), "added");
  ASSERT_EQ(column->GetNumberOfValues(), 5);
  EXPECT_EQ(column->GetValue(0), 1.5);
  EXPECT_EQ(column->GetValue(4), 5.0);
  EXPECT_EQ(newDrawings(), 0U);
}

TEST_F(TableInput, RefusesAColumnOfAnotherLength)
{
  for (const std::vector<double>& values :
       {std::vector<double>{1, 2, 3, 4}, std::vector<double>(6, 1.0), std::vector<double>{}})
  {
    container.addColumn(values, "refused");
    EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 4);
    EXPECT_EQ(container.getTable()->GetNumberOfRows(), 5);
  }
}

TEST_F(TableInput, AddsAnyColumnToATableWithoutColumns)
{
  container.setPlotData(vtkSmartPointer<vtkTable>::New());
  container.addColumn({1, 2}, "first");
  container.addColumn({1, 2, 3}, "refused");
  EXPECT_EQ(container.getLabels(), QStringList{"first"});
  EXPECT_EQ(container.getTable()->GetNumberOfRows(), 2);
}

} // namespace

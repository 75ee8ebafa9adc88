#include "external/LinePlotData.h"

#include "plot/ContainerAccess.h"
#include "support/LineTables.h"
#include "support/PlotFixture.h"

#include <vtkDoubleArray.h>

#include <gtest/gtest.h>

#include <QSignalSpy>

using Talmesh::Complex;
using Talmesh::Molecule;
using Talmesh::Parameter;
using Talmesh::TimeOrValue;

namespace
{

class LinePlotDataInput : public PlotFixture
{
protected:
  LinePlotDataInput()
  {
    data.xName = "Time [s]";
    data.yName = "Concentration";
    data.xValues = &times;
    data.series[{Complex, "A.B"}] = &first;
    data.series[{Parameter, "k1"}] = &second;
  }

  /// Checks that the table holds the data, series in the record's own order.
  void expectData(vtkTable* table)
  {
    ASSERT_EQ(table->GetNumberOfColumns(), 3);
    expectColumn(table->GetColumn(0), "Time [s]", times);
    vtkIdType column = 1;
    for (const auto& [item, values] : data.series)
      expectColumn(table->GetColumn(column++), Talmesh::selectionPairToString(item), *values);
  }

  static void expectColumn(vtkAbstractArray* array, const std::string& name,
                           const std::vector<double>& values)
  {
    auto* column = vtkDoubleArray::SafeDownCast(array);
    ASSERT_NE(column, nullptr);
    EXPECT_EQ(column->GetName(), name);
    ASSERT_EQ(column->GetNumberOfValues(), static_cast<vtkIdType>(values.size()));
    for (std::size_t row = 0; row < values.size(); ++row)
      EXPECT_EQ(column->GetValue(static_cast<vtkIdType>(row)), values[row]);
  }

  std::vector<double> times{0.0, 0.1, 1e10};
  std::vector<double> first{1, 2, 3};
  std::vector<double> second{-1.0 / 3.0, 5e-300, 0};
  LinePlotData data;
};

TEST_F(LinePlotDataInput, BuildsATableOfTimesAndSeries)
{
  const vtkSmartPointer<vtkTable> before = container.getTable();
  container.setLinePlotData(&data);
  EXPECT_NE(container.getTable(), before.Get());
  EXPECT_EQ(before->GetNumberOfColumns(), 4) << "the old table is replaced, not edited";
  expectData(container.getTable());
}

TEST_F(LinePlotDataInput, NamesSeriesByKindAndName)
{
  container.setLinePlotData(&data);
  const QStringList labels = container.getLabels();
  EXPECT_TRUE(labels.contains("Complex: A.B"));
  EXPECT_TRUE(labels.contains("Parameter: k1"));
}

TEST_F(LinePlotDataInput, KeepsTheItemsInTheOrderOfTheColumns)
{
  container.setLinePlotData(&data);
  ASSERT_EQ(container.getColumnItems().size(), 2U);
  for (int i = 0; i < 2; ++i)
  {
    EXPECT_EQ(Talmesh::selectionPairToString(container.getColumnItems().at(i)),
              container.getTable()->GetColumnName(i + 1));
  }
}

TEST_F(LinePlotDataInput, AddsToTheItemsOfEarlierDataButNotToItsColumns)
{
  container.setLinePlotData(&data);
  container.setLinePlotData(&data);
  EXPECT_EQ(container.getColumnItems().size(), 4U);
  EXPECT_EQ(container.getColumnItems().at(0), container.getColumnItems().at(2));
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 3);
}

TEST_F(LinePlotDataInput, TakesTheFirstColumnAsXAndLeavesTheOtherChoices)
{
  settings().xColumns = {3, 2};
  settings().yColumns = {3, 2};
  settings().parameterColumns = {5};
  container.setLinePlotData(&data);
  EXPECT_EQ(settings().xColumns, (std::vector<int>{0, 2}));
  EXPECT_EQ(settings().yColumns, (std::vector<int>{3, 2}));
  EXPECT_EQ(settings().parameterColumns, std::vector<int>{5});
}

TEST_F(LinePlotDataInput, EmptiesTheTitleAndSetsTheLabelsAtOnce)
{
  container.setPlotTitle("old");
  container.setLinePlotData(&data);
  EXPECT_EQ(settings().title, "");
  EXPECT_EQ(settings().xLabel, "Time [s]");
  EXPECT_EQ(settings().yLabel, "Concentration");
  EXPECT_EQ(chart()->GetTitle(), "");
  EXPECT_EQ(bottom()->GetTitle(), "Time [s]");
  EXPECT_EQ(left()->GetTitle(), "Concentration");
}

TEST_F(LinePlotDataInput, UnblocksTheSettingsAndDrawsNothing)
{
  for (const bool blocked : {true, false})
  {
    settings().blockSignals(blocked);
    const QSignalSpy announced(&settings(), &PlotMetaData::redrawNeeded);
    newDrawings();
    container.setLinePlotData(&data);
    EXPECT_FALSE(settings().signalsBlocked());
    EXPECT_EQ(announced.count(), 0);
    EXPECT_EQ(newDrawings(), 0U);
  }
}

TEST_F(LinePlotDataInput, GivesAnEmptyTimeColumnForARecordWithoutTimes)
{
  times.clear();
  data.series.clear();
  for (const bool given : {false, true})
  {
    data.xValues = given ? &times : nullptr;
    container.setLinePlotData(&data);
    ASSERT_EQ(container.getTable()->GetNumberOfColumns(), 1);
    expectColumn(container.getTable()->GetColumn(0), "Time [s]", {});
    container.redraw();
    scene.render(container);
  }
}

TEST_F(LinePlotDataInput, LeavesOutASeriesOfAnotherLengthButKeepsItsItem)
{
  second = {1, 2};
  container.setLinePlotData(&data);
  EXPECT_EQ(container.getLabels(), (QStringList{"Time [s]", "Complex: A.B"}));
  EXPECT_EQ(container.getTable()->GetNumberOfRows(), 3);
  EXPECT_EQ(container.getColumnItems().size(), 2U);
}

TEST_F(LinePlotDataInput, SurvivesASeriesWithoutValues)
{
  data.series[{Parameter, "k1"}] = nullptr;
  container.setLinePlotData(&data);
  EXPECT_EQ(container.getLabels(), (QStringList{"Time [s]", "Complex: A.B"}));
}

TEST_F(LinePlotDataInput, IgnoresANullRecord)
{
  container.setLinePlotData(nullptr);
  container.setLinePlotDataAsAdditionalData(nullptr);
  container.setLinePlotTableAsAdditionalData(nullptr);
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 4);
  EXPECT_TRUE(container.getDerivedTables().empty());
}

TEST_F(LinePlotDataInput, WorksWhileNoXYChartIsShown)
{
  drawStyle(3);
  ASSERT_EQ(chart(), nullptr);
  container.setLinePlotData(&data);
  EXPECT_EQ(settings().xLabel, "Time [s]");
  expectData(container.getTable());
}

TEST_F(LinePlotDataInput, CopiesTheValues)
{
  container.setLinePlotData(&data);
  times[1] = 77.0;
  EXPECT_EQ(container.getTable()->GetValue(1, 0).ToDouble(), 0.1);
}

TEST_F(LinePlotDataInput, AppendsAdditionalDataAsTablesOfTheirOwn)
{
  container.setPlotTitle("kept");
  container.setXLabel("kept x");
  settings().xColumns = {2};
  stateOf(container).columnItems = {{Molecule, "M"}};
  const vtkTable* before = container.getTable();
  newDrawings();

  container.setLinePlotDataAsAdditionalData(&data);
  container.setLinePlotDataAsAdditionalData(&data);

  ASSERT_EQ(container.getDerivedTables().size(), 2U);
  expectData(container.getDerivedTables().at(0));
  expectData(container.getDerivedTables().at(1));
  EXPECT_NE(container.getDerivedTables().at(0), container.getDerivedTables().at(1));
  EXPECT_EQ(container.getTable(), before);
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 4);
  EXPECT_EQ(container.getColumnItems().size(), 1U);
  EXPECT_EQ(settings().title, "kept");
  EXPECT_EQ(settings().xLabel, "kept x");
  EXPECT_EQ(settings().xColumns, std::vector<int>{2});
  EXPECT_EQ(newDrawings(), 0U);
}

TEST_F(LinePlotDataInput, LeavesTheSettingsSignalsAsTheyAreForAdditionalData)
{
  const auto lines = lineTableOf({{Molecule, "M"}});
  for (const bool blocked : {true, false})
  {
    settings().blockSignals(blocked);
    container.setLinePlotDataAsAdditionalData(&data);
    container.setLinePlotTableAsAdditionalData(lines.get());
    EXPECT_EQ(settings().signalsBlocked(), blocked);
  }
}

TEST_F(LinePlotDataInput, AppendsALineTableWithAllItsColumnsAndForgetsTheItems)
{
  const auto lines = lineTableOf({{Molecule, "M"}, {Parameter, "constant"}, {TimeOrValue, "t"}},
                                 {{2.0, 2.0}}, 2, 3);
  stateOf(container).columnItems = {{Molecule, "old"}};
  settings().parameterColumns = {3};
  settings().setStride(5);
  const vtkTable* before = container.getTable();
  newDrawings();

  container.setLinePlotTableAsAdditionalData(lines.get());

  ASSERT_EQ(container.getDerivedTables().size(), 1U);
  vtkTable* table = container.getDerivedTables().front();
  ASSERT_EQ(table->GetNumberOfColumns(), 3);
  const std::vector<std::string> names{"Molecule: M", "Parameter: constant", ": t"};
  for (int i = 0; i < 3; ++i)
  {
    auto* column = vtkDoubleArray::SafeDownCast(table->GetColumn(i));
    ASSERT_NE(column, nullptr);
    EXPECT_EQ(column->GetName(), names[i]);
    EXPECT_EQ(column->GetNumberOfValues(), 6);
    EXPECT_EQ(column->GetPointer(0), lines->values[i]) << "the values are used in place";
  }
  EXPECT_TRUE(container.getColumnItems().empty());
  EXPECT_EQ(container.getTable(), before);
  EXPECT_EQ(settings().parameterColumns, std::vector<int>{3});
  EXPECT_EQ(settings().getStride(), 5);
  EXPECT_EQ(newDrawings(), 0U);
}

TEST_F(LinePlotDataInput, LeavesTheValuesOfAnAdditionalLineTableToTheirOwner)
{
  auto lines = lineTableOf({{Molecule, "M"}});
  container.setLinePlotTableAsAdditionalData(lines.get());
  EXPECT_EQ(lines.use_count(), 1);
  container.setPlotData(plainTable());
  EXPECT_EQ(lines->values[0][5], lineValue(0, 5));
}

} // namespace

#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "plot/RunSplit.h"
#include "plot/vtkSelectionUpdateCallback.h"
#include "support/CapturedOutput.h"
#include "support/Reaction.h"
#include "support/SampleRuns.h"
#include "support/SilentSettings.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotation.h>
#include <vtkAnnotationLayers.h>
#include <vtkAnnotationLink.h>
#include <vtkCommand.h>
#include <vtkIdTypeArray.h>
#include <vtkObject.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

using SampleRuns::valuesOf;
using Talmesh::makeRowSelection;

namespace
{

using Values = std::vector<double>;

void select(PlotContainer& container, const std::vector<vtkIdType>& rows)
{
  container.getAnnotationLink()->SetCurrentSelection(makeRowSelection(rows));
}

std::string timeColumnName(const std::vector<std::string>& names, int firstParameter)
{
  PlotContainer container(nullptr);
  for (const std::string& name : names)
    container.addColumn({0.0}, name);
  container.getMetaData()->parameterColumns = {firstParameter};
  const int column = Talmesh::plot::timeColumnOf(stateOf(container));
  return column < 0 ? std::to_string(column) : container.getTable()->GetColumnName(column);
}

/// Silences VTK's own report while it lives.
class QuietVtk
{
public:
  QuietVtk() { vtkObject::GlobalWarningDisplayOff(); }
  ~QuietVtk() { vtkObject::GlobalWarningDisplayOn(); }
  QuietVtk(const QuietVtk&) = delete;
  QuietVtk& operator=(const QuietVtk&) = delete;
};

constexpr std::size_t selectedSlot = 2;
constexpr std::size_t remainingSlot = 5;

} // namespace

TEST(SelectionUpdate, SplitsTheRunsWhenTheSelectionChanges)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3));
  select(plot.container, {0, 1, 4, 7});
  const auto& tables = plot.container.getDerivedTables();
  ASSERT_EQ(tables.size(), 8U);
  // Run 0 is selected at both times, runs 1 and 2 only at the second.
  EXPECT_EQ(valuesOf(tables[selectedSlot], "Complex: A"), Values({0, 1}));
  EXPECT_EQ(valuesOf(tables[remainingSlot], "Complex: A"), Values({10, 11, 20, 21}));
  EXPECT_EQ(valuesOf(plot.container.getTable(), "vtkRemainderSelection"),
            Values({1, 1, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(valuesOf(plot.container.getTable(), "vtkReducedSelection"),
            Values({0, 0, 0, 0, 1, 0, 0, 1, 0}));
  EXPECT_EQ(valuesOf(plot.container.getTable(), "vtkComplementSelection"),
            Values({0, 0, 0, 1, 0, 0, 1, 0, 0}));
}

TEST(SelectionUpdate, RanksBothPartsAndComparesThem)
{
  SampleRuns::Plot plot(SampleRuns::runs(4, 3));
  select(plot.container, {0, 3});
  const auto& tables = plot.container.getDerivedTables();
  ASSERT_EQ(tables.size(), 8U);
  EXPECT_EQ(valuesOf(tables[3], "Sorted Parameter: k1"), Values({1, 2}));
  EXPECT_EQ(valuesOf(tables[6], "Sorted Parameter: k1"), Values({3, 4}));
  EXPECT_EQ(valuesOf(tables[3], "Sorted Parameter: k2"), Values({2, 4}));
  EXPECT_EQ(valuesOf(tables[6], "Sorted Parameter: k2"), Values({6, 8}));
  EXPECT_EQ(valuesOf(tables[4], "Density of Parameter: k1").size(), 200U);
  EXPECT_EQ(valuesOf(tables[7], "Density of Parameter: k1").size(), 200U);
  // Every selected value lies below every other one: the largest distance there is.
  ASSERT_EQ(plot.container.getKsResults().size(), 2U);
  for (const auto& result : plot.container.getKsResults())
    EXPECT_DOUBLE_EQ(result.statistic, 1.0);
}

TEST(SelectionUpdate, StartsFromTheOwnTablesEachTime)
{
  SampleRuns::Plot plot(SampleRuns::runs(4, 3));
  vtkNew<vtkTable> own;
  stateOf(plot.container).derivedTables = {own.Get(), nullptr, nullptr};
  for (int repetition = 0; repetition < 3; ++repetition)
  {
    select(plot.container, {static_cast<vtkIdType>(3 * repetition)});
    ASSERT_EQ(plot.container.getDerivedTables().size(), 8U);
    EXPECT_EQ(plot.container.getDerivedTables()[0], own.Get());
    EXPECT_EQ(valuesOf(plot.container.getDerivedTables()[selectedSlot], "Complex: A"),
              Values({10.0 * repetition}));
  }
}

TEST(SelectionUpdate, KeepsOneMarkerColumnOfEachName)
{
  SampleRuns::Plot plot(SampleRuns::runs(4, 3));
  select(plot.container, {0});
  const vtkIdType columns = plot.container.getTable()->GetNumberOfColumns();
  for (vtkIdType row = 0; row < 12; ++row)
    select(plot.container, {row});
  EXPECT_EQ(plot.container.getTable()->GetNumberOfColumns(), columns);
}

TEST(SelectionUpdate, KeepsTheMarkerColumnsWhenTheSplitFails)
{
  SampleRuns::Plot plot(SampleRuns::runs(4, 3));
  vtkAnnotationLink* link = plot.container.getAnnotationLink();
  select(plot.container, {0});
  const vtkIdType columns = plot.container.getTable()->GetNumberOfColumns();
  const CapturedOutput output(std::cerr);
  vtkNew<Reaction> throwing;
  throwing->react = [] { throw std::runtime_error("no memory"); };
  link->AddObserver(vtkCommand::StartEvent, throwing);
  select(plot.container, {3});
  link->RemoveObserver(throwing);
  EXPECT_NE(output.text().find("no memory"), std::string::npos);
  ASSERT_EQ(plot.container.getTable()->GetNumberOfColumns(), columns);
  EXPECT_EQ(valuesOf(plot.container.getTable(), "vtkRemainderSelection"), Values(12, 0.0));
}

TEST(SelectionUpdate, AddsNoTablesForAnEmptySelectionButDraws)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3));
  select(plot.container, {0});
  const unsigned long before = stateOf(plot.container).drawings;
  select(plot.container, {});
  EXPECT_EQ(plot.container.getDerivedTables().size(), 2U);
  EXPECT_EQ(stateOf(plot.container).drawings, before + 1);
}

TEST(SelectionUpdate, ComparesAllRunsWithNone)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 2));
  select(plot.container, {0, 2, 4});
  const auto& tables = plot.container.getDerivedTables();
  ASSERT_EQ(tables.size(), 8U);
  EXPECT_EQ(tables[selectedSlot]->GetNumberOfRows(), 3);
  EXPECT_EQ(tables[remainingSlot]->GetNumberOfRows(), 0);
  ASSERT_EQ(plot.container.getKsResults().size(), 2U);
  EXPECT_EQ(plot.container.getKsResults()[0].statistic, 0.0);
  EXPECT_EQ(plot.container.getKsResults()[0].pValue, 1.0);
}

TEST(SelectionUpdate, CountsTheAnnotationsIn)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3));
  vtkNew<vtkAnnotation> annotation;
  annotation->SetSelection(makeRowSelection({3}));
  plot.container.getAnnotationLink()->GetAnnotationLayers()->AddAnnotation(annotation);
  EXPECT_EQ(valuesOf(plot.container.getDerivedTables().at(selectedSlot), "Complex: A"),
            Values({10}));
}

TEST(SelectionUpdate, DoesNotChangeTheSelection)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3));
  const auto selection = makeRowSelection({7, 1});
  plot.container.getAnnotationLink()->SetCurrentSelection(selection);
  EXPECT_EQ(plot.container.getAnnotationLink()->GetCurrentSelection(), selection);
  EXPECT_EQ(selection->GetNumberOfNodes(), 1U);
  EXPECT_EQ(valuesOf(selection->GetNode(0)->GetSelectionList()), Values({7, 1}));
}

TEST(SelectionUpdate, SplitsRowsAloneWithAStrideBelowOne)
{
  SampleRuns::Plot plot(SampleRuns::runs(2, 2));
  storeStride(plot.container, 0);
  select(plot.container, {0, 2});
  EXPECT_EQ(valuesOf(plot.container.getDerivedTables().at(selectedSlot), "Complex: A"),
            Values({0, 10}));
}

TEST(SelectionUpdate, RunsOnDemand)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3));
  select(plot.container, {0});
  stateOf(plot.container).derivedTables.clear();
  plot.container.annotationUpdate();
  EXPECT_EQ(plot.container.getDerivedTables().size(), 8U);
}

TEST(SelectionUpdate, IgnoresCallersThatAreNoLink)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3));
  vtkSelectionUpdateCallback* callback = stateOf(plot.container).selectionUpdateCallback;
  const unsigned long before = stateOf(plot.container).drawings;
  callback->Execute(nullptr, 0, nullptr);
  callback->Execute(plot.container.getTable(), 0, nullptr);
  EXPECT_EQ(plot.container.getDerivedTables().size(), 0U);
  EXPECT_EQ(stateOf(plot.container).drawings, before);
}

TEST(SelectionUpdate, NeedsParameterColumns)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3, 0));
  const unsigned long before = stateOf(plot.container).drawings;
  select(plot.container, {0});
  EXPECT_EQ(plot.container.getDerivedTables().size(), 0U);
  EXPECT_EQ(stateOf(plot.container).drawings, before);
}

TEST(SelectionUpdate, NeedsAContainer)
{
  vtkNew<vtkSelectionUpdateCallback> callback;
  vtkNew<vtkAnnotationLink> link;
  EXPECT_EQ(callback->Container, nullptr);
  callback->Execute(link, 0, nullptr);
}

TEST(SelectionUpdate, TakesTheFirstColumnNamedForATime)
{
  EXPECT_EQ(timeColumnName({"a", "Period", "Time", "Value", "p"}, 4), "Period");
  EXPECT_EQ(timeColumnName({"a", "myTimes", "p"}, 2), "myTimes");
  EXPECT_EQ(timeColumnName({"Complex: Value", ": Time [s]", "p"}, 2), "Complex: Value");
}

TEST(SelectionUpdate, ReadsTheNameOfTheTimeLiterally)
{
  EXPECT_EQ(timeColumnName({"time", "PERIOD", "value", "p"}, 3), "PERIOD");
}

TEST(SelectionUpdate, TakesTheTimeTwoPlacesInFrontOfTheParameters)
{
  EXPECT_EQ(timeColumnName({"a", "t", "run", "p"}, 3), "t");
  EXPECT_EQ(timeColumnName({"run", "p"}, 1), "-1");
}

TEST(SelectionUpdate, DrawsEvenWithoutATimeColumn)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3));
  vtkTable* table = plot.container.getTable();
  table->GetColumn(SampleRuns::timeColumn)->SetName("t");
  plot.container.getMetaData()->parameterColumns = {1};
  const unsigned long before = stateOf(plot.container).drawings;
  const QuietVtk quiet;
  select(plot.container, {0});
  EXPECT_EQ(plot.container.getDerivedTables().size(), 2U);
  EXPECT_EQ(stateOf(plot.container).drawings, before + 1);
  EXPECT_EQ(table->GetColumnByName("vtkRemainderSelection"), nullptr);
}

TEST(SelectionUpdate, DropsRowsThatTheTableDoesNotHave)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3));
  select(plot.container, {-5, 1, 9, 400});
  EXPECT_EQ(valuesOf(plot.container.getDerivedTables().at(selectedSlot), "Complex: A"),
            Values({1}));
  EXPECT_EQ(SampleRuns::selectedRows(plot.container), std::set<vtkIdType>({1}));
}

TEST(SelectionUpdate, LeavesTheSettingsTalkative)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3));
  select(plot.container, {0});
  EXPECT_FALSE(plot.container.getMetaData()->signalsBlocked());
}

TEST(SelectionUpdate, ReportsAFailedDrawingInOneLineAndLeavesTheSettingsTalkative)
{
  SampleRuns::Plot plot(SampleRuns::runs(3, 3));
  PlotMetaData& settings = *plot.container.getMetaData();
  settings.blockSignals(true);
  settings.setPlotStyle(fitParameterDistribution);
  settings.blockSignals(false);
  // Pages of parameters cut the type word off the names, which this one does not have.
  plot.container.getTable()->GetColumn(SampleRuns::firstParameterColumn)->SetName("k1");
  const CapturedOutput output(std::cerr);
  select(plot.container, {0});
  EXPECT_EQ(output.text(),
            "void vtkSelectionUpdateCallback::Execute(vtkObject*, unsigned long, void*): "
            "basic_string::substr: __pos (which is 11) > this->size() (which is 2)\n");
  EXPECT_FALSE(settings.signalsBlocked());
  EXPECT_EQ(plot.container.getDerivedTables().size(), 8U);
}

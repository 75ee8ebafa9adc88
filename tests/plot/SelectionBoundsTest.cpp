#include "plot/ContainerAccess.h"
#include "plot/DerivedTables.h"
#include "support/ParameterStudy.h"
#include "support/PlotFixture.h"
#include "support/Reaction.h"
#include "support/SampleRuns.h"
#include "support/VtkErrors.h"
#include "vtk/RowSelections.h"

#include <vtkCommand.h>
#include <vtkDataSetAttributes.h>
#include <vtkIdTypeArray.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkVariant.h>

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace
{

using Rows = std::set<vtkIdType>;

/// A table whose rows have ids of their own, from 100 on.
vtkSmartPointer<vtkTable> tableWithIds(vtkIdType rows)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  for (const char* name : {"Parameter: a", "Parameter: b"})
    table->AddColumn(Talmesh::plot::makeColumn(name, std::vector<double>(std::size_t(rows), 1.5)));
  vtkNew<vtkIdTypeArray> ids;
  ids->SetName("id");
  for (vtkIdType row = 0; row < rows; ++row)
    ids->InsertNextValue(100 + row);
  table->AddColumn(ids);
  table->GetRowData()->SetPedigreeIds(ids);
  return table;
}

vtkSmartPointer<vtkSelection> selectionOf(const std::vector<vtkIdType>& ids, int content)
{
  auto selection = Talmesh::makeRowSelection(ids);
  selection->GetNode(0)->SetContentType(content);
  selection->GetNode(0)->GetSelectionList()->SetName("id");
  return selection;
}

class SelectionBounds : public PlotFixture
{
protected:
  void select(vtkSelection* selection)
  {
    container.getAnnotationLink()->SetCurrentSelection(selection);
  }

  Rows flaggedRows()
  {
    const auto flags = vtk::TakeSmartPointer(container.getCurrentSelection());
    Rows rows;
    for (vtkIdType row = 0; flags && row < flags->GetNumberOfTuples(); ++row)
    {
      if (flags->GetValue(row) == 1)
        rows.insert(row);
    }
    return rows;
  }
};

TEST_F(SelectionBounds, TurnValuesAndPedigreeIdsIntoTheirRows)
{
  for (const int content : {vtkSelectionNode::VALUES, vtkSelectionNode::PEDIGREEIDS})
  {
    SCOPED_TRACE(content);
    container.setPlotData(tableWithIds(10));
    const auto selection = selectionOf({104, 105, 5}, content);
    select(selection);
    container.redraw();
    EXPECT_EQ(SampleRuns::selectedRows(container), Rows({4, 5}));
    EXPECT_EQ(flaggedRows(), Rows({4, 5}));
    EXPECT_EQ(selection->GetNode(0)->GetContentType(), content) << "the client's own stays";
    scene.render(container);
    EXPECT_EQ(SampleRuns::valuesOf(points()->GetSelection()), std::vector<double>({4, 5}));
  }
}

TEST_F(SelectionBounds, TakeIdsForRowsAlsoBeforeATableThatHasThem)
{
  const auto values = selectionOf({104}, vtkSelectionNode::VALUES);
  container.setPlotData(vtkSmartPointer<vtkTable>::New());
  select(values);
  container.redraw();
  EXPECT_EQ(container.getAnnotationLink()->GetCurrentSelection(), values);
  container.setPlotData(tableWithIds(10));
  container.redraw();
  EXPECT_EQ(SampleRuns::selectedRows(container), Rows({4}));
}

TEST_F(SelectionBounds, ShowNoIdsThatNobodyCanFind)
{
  const VtkErrors errors;
  select(selectionOf({3}, vtkSelectionNode::PEDIGREEIDS));
  container.redraw();
  scene.render(container);
  EXPECT_EQ(points()->GetSelection(), nullptr);
}

TEST_F(SelectionBounds, AreNotThoseOfAnEmptyTable)
{
  for (const int style : {0, 3, 6, 9})
  {
    SCOPED_TRACE(style);
    container.setPlotData(plainTable());
    select(Talmesh::makeRowSelection({1, 3}));
    container.setPlotData(vtkSmartPointer<vtkTable>::New());
    drawStyle(style);
    scene.render(container);
    EXPECT_EQ(SampleRuns::selectedRows(container), Rows({1, 3}));
    container.setPlotData(plainTable());
    container.redraw();
    scene.render(container);
    EXPECT_EQ(SampleRuns::selectedRows(container), Rows({1, 3}));
  }
}

TEST_F(SelectionBounds, LeaveItToTheContainerToReactToWhatIsSelectedInAnswer)
{
  container.setLinePlotTable(parameterStudy(6, 4, 2), true);
  select(Talmesh::makeRowSelection({2, 23}));
  bool answered = false;
  vtkNew<Reaction> reaction;
  reaction->react = [&]
  {
    if (!answered)
    {
      answered = true;
      select(Talmesh::makeRowSelection({8}));
    }
  };
  container.getAnnotationLink()->AddObserver(vtkCommand::AnnotationChangedEvent, reaction);
  container.setLinePlotTable(parameterStudy(3, 4, 2), true);
  container.redraw();
  container.getAnnotationLink()->RemoveObserver(reaction);
  EXPECT_TRUE(answered);
  EXPECT_EQ(SampleRuns::selectedRows(container), Rows({8}));
  const auto& tables = stateOf(container).derivedTables;
  ASSERT_GT(tables.size(), Talmesh::plot::ownSlots);
  vtkTable* selected = tables[Talmesh::plot::ownSlots];
  ASSERT_NE(selected, nullptr);
  ASSERT_EQ(selected->GetNumberOfRows(), 1);
  EXPECT_EQ(selected->GetValueByName(0, ": Run Index").ToDouble(), 2.0);
}

/// A client that draws whenever it hears of a selection, and a table that has lost rows.
class NestedDrawing : public SelectionBounds
{
protected:
  void drawShorterTable()
  {
    container.setPlotData(tableWithIds(10));
    select(Talmesh::makeRowSelection({2, 9}));
    container.redraw();
    reaction->react = [this]
    {
      ++reactions;
      container.redraw();
    };
    container.getAnnotationLink()->AddObserver(vtkCommand::AnnotationChangedEvent, reaction);
    container.setPlotData(tableWithIds(5));
    // In the page of pairs, which looks their names up.
    if (settings().getPlotStyle() == multiPlot)
      settings().parameterColumns = {0, 1};
    container.redraw();
    container.getAnnotationLink()->RemoveObserver(reaction);
    EXPECT_EQ(reactions, 1);
    EXPECT_EQ(SampleRuns::selectedRows(container), Rows({2}));
    EXPECT_FALSE(settings().signalsBlocked());
  }

  vtkNew<Reaction> reaction;
  int reactions = 0;
};

TEST_F(NestedDrawing, LeavesThePlotDressed)
{
  container.setDecorations(tableOf({{"line", {1, 2}}, {"x", {0, 1}}}), true);
  settings().pointSize = 17.0;
  settings().setLogX(true);
  drawShorterTable();
  EXPECT_EQ(chart()->GetNumberOfPlots(), 2) << "the points and the decoration line";
  EXPECT_FLOAT_EQ(points()->GetMarkerSize(), 17.0F);
  EXPECT_TRUE(bottom()->GetLogScale());
  scene.render(container);
}

TEST_F(NestedDrawing, LeavesThePairsDressed)
{
  settings().pointSize = 17.0;
  storeStyle(multiPlot);
  drawShorterTable();
  auto* pair = vtkPlotPoints::SafeDownCast(
      container.getChartMatrix()->GetChart(vtkVector2i(0, 0))->GetPlot(0));
  ASSERT_NE(pair, nullptr);
  EXPECT_FLOAT_EQ(pair->GetMarkerSize(), 17.0F);
}

} // namespace

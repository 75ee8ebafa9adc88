#include "support/PlotFixture.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"

#include <vtkChartParallelCoordinates.h>
#include <vtkInformation.h>
#include <vtkIntArray.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <gtest/gtest.h>

#include <QByteArray>

#include <memory>
#include <vector>

namespace
{

using Talmesh::makeRowSelection;
using Ids = std::vector<double>;

/// What the plots of a chart show as selected while their container has other data already.
class ShownRows : public PlotFixture
{
protected:
  static constexpr vtkIdType manyRows = 100000;

  static vtkSmartPointer<vtkTable> longTable()
  {
    const std::vector<double> values(static_cast<std::size_t>(manyRows), 2.0);
    return tableOf({{"a", values}, {"b", values}, {"c", values}, {"d", values}});
  }

  void select(vtkSelection* selection)
  {
    container.getAnnotationLink()->SetCurrentSelection(selection);
  }

  static Ids shown(vtkPlot* plot) { return SampleRuns::valuesOf(plot->GetSelection()); }
};

TEST_F(ShownRows, AreThoseOfThePlotsOwnTableAfterNewData)
{
  for (const bool lines : {false, true})
  {
    settings().setPlotLine(lines);
    container.setPlotData(plainTable());
    container.redraw();
    container.setPlotData(longTable());
    select(makeRowSelection({-1, 3, 5, manyRows - 1}));
    scene.render(container);
    EXPECT_EQ(shown(chart()->GetPlot(0)), Ids({3})) << lines;
    container.redraw();
    scene.render(container);
    EXPECT_EQ(shown(chart()->GetPlot(0)), Ids({3, 5, manyRows - 1})) << lines;
  }
}

TEST_F(ShownRows, AreThoseOfThePlotsOwnTableAfterADump)
{
  PlotContainer source(nullptr);
  source.setPlotData(longTable());
  vtkNew<vtkIntArray> flags;
  flags->SetName("selected points");
  flags->SetNumberOfValues(manyRows);
  flags->FillValue(1);
  source.getTable()->AddColumn(flags);
  const std::unique_ptr<QByteArray> dump(source.binaryDump());
  container.readDump(dump.get());
  scene.render(container);
  EXPECT_EQ(shown(points()), Ids({0, 1, 2, 3, 4}));
}

TEST_F(ShownRows, AreThoseOfThePlotsOwnTableInEveryCell)
{
  drawStyle(scatterPlotMatrix);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  scene.render(container);
  container.setPlotData(longTable());
  matrix->GetAnnotationLink()->SetCurrentSelection(makeRowSelection({1, manyRows - 1}));
  scene.render(container);
  EXPECT_EQ(shown(matrix->GetMainChart()->GetPlot(0)), Ids({1}));
  EXPECT_EQ(shown(matrix->GetChart(vtkVector2i(0, 0))->GetPlot(0)), Ids({1}));
}

TEST_F(ShownRows, AreThoseOfTheTableWhateverColumnsHave)
{
  // A table has the rows of its first column.
  for (const int rows : {3, 9})
  {
    container.setPlotData(plainTable());
    container.redraw();
    vtkTable* table = container.getTable();
    for (const int column : {0, 1, 3})
    {
      auto* values = Talmesh::plot::doubleColumn(table, column);
      values->SetNumberOfTuples(rows);
      values->SetValue(rows - 1, 3.0);
    }
    table->Modified();
    select(makeRowSelection({0, 4, 8}));
    scene.render(container);
    ASSERT_TRUE(points()->GetVisible()) << "its own columns are whole";
    EXPECT_EQ(shown(points()), rows == 3 ? Ids({0}) : Ids({0, 4, 8}));
    table->GetColumn(0)->SetNumberOfTuples(2);
    scene.render(container);
    EXPECT_FALSE(points()->GetVisible()) << "its columns have rows that the table has not";
  }
}

TEST_F(ShownRows, GoWithTheRowsOfATableInParallelCoordinates)
{
  container.setPlotStyle(parallelCoordinates);
  select(makeRowSelection({0, 1, 4}));
  scene.render(container);
  auto* axes = vtkChartParallelCoordinates::SafeDownCast(container.getItem());
  ASSERT_NE(axes, nullptr);
  EXPECT_EQ(shown(axes->GetPlot(0)), Ids({0, 1, 4}));
  vtkTable* table = container.getTable();
  for (int column = 0; column < table->GetNumberOfColumns(); ++column)
    table->GetColumn(column)->SetNumberOfTuples(2);
  scene.render(container);
  EXPECT_EQ(shown(axes->GetPlot(0)), Ids({0, 1}));
}

TEST_F(ShownRows, AreAllThatSeveralListsName)
{
  const auto selection = makeRowSelection({0});
  selection->AddNode(makeRowSelection({3, 4000})->GetNode(0));
  select(selection);
  scene.render(container);
  EXPECT_EQ(shown(points()), Ids({0, 3}));
}

TEST_F(ShownRows, AreThoseThatAnInverseListLeavesOut)
{
  const auto selection = makeRowSelection({1, 2});
  selection->GetNode(0)->GetProperties()->Set(vtkSelectionNode::INVERSE(), 1);
  select(selection);
  scene.render(container);
  EXPECT_EQ(shown(points()), Ids({0, 3, 4}));
}

TEST_F(ShownRows, AreTheListOfTheLinkItselfWhereItFits)
{
  const auto selection = makeRowSelection({4, 1});
  select(selection);
  scene.render(container);
  EXPECT_EQ(points()->GetSelection(), selection->GetNode(0)->GetSelectionList());
}

} // namespace

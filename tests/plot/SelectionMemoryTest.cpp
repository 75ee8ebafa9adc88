#include "plot/ContainerAccess.h"
#include "plot/DerivedTables.h"
#include "plot/TableColumns.h"
#include "support/CapturedOutput.h"
#include "vtk/SelectionColumns.h"

#include <vtkDataArray.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <iostream>
#include <set>
#include <string>

#include "SelectionPageFixture.h"

using namespace Talmesh;

namespace
{

constexpr int manyRuns = 400;
constexpr int manyPoints = 50;
constexpr int parameters = 29;
constexpr int columns = parameters + 3;

/// What a container holds while runs are compared.
class SelectionMemory : public PageFixture
{
protected:
  SelectionMemory()
  {
    container.setScene(scene.scene());
    container.setPlotStyle(selectionCdfPlot);
    container.setLinePlotTable(parameterStudy(manyRuns, manyPoints, parameters), false);
  }

  /// Selects all rows of every tenth run.
  void select(int first)
  {
    std::vector<vtkIdType> rows;
    for (int run = first; run < manyRuns; run += 10)
      for (int point = 0; point < manyPoints; ++point)
        rows.push_back(run * manyPoints + point);
    container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection(rows));
  }

  vtkTable* rowsOf(std::size_t dataSet)
  {
    return container.getDerivedTables().at(plot::rankSlot(dataSet) - 1);
  }

  /// Bytes of all columns, each once.
  double bytesOfTables()
  {
    std::set<vtkAbstractArray*> arrays;
    const auto add = [&arrays](vtkTable* table)
    {
      for (vtkIdType i = 0; table && i < table->GetNumberOfColumns(); ++i)
        arrays.insert(table->GetColumn(i));
    };
    add(container.getTable());
    for (const auto& table : container.getDerivedTables())
      add(table);
    double bytes = 0.0;
    for (vtkAbstractArray* array : arrays)
      bytes += static_cast<double>(array->GetSize()) * array->GetDataTypeSize();
    return bytes;
  }
};

std::vector<double> valuesOf(vtkDataArray* column)
{
  std::vector<double> values;
  for (vtkIdType row = 0; column && row < column->GetNumberOfTuples(); ++row)
    values.push_back(column->GetComponent(row, 0));
  return values;
}

} // namespace

TEST_F(SelectionMemory, IsThatOfTheTableItsTwoPartsMarksAndRanks)
{
  for (const int first : {0, 1, 2})
    select(first);
  const double rows = manyRuns * manyPoints;
  const double parts = 2 * columns * rows;
  const double marks = 3 * rows;
  // Ranks and sorted values of all runs and, as long as the longest list, of both parts; two
  // columns of densities for each of the three.
  const double ranks = parameters * (2 * (manyRuns + manyRuns) + 3 * 2 * 200);
  EXPECT_LE(bytesOfTables(), sizeof(double) * (parts + marks + ranks));
}

TEST_F(SelectionMemory, HoldsNoMarksOfTheSelectionBeforeInEitherPart)
{
  select(0);
  select(1);
  for (const std::size_t dataSet : {1, 2})
    EXPECT_EQ(rowsOf(dataSet)->GetNumberOfColumns(), columns) << dataSet;
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), columns + 3);
}

TEST_F(SelectionMemory, LeavesColumnsBehindTheMarksInTheirPlaces)
{
  select(0);
  container.addColumn(std::vector<double>(manyRuns * manyPoints, 7.0), "Parameter: late");
  const int late = plot::columnIndex(container.getTable(), "Parameter: late");
  ASSERT_EQ(late, columns + 3);
  select(1);
  for (const std::size_t dataSet : {1, 2})
  {
    EXPECT_EQ(plot::columnName(rowsOf(dataSet), late), "Parameter: late");
    // Those that were selected before are in the second part, but marked in neither.
    auto* marks =
        vtkDataArray::SafeDownCast(plot::columnNamed(rowsOf(dataSet), RemainderSelectionColumn));
    ASSERT_TRUE(marks);
    EXPECT_EQ(marks->GetRange()[1], 0.0);
  }
  auto* marks =
      vtkDataArray::SafeDownCast(plot::columnNamed(container.getTable(), RemainderSelectionColumn));
  EXPECT_EQ(marks->GetTuple1(0), 0.0);
  EXPECT_EQ(marks->GetTuple1(manyPoints), 1.0) << "the second run";
}

TEST_F(SelectionMemory, IsFilledByOneRankingOfEachPart)
{
  // Each ranking says that there is a pair of bounds too few.
  stateOf(container).parameterBounds.pop_back();
  CapturedOutput errors(std::cerr);
  container.redraw();
  const std::string said = errors.text();
  ASSERT_NE(said, "") << "the plot table is ranked anew";
  for (const int first : {0, 1})
    select(first);
  EXPECT_EQ(errors.text().size(), 5 * said.size()) << errors.text();
  container.redraw();
  EXPECT_EQ(errors.text().size(), 5 * said.size()) << "a redraw ranks nothing";
}

TEST_F(SelectionMemory, OfPartsAndMarksThatAreHeldIsNotUsedForThoseOfTheNextSelection)
{
  constexpr int runs = 3000;
  container.setLinePlotTable(parameterStudy(runs, manyPoints, parameters), false);
  const auto selectRunsFrom = [this](int first)
  {
    std::vector<vtkIdType> rows(runs / 2 * manyPoints);
    std::iota(rows.begin(), rows.end(), first * manyPoints);
    container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection(rows));
  };
  selectRunsFrom(0);
  const vtkSmartPointer<vtkTable> part = rowsOf(2);
  std::vector<vtkSmartPointer<vtkDataArray>> held;
  std::vector<std::vector<double>> values;
  for (vtkTable* table : {rowsOf(1), part.Get(), container.getTable()})
  {
    for (vtkIdType i = 0; i < table->GetNumberOfColumns(); ++i)
    {
      held.emplace_back(vtkDataArray::SafeDownCast(table->GetColumn(i)));
      values.push_back(valuesOf(held.back()));
    }
  }
  for (const int first : {runs / 2, 700, 0, runs / 2})
    selectRunsFrom(first);
  for (std::size_t i = 0; i < held.size(); ++i)
    EXPECT_TRUE(valuesOf(held[i]) == values[i]) << held[i]->GetName();
}

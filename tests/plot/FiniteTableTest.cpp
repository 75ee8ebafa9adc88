#include "plot/FiniteTable.h"

#include "support/PlotFixture.h"
#include "support/SampleRuns.h"
#include "support/SoundPicture.h"

#include <vtkChartParallelCoordinates.h>
#include <vtkScatterPlotMatrix.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

using Talmesh::plot::withoutInfinities;

constexpr double infinity = std::numeric_limits<double>::infinity();

vtkSmartPointer<vtkTable> tableWithInfinities()
{
  return tableOf({{"a", {0, 1, 2, 3}},
                  {"b", {1, infinity, 3, 7}},
                  {"c", {infinity, -infinity, infinity, infinity}},
                  {"d", {-infinity, 2, 3, 4}}});
}

TEST(FiniteTable, IsTheTableItselfWhereNothingIsInfinite)
{
  const auto table = plainTable();
  EXPECT_EQ(withoutInfinities(table), table);
  EXPECT_EQ(withoutInfinities(vtkNew<vtkTable>())->GetNumberOfColumns(), 0);
}

TEST(FiniteTable, HasNoNumberWhereAnInfinityIs)
{
  const auto table = tableWithInfinities();
  const auto finite = withoutInfinities(table);
  ASSERT_EQ(finite->GetNumberOfColumns(), 4);
  EXPECT_EQ(finite->GetColumn(0), table->GetColumn(0)) << "no copy where none is needed";
  EXPECT_EQ(finite->GetColumn(2), table->GetColumn(2)) << "nothing can be shown of it";
  const auto found = SampleRuns::valuesOf(finite->GetColumn(1));
  EXPECT_EQ(found[0], 1);
  EXPECT_TRUE(std::isnan(found[1]));
  EXPECT_EQ(found[3], 7);
  EXPECT_EQ(table->GetValueByName(1, "b").ToDouble(), infinity) << "the client's own stays";
}

class InfiniteValues : public PlotFixture
{
protected:
  InfiniteValues() { container.setPlotData(tableWithInfinities()); }

  static std::vector<std::string> names(vtkStringArray* columns)
  {
    std::vector<std::string> found;
    for (vtkIdType i = 0; i < columns->GetNumberOfValues(); ++i)
      found.push_back(columns->GetValue(i));
    return found;
  }
};

TEST_F(InfiniteValues, HideNoColumnOfTheMatrix)
{
  drawStyle(scatterPlotMatrix);
  expectSoundPicture(scene, container);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  ASSERT_NE(matrix, nullptr);
  EXPECT_EQ(names(matrix->GetVisibleColumns()), (std::vector<std::string>{"a", "b", "d"}));
  vtkTable* bars = matrix->GetChart(vtkVector2i(1, 1))->GetPlot(0)->GetInput();
  double inBars = 0.0;
  for (const double count : SampleRuns::valuesOf(bars, "b_pops"))
    inBars += count;
  EXPECT_EQ(inBars, 3.0) << "the numbers of b";
}

TEST_F(InfiniteValues, HideNoAxisOfParallelCoordinates)
{
  settings().yColumns = {};
  drawStyle(parallelCoordinates);
  expectSoundPicture(scene, container);
  auto* chart = vtkChartParallelCoordinates::SafeDownCast(container.getItem());
  ASSERT_NE(chart, nullptr);
  EXPECT_EQ(names(chart->GetVisibleColumns()), (std::vector<std::string>{"a", "b", "d"}));
  EXPECT_EQ(chart->GetAxis(1)->GetMinimum(), 1);
  EXPECT_GE(chart->GetAxis(1)->GetMaximum(), 7);
  EXPECT_LE(chart->GetAxis(1)->GetMaximum(), 10);
}

TEST_F(InfiniteValues, AreNotNeededToPaintTheLargestNumbersInParallelCoordinates)
{
  container.setPlotData(tableOf({{"a", {0, 1, 2, 3}},
                                 {"high", {1e308, 1.2e308, 1.5e308, 1.75e308}},
                                 {"wide", {-1.75e308, 0.0, 1e308, 1.75e308}}}));
  settings().yColumns = {};
  drawStyle(parallelCoordinates);
  expectSoundPicture(scene, container);
  const int painted = scene.paintedPixels();
  container.setPlotData(
      tableOf({{"a", {0, 1, 2, 3}}, {"high", {1, 1.2, 1.5, 1.75}}, {"wide", {-1.75, 0, 1, 1.75}}}));
  container.redraw();
  scene.render(container);
  EXPECT_GT(painted, scene.paintedPixels() / 2) << "no fewer lines than of other values";
}

/// What the charts have of a column after it was scaled without a redraw.
class ScaledInfiniteValues : public InfiniteValues
{
protected:
  ScaledInfiniteValues()
  {
    settings().setStride(4);
    settings().yColumns = {};
  }

  void scale(int column, double factor) { container.scaleColumn(&factor, column); }

  vtkTable* matrixTable()
  {
    auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
    return matrix->GetChart(vtkVector2i(0, 0))->GetPlot(0)->GetInput();
  }
  vtkTable* linesTable()
  {
    auto* lines = vtkChartParallelCoordinates::SafeDownCast(container.getItem());
    return lines->GetPlot(0)->GetInput();
  }

  static void expectScaled(vtkTable* table)
  {
    const auto found = SampleRuns::valuesOf(table->GetColumnByName("b"));
    ASSERT_EQ(found.size(), 4U);
    EXPECT_EQ(found[0], 10);
    EXPECT_TRUE(std::isnan(found[1]));
    EXPECT_EQ(found[3], 70);
  }
};

TEST_F(ScaledInfiniteValues, AreThoseOfTheMatrixAtOnce)
{
  drawStyle(scatterPlotMatrix);
  scene.render(container);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  matrix->SetActivePlot(vtkVector2i(0, 1));
  scale(1, 10.0);
  expectScaled(matrixTable());
  EXPECT_EQ(matrix->GetActivePlot(), vtkVector2i(0, 1));
  expectSoundPicture(scene, container);
}

TEST_F(ScaledInfiniteValues, AreThoseOfParallelCoordinatesAtOnce)
{
  drawStyle(parallelCoordinates);
  scene.render(container);
  const int before = scene.paintedPixels();
  scale(1, 10.0);
  expectScaled(linesTable());
  expectSoundPicture(scene, container);
  container.redraw();
  expectSoundPicture(scene, container);
  EXPECT_GT(scene.paintedPixels(), before / 2);
}

TEST_F(ScaledInfiniteValues, AreKeptFromTheChartsWhenTheyArise)
{
  container.setPlotData(tableOf({{"a", {0, 1, 2, 3}}, {"b", {1, 1e300, 3, 7}}}));
  for (const int style : {scatterPlotMatrix, parallelCoordinates})
  {
    drawStyle(style);
    scene.render(container);
    scale(1, 1e10);
    vtkTable* shown = style == scatterPlotMatrix ? matrixTable() : linesTable();
    EXPECT_TRUE(std::isnan(shown->GetValueByName(1, "b").ToDouble())) << style;
    expectSoundPicture(scene, container);
    container.getTable()->SetValueByName(1, "b", 1e300);
  }
}

} // namespace

#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/PlotFixture.h"
#include "support/PlotStyleCount.h"

#include <vtkAxis.h>
#include <vtkPlotParallelCoordinates.h>
#include <vtkScalarsToColors.h>
#include <vtkTextProperty.h>

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace
{

class RedrawStyles : public UndrawnPlotFixture
{
};

TEST_F(RedrawStyles, ShowsAllColumnsInTheScatterPlotMatrix)
{
  setStyle(3);
  EXPECT_EQ(container.getChartXY(), nullptr);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  ASSERT_NE(matrix, nullptr);
  EXPECT_EQ(matrix->GetVisibleColumns()->GetNumberOfValues(), 4);
  EXPECT_EQ(matrix->GetSize().GetX(), 4);
  EXPECT_EQ(matrix->GetGutter(), vtkVector2f(28, 28));
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 1000);
}

TEST_F(RedrawStyles, SwapsTheGuttersOfTheScatterPlotMatrix)
{
  container.setHorizontalGutter(11);
  container.setVerticalGutter(22);
  setStyle(3);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  EXPECT_EQ(matrix->GetGutter(), vtkVector2f(22, 11));
  int borders[4];
  matrix->GetBorders(borders);
  EXPECT_EQ(borders[vtkAxis::LEFT], 80);
  EXPECT_EQ(borders[vtkAxis::BOTTOM], 40);
  EXPECT_EQ(borders[vtkAxis::RIGHT], 20);
  EXPECT_EQ(borders[vtkAxis::TOP], 20);
}

TEST_F(RedrawStyles, LimitsTheScatterPlotMatrixToTheChosenColumns)
{
  settings().xColumns = {3};
  settings().yColumns = {1};
  settings().parameterColumns = {2};
  settings().setLimitColumVisibility(true);
  setStyle(3);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  ASSERT_EQ(matrix->GetVisibleColumns()->GetNumberOfValues(), 3);
  EXPECT_EQ(matrix->GetVisibleColumns()->GetValue(0), "d");
  EXPECT_EQ(matrix->GetVisibleColumns()->GetValue(1), "b");
  EXPECT_EQ(matrix->GetVisibleColumns()->GetValue(2), "c");
  const vtkVector2i active = matrix->GetActivePlot();
  EXPECT_EQ(matrix->GetColumnName(active.GetX()), "d");
  EXPECT_EQ(matrix->GetRowName(active.GetY()), "b");
  scene.render(container);

  settings().setLimitColumVisibility(false);
  EXPECT_EQ(matrix->GetVisibleColumns()->GetNumberOfValues(), 4);
  EXPECT_EQ(matrix->GetSize().GetX(), 4);
  scene.render(container);
}

TEST_F(RedrawStyles, ActivatesNoPairOfOneColumn)
{
  settings().xColumns = {1};
  settings().yColumns = {1};
  settings().setLimitColumVisibility(true);
  setStyle(3);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  EXPECT_EQ(matrix->GetVisibleColumns()->GetNumberOfValues(), 1);
  scene.render(container);
}

TEST_F(RedrawStyles, DrawsPointsInSpace)
{
  settings().zColumns = {2};
  setStyle(4);
  EXPECT_EQ(container.getChartXY(), nullptr);
  EXPECT_EQ(container.getItem(), stateOf(container).chartXYZ);
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 500);
}

TEST_F(RedrawStyles, ShowsAllAxesForTwoYColumnsAndOnlyThreeForThree)
{
  settings().yColumns = {1, 2};
  setStyle(9);
  vtkStringArray* shown = stateOf(container).parallelCoordinates->GetVisibleColumns();
  EXPECT_EQ(shown->GetNumberOfValues(), 4);
  settings().yColumns = {3, 1, 2};
  container.redraw();
  ASSERT_EQ(shown->GetNumberOfValues(), 3);
  EXPECT_EQ(shown->GetValue(0), "d");
  EXPECT_EQ(shown->GetValue(2), "c");
  EXPECT_EQ(stateOf(container).parallelCoordinates->GetNumberOfAxes(), 3);
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(
        stateOf(container).parallelCoordinates->GetAxis(i)->GetLabelProperties()->GetOrientation(),
        -45.0);
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 500);
}

TEST_F(RedrawStyles, CanLeaveSelectionMarksOutOfAllColumns)
{
  for (const char* mark : {"selected points", "vtkRemainderSelection", "vtkOriginalRowIds"})
  {
    const auto rows = static_cast<std::size_t>(container.getTable()->GetNumberOfRows());
    std::vector<double> values(rows, 0.0);
    values.front() = 1.0;
    container.addColumn(values, mark);
  }
  settings().setLimitColumVisibility(false);
  settings().yColumns = {1, 2};
  vtkStringArray* axes = stateOf(container).parallelCoordinates->GetVisibleColumns();
  const auto pairs = [this]
  { return stateOf(container).scatterPlotMatrix->GetVisibleColumns()->GetNumberOfValues(); };
  PlotOptions options;
  EXPECT_TRUE(options.showsSelectionMarks);
  for (const bool shown : {true, false, true})
  {
    options.showsSelectionMarks = shown;
    container.setOptions(options);
    setStyle(9);
    EXPECT_EQ(axes->GetNumberOfValues(), shown ? 7 : 4);
    setStyle(3);
    EXPECT_EQ(pairs(), shown ? 7 : 4);
  }
  // What is asked for by its column is shown.
  options.showsSelectionMarks = false;
  container.setOptions(options);
  settings().yColumns = {1, 2, 5};
  setStyle(9);
  EXPECT_EQ(axes->GetNumberOfValues(), 3);
}

TEST_F(RedrawStyles, ColorsParallelCoordinatesByTheColorColumn)
{
  settings().colorColumn = 2;
  setStyle(9);
  auto* plot =
      vtkPlotParallelCoordinates::SafeDownCast(stateOf(container).parallelCoordinates->GetPlot(0));
  EXPECT_EQ(plot->GetScalarVisibility(), 1);
  EXPECT_EQ(plot->GetColorArrayName(), "c");
  scene.render(container);
  settings().colorColumn = -1;
  container.redraw();
  EXPECT_EQ(
      vtkPlotParallelCoordinates::SafeDownCast(stateOf(container).parallelCoordinates->GetPlot(0))
          ->GetScalarVisibility(),
      0);
}

TEST_F(RedrawStyles, ColorsParallelCoordinatesFromBlueToRedOverTheirColumn)
{
  container.setPlotData(tableOf({{"a", {0, 1, 2, 3}},
                                 {"b", {100, 250, 400, std::numeric_limits<double>::infinity()}},
                                 {"c", {3, 1, 2, 0}}}));
  settings().colorColumn = 1;
  setStyle(9);
  auto* plot =
      vtkPlotParallelCoordinates::SafeDownCast(stateOf(container).parallelCoordinates->GetPlot(0));
  ASSERT_EQ(plot->GetScalarVisibility(), 1);
  vtkScalarsToColors* colors = plot->GetLookupTable();
  EXPECT_EQ(colors->GetRange()[0], 100.0);
  EXPECT_EQ(colors->GetRange()[1], 400.0);
  const auto colorOf = [colors](double value)
  {
    double rgb[3];
    colors->GetColor(value, rgb);
    return std::vector<double>(rgb, rgb + 3);
  };
  EXPECT_EQ(colorOf(100.0), (std::vector<double>{0, 0, 1}));
  EXPECT_EQ(colorOf(400.0), (std::vector<double>{1, 0, 0}));
  const std::vector<double> middle = colorOf(250.0);
  EXPECT_GT(middle[1], 0.9) << "green";
  EXPECT_LT(middle[0], 0.1);
  scene.render(container);
}

TEST_F(RedrawStyles, SwitchesThroughAllStylesInAnyOrder)
{
  for (int from = 0; from <= plotStyleCount + 1; ++from)
  {
    for (int to = 0; to <= plotStyleCount + 1; ++to)
    {
      setStyle(from);
      container.redraw();
      scene.render(container);
      setStyle(to);
      container.redraw();
      scene.render(container);
      ASSERT_NE(container.getItem(), nullptr);
      EXPECT_EQ(container.getItem()->GetScene(), scene.scene());
    }
  }
}

class ReservedStyles : public UndrawnPlotFixture, public ::testing::WithParamInterface<int>
{
};

TEST_P(ReservedStyles, DrawNothingButTheTitle)
{
  setStyle(GetParam());
  container.redraw();
  ASSERT_NE(container.getChartXY(), nullptr);
  EXPECT_EQ(container.getItem(), container.getChartXY());
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 0);
  EXPECT_EQ(container.getChartXY()->GetTitle(), "Not yet implemented");
  EXPECT_EQ(settings().title, "Not yet implemented");
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 100) << "the title must be seen";
}

INSTANTIATE_TEST_SUITE_P(EveryReservedValue, ReservedStyles,
                         ::testing::Values(1, 2, 10, 11, 1000, -1));

} // namespace

#include "support/PlotFixture.h"
#include "vtk/vtkPlotErrorPoints.h"

#include <vtkChartXY.h>
#include <vtkPen.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

namespace
{

class PointSizes : public PlotFixture
{
protected:
  /// Makes the charts of a matrix page, with point plots of size 1 in all cells.
  void fillMatrix(int size)
  {
    container.getChartMatrix()->SetSize(vtkVector2i(size, size));
    for (int column = 0; column < size; ++column)
    {
      for (int row = 0; row < size; ++row)
      {
        vtkNew<vtkChartXY> cell;
        vtkPlotPoints::SafeDownCast(cell->AddPlot(vtkChart::POINTS))->SetMarkerSize(1.0F);
        container.getChartMatrix()->SetChart(vtkVector2i(column, row), cell);
      }
    }
  }

  float cellSize(int column, int row)
  {
    vtkChart* cell = container.getChartMatrix()->GetChart(vtkVector2i(column, row));
    return vtkPlotPoints::SafeDownCast(cell->GetPlot(0))->GetMarkerSize();
  }
};

TEST_F(PointSizes, SetsTheMarkerOfTheFirstPlot)
{
  auto* second = vtkPlotPoints::SafeDownCast(chart()->AddPlot(vtkChart::POINTS));
  second->SetMarkerStyle(vtkPlotPoints::PLUS);
  newDrawings();
  container.setMarkerStyle(vtkPlotPoints::DIAMOND);
  EXPECT_EQ(settings().markerStyle, vtkPlotPoints::DIAMOND);
  EXPECT_EQ(points()->GetMarkerStyle(), vtkPlotPoints::DIAMOND);
  EXPECT_EQ(second->GetMarkerStyle(), vtkPlotPoints::PLUS);
  EXPECT_EQ(newDrawings(), 0U);
  container.redraw();
  EXPECT_EQ(points()->GetMarkerStyle(), vtkPlotPoints::DIAMOND);
}

TEST_F(PointSizes, SetsTheSizeOfTheFirstPlotOfStyleZero)
{
  auto* second = vtkPlotPoints::SafeDownCast(chart()->AddPlot(vtkChart::POINTS));
  second->SetMarkerSize(1.0F);
  container.setPointSize(6.5);
  EXPECT_EQ(settings().pointSize, 6.5);
  EXPECT_EQ(points()->GetMarkerSize(), 6.5F);
  EXPECT_EQ(second->GetMarkerSize(), 1.0F);
  container.redraw();
  EXPECT_EQ(points()->GetMarkerSize(), 6.5F);
}

TEST_F(PointSizes, ReachesNoPointsBehindAFirstPlotOfAnotherKind)
{
  vtkPlotPoints* later = hidePointsBehindBars();
  container.setPointSize(6.5);
  container.setMarkerStyle(vtkPlotPoints::DIAMOND);
  EXPECT_EQ(settings().pointSize, 6.5);
  EXPECT_EQ(later->GetMarkerSize(), 11.0F);
  EXPECT_EQ(later->GetMarkerStyle(), vtkPlotPoints::PLUS);
}

TEST_F(PointSizes, OnlyStoresTheSizeInStylesWithoutARuleForIt)
{
  for (const int style : {1, 2, 4, 6, 7, 8, 9, 10})
  {
    storeStyle(style);
    fillMatrix(2);
    points()->SetMarkerSize(1.0F);
    container.setPointSize(2.0 + style);
    EXPECT_EQ(settings().pointSize, 2.0 + style);
    EXPECT_EQ(points()->GetMarkerSize(), 1.0F) << style;
    EXPECT_EQ(cellSize(0, 0), 1.0F) << style;
  }
}

TEST_F(PointSizes, MakesTheActivePointsOfTheMatrixHalfAsLargeAgain)
{
  drawStyle(3);
  scene.render(container);
  container.setPointSize(2.0);
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  ASSERT_NE(matrix, nullptr);
  auto* active = vtkPlotPoints::SafeDownCast(matrix->GetMainChart()->GetPlot(0));
  ASSERT_NE(active, nullptr);
  EXPECT_EQ(active->GetMarkerSize(), 3.0F);
  int others = 0;
  for (int column = 0; column < 4; ++column)
  {
    for (int row = 0; row < 4; ++row)
    {
      if (matrix->GetPlotType(column, row) != vtkScatterPlotMatrix::SCATTERPLOT)
        continue;
      auto* plot =
          vtkPlotPoints::SafeDownCast(matrix->GetChart(vtkVector2i(column, row))->GetPlot(0));
      ASSERT_NE(plot, nullptr);
      EXPECT_EQ(plot->GetMarkerSize(), 2.0F);
      ++others;
    }
  }
  EXPECT_EQ(others, 6);
}

TEST_F(PointSizes, SetsTheSizeOfTheTriangleAndTheMainChartOfAPage)
{
  storeStyle(5);
  settings().parameterColumns = {0, 1, 2, 3};
  fillMatrix(5);
  container.setPointSize(6.0);
  for (int column = 0; column < 5; ++column)
  {
    for (int row = 0; row < 5; ++row)
    {
      const bool reached = column + row <= 2 || (column == 2 && row == 2);
      EXPECT_EQ(cellSize(column, row), reached ? 6.0F : 1.0F) << column << ' ' << row;
    }
  }
}

TEST_F(PointSizes, SetsTheSizeOfAPageOfAnOddNumberOfParameters)
{
  storeStyle(5);
  settings().parameterColumns = {0, 1, 2};
  fillMatrix(3);
  container.setPointSize(6.0);
  for (int column = 0; column < 3; ++column)
  {
    for (int row = 0; row < 3; ++row)
    {
      const bool reached = column + row <= 1 || (column == 1 && row == 1);
      EXPECT_EQ(cellSize(column, row), reached ? 6.0F : 1.0F) << column << ' ' << row;
    }
  }
}

TEST_F(PointSizes, SurvivesPagesThatLackChartsPlotsOrPoints)
{
  storeStyle(5);
  settings().parameterColumns = {0, 1, 2, 3};
  container.getChartMatrix()->SetSize(vtkVector2i(0, 0));
  container.setPointSize(6.0);
  fillMatrix(2);
  container.setPointSize(7.0);
  EXPECT_EQ(cellSize(1, 1), 7.0F);
  container.getChartMatrix()->GetChart(vtkVector2i(0, 0))->ClearPlots();
  auto* bars = container.getChartMatrix()->GetChart(vtkVector2i(0, 1));
  bars->ClearPlots();
  bars->AddPlot(vtkChart::BAR);
  container.setPointSize(8.0);
  EXPECT_EQ(cellSize(1, 0), 8.0F);
  settings().parameterColumns = {};
  container.setPointSize(9.0);
  EXPECT_EQ(settings().pointSize, 9.0);
}

TEST_F(PointSizes, StoresTheLineWidthAndAnnouncesAChange)
{
  newDrawings();
  container.setLineWidth(3.0);
  EXPECT_EQ(settings().getLineWidth(), 3.0);
  EXPECT_EQ(newDrawings(), 1U);
  container.setLineWidth(3.0);
  EXPECT_EQ(newDrawings(), 0U);
}

TEST_F(PointSizes, SetsTheWidthOfErrorBarsInTheirStyleAlone)
{
  for (const int style : {0, 7, 9})
  {
    storeStyle(style);
    settings().blockSignals(true);
    chart()->ClearPlots();
    vtkNew<vtkPlotErrorPoints> bars;
    bars->GetPen()->SetWidth(1.0F);
    chart()->AddPlot(bars);
    container.setLineWidth(3.5 + style);
    EXPECT_EQ(bars->GetPen()->GetWidth(), style == 7 ? 10.5F : 1.0F);
    EXPECT_EQ(settings().getLineWidth(), 3.5 + style);
  }
}

TEST_F(PointSizes, LeavesOtherPlotsOfTheErrorBarStyleAlone)
{
  storeStyle(7);
  settings().blockSignals(true);
  points()->GetPen()->SetWidth(1.0F);
  container.setLineWidth(4.0);
  EXPECT_EQ(points()->GetPen()->GetWidth(), 1.0F);
  chart()->ClearPlots();
  container.setLineWidth(5.0);
  EXPECT_EQ(settings().getLineWidth(), 5.0);
}

} // namespace

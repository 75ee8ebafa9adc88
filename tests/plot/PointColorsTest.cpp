#include "support/PlotFixture.h"

#include <vtkBrush.h>
#include <vtkChartXY.h>
#include <vtkFloatArray.h>
#include <vtkLookupTable.h>
#include <vtkPen.h>
#include <vtkPlotBar.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

#include <limits>

namespace
{

class PointColors : public PlotFixture
{
};

void expectColor(vtkPlot* plot, int red, int green, int blue, int alpha)
{
  unsigned char color[4];
  plot->GetPen()->GetColor(color);
  EXPECT_EQ(color[0], red);
  EXPECT_EQ(color[1], green);
  EXPECT_EQ(color[2], blue);
  EXPECT_EQ(plot->GetPen()->GetOpacity(), alpha);
}

TEST_F(PointColors, TakesASolidColorAtOnceAndKeepsIt)
{
  newDrawings();
  container.setColor(10, 20, 30, 40);
  EXPECT_EQ(newDrawings(), 0U);
  EXPECT_EQ(settings().color, (std::array<int, 4>{10, 20, 30, 40}));
  expectColor(points(), 10, 20, 30, 40);
  EXPECT_EQ(points()->GetScalarVisibility(), 0);
  container.redraw();
  expectColor(points(), 10, 20, 30, 40);
}

TEST_F(PointColors, TakesColorComponentsAsEightBitValues)
{
  container.setColor(256, -1, 300, 511);
  expectColor(points(), 0, 255, 44, 255);
}

TEST_F(PointColors, StoresTheSolidColorWhileColorsComeFromAColumn)
{
  container.setColorScheme("c", false);
  container.setColor(10, 20, 30, 40);
  EXPECT_EQ(settings().color, (std::array<int, 4>{10, 20, 30, 40}));
  EXPECT_EQ(points()->GetScalarVisibility(), 1);
  container.setColorScheme("", true);
  EXPECT_EQ(points()->GetScalarVisibility(), 0);
  expectColor(points(), 10, 20, 30, 40);
}

TEST_F(PointColors, ColorsByAColumnThroughALookupTable)
{
  newDrawings();
  container.setColorScheme("c", false);
  EXPECT_EQ(newDrawings(), 0U);
  EXPECT_FALSE(settings().solidColor);
  EXPECT_EQ(settings().colorColumn, 2);
  EXPECT_EQ(points()->GetScalarVisibility(), 1);
  EXPECT_EQ(points()->GetColorArrayName(), "c");
  auto* colors = vtkLookupTable::SafeDownCast(points()->GetLookupTable());
  ASSERT_NE(colors, nullptr);
  EXPECT_EQ(colors->GetAlpha(), 1.0);
  EXPECT_EQ(colors->GetHueRange()[0], 0.2);
  EXPECT_EQ(colors->GetHueRange()[1], 0.8);
  EXPECT_EQ(colors->GetSaturationRange()[0], 0.95);
  EXPECT_EQ(colors->GetSaturationRange()[1], 1.0);
  EXPECT_EQ(colors->GetValueRange()[0], 0.9);
  EXPECT_EQ(colors->GetValueRange()[1], 0.9);
  EXPECT_EQ(colors->GetRange()[0], 1.0);
  EXPECT_EQ(colors->GetRange()[1], 5.0);
  scene.render(container);
}

TEST_F(PointColors, SpanTheFiniteValuesOfTheColumn)
{
  Talmesh::plot::doubleColumn(container.getTable(), 2)
      ->SetValue(1, std::numeric_limits<double>::infinity());
  Talmesh::plot::doubleColumn(container.getTable(), 2)
      ->SetValue(3, -std::numeric_limits<double>::infinity());
  container.setColorScheme("c", false);
  ASSERT_EQ(points()->GetScalarVisibility(), 1);
  EXPECT_EQ(points()->GetLookupTable()->GetRange()[0], 1.0);
  EXPECT_EQ(points()->GetLookupTable()->GetRange()[1], 5.0);
  scene.render(container);
}

TEST_F(PointColors, KeepsTheColorsOfAColumnInARedraw)
{
  container.setColorScheme("b", false);
  container.redraw();
  EXPECT_EQ(points()->GetScalarVisibility(), 1);
  EXPECT_EQ(points()->GetColorArrayName(), "b");
  EXPECT_EQ(points()->GetLookupTable()->GetRange()[1], 25.0);
  scene.render(container);
}

TEST_F(PointColors, TakesTheLaterOfTwoColumnsOfOneName)
{
  container.getTable()->GetColumn(3)->SetName("b");
  container.setColorScheme("b", false);
  EXPECT_EQ(settings().colorColumn, 3);
}

TEST_F(PointColors, KeepsTheColorColumnForAnUnknownName)
{
  settings().colorColumn = 1;
  container.setColorScheme("nothing", false);
  EXPECT_EQ(settings().colorColumn, 1);
  EXPECT_FALSE(settings().solidColor);
  EXPECT_EQ(points()->GetColorArrayName(), "b");
}

TEST_F(PointColors, KeepsTheColorColumnForTheSolidColor)
{
  container.setColorScheme("b", false);
  container.setColorScheme("c", true);
  EXPECT_EQ(settings().colorColumn, 1);
  EXPECT_TRUE(settings().solidColor);
  EXPECT_EQ(points()->GetScalarVisibility(), 0);
}

TEST_F(PointColors, ColorsTheGivenPlotInsteadOfTheFirst)
{
  auto* second = vtkPlotPoints::SafeDownCast(chart()->AddPlot(vtkChart::POINTS));
  second->SetInputData(container.getTable(), "a", "b");
  settings().color = {9, 8, 7, 6};
  container.useColors(second);
  expectColor(second, 9, 8, 7, 6);
  expectColor(points(), 0, 0, 0, 255);
}

TEST_F(PointColors, LeavesPlotsOtherThanPointsUncolored)
{
  vtkPlotPoints* later = hidePointsBehindBars();
  vtkPlot* bars = chart()->GetPlot(0);
  bars->SetColor(1, 2, 3, 4);
  container.setColor(9, 8, 7, 6);
  container.useColors(bars);
  EXPECT_EQ(bars->GetBrush()->GetColorObject().GetRed(), 1);
  expectColor(later, 1, 2, 3, 4);
}

TEST_F(PointColors, ColorsNothingInAChartWithoutPlots)
{
  chart()->ClearPlots();
  container.useColors(nullptr);
  container.setColor(9, 8, 7, 6);
  container.setColorScheme("c", false);
  EXPECT_EQ(chart()->GetNumberOfPlots(), 0);
}

TEST_F(PointColors, ColorsNothingByAColumnWithoutARangeOfDoubles)
{
  const double inf = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  vtkSmartPointer<vtkTable> table = plainTable();
  table->AddColumn(Talmesh::plot::makeColumn("nan", {nan, nan, nan, nan, nan}));
  table->AddColumn(Talmesh::plot::makeColumn("inf", {-inf, inf, inf, inf, inf}));
  addStringColumn(table, "words");
  vtkNew<vtkFloatArray> floats;
  floats->SetName("floats");
  floats->SetNumberOfValues(5);
  floats->Fill(1.0);
  table->AddColumn(floats);
  container.setPlotData(table);
  container.redraw();
  for (const int column : {-1, 4, 5, 6, 7, 8, 1000})
  {
    settings().solidColor = false;
    settings().colorColumn = column;
    container.useColors(nullptr);
    scene.render(container);
    container.redraw();
    EXPECT_EQ(points()->GetScalarVisibility(), 0) << column;
    scene.render(container);
  }
}

TEST_F(PointColors, IsStoredWhileNoXYChartIsShown)
{
  for (const int style : {3, 4})
  {
    drawStyle(style);
    ASSERT_EQ(chart(), nullptr);
    for (const int claimed : {style, 0, 5, 7})
    {
      storeStyle(claimed);
      settings().blockSignals(true);
      container.setColor(1, 2, 3, claimed);
      container.setColorScheme("b", false);
      container.setColorScheme("b", true);
      container.useColors(nullptr);
      container.setMarkerStyle(claimed % 5);
      container.setPointSize(claimed);
      container.setLineWidth(claimed);
      EXPECT_EQ(settings().color[3], claimed);
      EXPECT_EQ(settings().colorColumn, 1);
      EXPECT_EQ(settings().markerStyle, claimed % 5);
      EXPECT_EQ(settings().pointSize, claimed);
      EXPECT_EQ(settings().getLineWidth(), claimed);
    }
  }
}

} // namespace

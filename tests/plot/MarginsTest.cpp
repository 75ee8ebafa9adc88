#include "plot/ContainerAccess.h"
#include "support/PlotFixture.h"

#include <gtest/gtest.h>

#include <array>

namespace
{

using Borders = std::array<int, 4>; // left, bottom, right, top, as VTK numbers the axes' sides

class Margins : public PlotFixture
{
protected:
  /// Distances of the plot area to the edges of the XY chart.
  static Borders bordersOf(vtkChartXY* chart)
  {
    const int* size = chart->GetGeometry();
    const int* low = chart->GetPoint1();
    const int* high = chart->GetPoint2();
    return {low[0], low[1], size[0] - high[0], size[1] - high[1]};
  }

  static Borders bordersOf(vtkChartMatrix* matrix)
  {
    int borders[4];
    matrix->GetBorders(borders);
    return {borders[0], borders[1], borders[2], borders[3]};
  }

  void setFourMargins()
  {
    container.setLeftMargin(11);
    container.setBottomMargin(12);
    container.setRightMargin(13);
    container.setTopMargin(14);
  }
};

TEST(MarginDefaults, AreThoseOfANewContainer)
{
  const PlotContainer container(nullptr);
  EXPECT_EQ(container.getLeftMargin(), 80);
  EXPECT_EQ(container.getTopMargin(), 20);
  EXPECT_EQ(container.getBottomMargin(), 40);
  EXPECT_EQ(container.getRightMargin(), 20);
  EXPECT_EQ(container.getHorizontalGutter(), 28);
  EXPECT_EQ(container.getVerticalGutter(), 28);
}

TEST_F(Margins, AreStoredEachInItsOwnPlace)
{
  setFourMargins();
  container.setHorizontalGutter(15);
  container.setVerticalGutter(16);
  EXPECT_EQ(container.getLeftMargin(), 11);
  EXPECT_EQ(container.getBottomMargin(), 12);
  EXPECT_EQ(container.getRightMargin(), 13);
  EXPECT_EQ(container.getTopMargin(), 14);
  EXPECT_EQ(container.getHorizontalGutter(), 15);
  EXPECT_EQ(container.getVerticalGutter(), 16);
}

TEST_F(Margins, BorderTheXYChartAtOnce)
{
  EXPECT_EQ(bordersOf(chart()), (Borders{80, 40, 20, 20}));
  newDrawings();
  container.setLeftMargin(11);
  EXPECT_EQ(bordersOf(chart()), (Borders{11, 40, 20, 20}));
  container.setBottomMargin(12);
  EXPECT_EQ(bordersOf(chart()), (Borders{11, 12, 20, 20}));
  container.setRightMargin(13);
  EXPECT_EQ(bordersOf(chart()), (Borders{11, 12, 13, 20}));
  container.setTopMargin(14);
  EXPECT_EQ(bordersOf(chart()), (Borders{11, 12, 13, 14}));
  EXPECT_EQ(newDrawings(), 0U);
  container.redraw();
  EXPECT_EQ(bordersOf(chart()), (Borders{11, 12, 13, 14}));
}

TEST_F(Margins, LeaveTheMatrixAloneInTheStyleOfTheXYChart)
{
  const Borders before = bordersOf(container.getChartMatrix());
  setFourMargins();
  container.setHorizontalGutter(17);
  EXPECT_EQ(bordersOf(container.getChartMatrix()), before);
  EXPECT_NE(container.getChartMatrix()->GetGutter().GetX(), 17.0F);
}

TEST_F(Margins, BorderThePageOfManyCharts)
{
  storeStyle(5);
  setFourMargins();
  container.setHorizontalGutter(15);
  container.setVerticalGutter(16);
  EXPECT_EQ(bordersOf(container.getChartMatrix()), (Borders{11, 12, 13, 14}));
  EXPECT_EQ(container.getChartMatrix()->GetGutter(), vtkVector2f(15, 16));
  EXPECT_EQ(bordersOf(chart()), (Borders{80, 40, 20, 20}));
}

TEST_F(Margins, LeaveRoomForTheHeadingsOfTheSelectionPage)
{
  storeStyle(6);
  container.setTopMargin(30);
  EXPECT_EQ(bordersOf(container.getChartMatrix()), (Borders{80, 40, 20, 55}));
  EXPECT_EQ(container.getChartMatrix()->GetGutter(), vtkVector2f(28, 53));
  setFourMargins();
  container.setHorizontalGutter(15);
  container.setVerticalGutter(16);
  EXPECT_EQ(bordersOf(container.getChartMatrix()), (Borders{11, 12, 13, 39}));
  EXPECT_EQ(container.getChartMatrix()->GetGutter(), vtkVector2f(15, 41));
  EXPECT_EQ(container.getTopMargin(), 14) << "the room is not stored";
  EXPECT_EQ(container.getVerticalGutter(), 16);
}

TEST_F(Margins, ChangeNoChartInTheOtherStyles)
{
  const Borders matrixBefore = bordersOf(container.getChartMatrix());
  const vtkVector2f gutterBefore = container.getChartMatrix()->GetGutter();
  for (const int style : {1, 2, 3, 4, 7, 8, 9, 10})
  {
    storeStyle(style);
    setFourMargins();
    container.setHorizontalGutter(15);
    container.setVerticalGutter(16);
    EXPECT_EQ(bordersOf(chart()), (Borders{80, 40, 20, 20})) << style;
    EXPECT_EQ(bordersOf(container.getChartMatrix()), matrixBefore) << style;
    EXPECT_EQ(container.getChartMatrix()->GetGutter(), gutterBefore) << style;
    EXPECT_EQ(container.getLeftMargin(), 11);
  }
}

TEST_F(Margins, ApplyToTheChartOfTheStyleOnDemand)
{
  storeStyle(1);
  setFourMargins();
  storeStyle(0);
  container.updateMargins();
  EXPECT_EQ(bordersOf(chart()), (Borders{11, 12, 13, 14}));
}

TEST_F(Margins, KeepBothOrdersOfTheGutters)
{
  container.setHorizontalGutter(15);
  container.setVerticalGutter(16);
  drawStyle(3);
  EXPECT_EQ(stateOf(container).scatterPlotMatrix->GetGutter(), vtkVector2f(16, 15));
  storeStyle(5);
  container.updateMargins();
  EXPECT_EQ(container.getChartMatrix()->GetGutter(), vtkVector2f(15, 16));
  storeStyle(3);
  container.setHorizontalGutter(17);
  EXPECT_EQ(stateOf(container).scatterPlotMatrix->GetGutter(), vtkVector2f(16, 15))
      << "the scatter-plot matrix takes the gutters when it is drawn";
}

TEST_F(Margins, AreStoredWhileNoXYChartIsShown)
{
  drawStyle(3);
  ASSERT_EQ(chart(), nullptr);
  storeStyle(0);
  setFourMargins();
  EXPECT_EQ(container.getTopMargin(), 14);
  drawStyle(0);
  EXPECT_EQ(bordersOf(chart()), (Borders{11, 12, 13, 14}));
}

TEST_F(Margins, SurviveAbsurdValues)
{
  for (const int pixels : {-1, -100000, 100000, 0})
  {
    container.setLeftMargin(pixels);
    container.setTopMargin(pixels);
    container.setRightMargin(pixels);
    container.setBottomMargin(pixels);
    EXPECT_EQ(container.getLeftMargin(), pixels);
    scene.render(container);
  }
}

} // namespace

#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/PageFixture.h"
#include "support/ParameterStudy.h"
#include "support/PlotFixture.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>
#include <vtkChart.h>
#include <vtkContextMapper2D.h>
#include <vtkContextMouseEvent.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

namespace
{

constexpr int runs = 7;
constexpr int points = 5;

class MultiPlot : public PageFixture
{
protected:
  void draw(int parameters)
  {
    container.setScene(scene.scene());
    container.setPlotStyle(multiPlot);
    container.setLinePlotTable(parameterStudy(runs, points, parameters), false);
  }

  vtkVector2i span(int column, int row) { return matrix()->GetChartSpan(vtkVector2i(column, row)); }
};

TEST_F(MultiPlot, DrawsATriangleOfPairsAndTheMainChart)
{
  draw(4);
  EXPECT_EQ(container.getItem(), container.getChartMatrix());
  EXPECT_EQ(container.getChartMatrix()->GetSize(), vtkVector2i(4, 4));
  for (int column = 0; column < 4; ++column)
  {
    for (int row = 0; row < 4; ++row)
    {
      const bool isPair = row < 3 - column;
      const bool isMain = column == 2 && row == 2;
      EXPECT_EQ(cell(column, row)->GetNumberOfPlots(), isPair || isMain ? 1 : 0)
          << column << ' ' << row;
    }
  }
  EXPECT_EQ(container.getChartXY(), cell(2, 2));
  EXPECT_EQ(span(2, 2), vtkVector2i(2, 2));
  EXPECT_EQ(span(0, 0), vtkVector2i(1, 1));
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 3000);
}

TEST_F(MultiPlot, PairsTheParametersAgainstEachOther)
{
  draw(4);
  EXPECT_EQ(plottedName(cell(0, 0)->GetPlot(0), 0), "Parameter: k1");
  EXPECT_EQ(plottedName(cell(0, 0)->GetPlot(0), 1), "Parameter: k4");
  EXPECT_EQ(plottedName(cell(2, 0)->GetPlot(0), 0), "Parameter: k3");
  EXPECT_EQ(plottedName(cell(0, 2)->GetPlot(0), 1), "Parameter: k2");
  EXPECT_EQ(plottedName(cell(1, 1)->GetPlot(0), 0), "Parameter: k2");
  EXPECT_EQ(plottedName(cell(1, 1)->GetPlot(0), 1), "Parameter: k3");
  EXPECT_EQ(plottedName(cell(2, 2)->GetPlot(0), 0), ": Time [s]");
  EXPECT_EQ(plottedName(cell(2, 2)->GetPlot(0), 1), "Molecule: A");
}

TEST_F(MultiPlot, TitlesOnlyTheOuterAxes)
{
  draw(3);
  EXPECT_EQ(cell(0, 0)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "k1");
  EXPECT_EQ(cell(1, 0)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "k2");
  EXPECT_EQ(cell(0, 0)->GetAxis(vtkAxis::LEFT)->GetTitle(), "k3");
  EXPECT_EQ(cell(0, 1)->GetAxis(vtkAxis::LEFT)->GetTitle(), "k2");
  EXPECT_EQ(cell(0, 1)->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "");
  EXPECT_FALSE(cell(0, 1)->GetAxis(vtkAxis::BOTTOM)->GetLabelsVisible());
  EXPECT_TRUE(cell(0, 1)->GetAxis(vtkAxis::LEFT)->GetLabelsVisible());
  EXPECT_EQ(cell(1, 0)->GetAxis(vtkAxis::LEFT)->GetTitle(), "");
  EXPECT_FALSE(cell(1, 0)->GetAxis(vtkAxis::LEFT)->GetLabelsVisible());
}

TEST_F(MultiPlot, SharesTheSelectionAndBindsItToTheRightButton)
{
  draw(3);
  for (vtkChart* chart : {cell(0, 0), cell(1, 0), cell(0, 1), cell(1, 1)})
  {
    EXPECT_EQ(chart->GetAnnotationLink(), container.getAnnotationLink());
    EXPECT_EQ(chart->GetActionToButton(vtkChart::SELECT), vtkContextMouseEvent::RIGHT_BUTTON);
  }
}

TEST_F(MultiPlot, PadsTheMainChartsXRangeBeforeTheFirstPaint)
{
  draw(2);
  vtkAxis* bottom = container.getChartXY()->GetAxis(vtkAxis::BOTTOM);
  EXPECT_DOUBLE_EQ(bottom->GetMinimum(), 10.0 - 0.05 * 4.0);
  EXPECT_DOUBLE_EQ(bottom->GetMaximum(), 14.0 + 0.05 * 4.0);
}

TEST_F(MultiPlot, GivesAConstantXColumnAnEmptyRange)
{
  draw(2);
  container.getTable()->GetColumnByName(": Time [s]");
  for (vtkIdType row = 0; row < runs * points; ++row)
    container.getTable()->SetValueByName(row, ": Time [s]", 3.0);
  container.getTable()->GetColumnByName(": Time [s]")->Modified();
  container.redraw();
  vtkAxis* bottom = container.getChartXY()->GetAxis(vtkAxis::BOTTOM);
  EXPECT_EQ(bottom->GetMinimum(), bottom->GetMaximum());
  scene.render(container);
}

TEST_F(MultiPlot, FollowsTheLogFlagOfTheParameterAxes)
{
  draw(3);
  EXPECT_FALSE(cell(0, 0)->GetAxis(vtkAxis::LEFT)->GetLogScale());
  container.getMetaData()->setLogParameterAxes(true);
  EXPECT_TRUE(cell(0, 0)->GetAxis(vtkAxis::LEFT)->GetLogScale());
  EXPECT_TRUE(cell(0, 1)->GetAxis(vtkAxis::BOTTOM)->GetLogScale());
  EXPECT_FALSE(cell(1, 1)->GetAxis(vtkAxis::LEFT)->GetLogScale());
  scene.render(container);
}

TEST_F(MultiPlot, PutsTickLabelsByIndexWhateverTheirPositions)
{
  container.setXTickLabels({"a", "b"});
  container.setXTickPosition({5.0, 6.0});
  draw(2);
  vtkAxis* bottom = container.getChartXY()->GetAxis(vtkAxis::BOTTOM);
  ASSERT_EQ(bottom->GetTickPositions()->GetNumberOfValues(), 2);
  EXPECT_EQ(bottom->GetTickPositions()->GetValue(1), 1.0);
}

TEST_F(MultiPlot, FillsTheOnlyCellWithTheMainChartForOneParameter)
{
  draw(1);
  EXPECT_EQ(container.getChartMatrix()->GetSize(), vtkVector2i(1, 1));
  EXPECT_EQ(container.getChartXY(), cell(0, 0));
  EXPECT_EQ(span(0, 0), vtkVector2i(1, 1));
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 1);
}

TEST_F(MultiPlot, DrawsNothingWithoutParameters)
{
  draw(0);
  EXPECT_EQ(container.getChartMatrix()->GetSize(), vtkVector2i(0, 0));
  scene.render(container);
  container.setPlotStyle(xyPlot);
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 500);
}

TEST_F(MultiPlot, RefusesAShortParameterNameBeforeAnythingChanges)
{
  draw(3);
  container.getTable()->GetColumnByName("Parameter: k2")->SetName("k2");
  EXPECT_THROW(container.redraw(), std::out_of_range);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
  EXPECT_EQ(container.getChartMatrix()->GetSize(), vtkVector2i(3, 3));
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 1);
  EXPECT_THROW(container.drawMulitPlot(scene.scene()), std::out_of_range);

  CapturedOutput errors(std::cerr);
  container.getMetaData()->setPThreshold(0.01);
  EXPECT_EQ(errors.text().rfind("void PlotContainer::redraw(): ", 0), 0U) << errors.text();
  EXPECT_EQ(errors.text().back(), '\n');
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(MultiPlot, ThrowsNothingWhereDataAreShownThatItRefuses)
{
  draw(3);
  container.getMetaData()->parameterColumns = {0, 1};
  const std::string message = "void PlotContainer::redraw(): ";
  {
    const CapturedOutput errors(std::cerr);
    EXPECT_NO_THROW(container.example());
    EXPECT_EQ(errors.text().rfind(message, 0), 0U) << errors.text();
  }
  EXPECT_EQ(container.getMetaData()->title, "Example Plot");
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
  const CapturedOutput errors(std::cerr);
  EXPECT_NO_THROW(container.setPlotCols("x", "z", 0, false));
  EXPECT_EQ(errors.text().rfind(message, 0), 0U) << errors.text();
  EXPECT_EQ(container.getMetaData()->yColumns.front(), 2);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(MultiPlot, GivesEveryPointPlotTheSettingsMarkerSize)
{
  draw(4);
  container.setPointSize(9.0);
  for (vtkChart* chart : {cell(0, 0), cell(2, 0), cell(0, 2), cell(2, 2)})
    EXPECT_FLOAT_EQ(vtkPlotPoints::SafeDownCast(chart->GetPlot(0))->GetMarkerSize(), 9.0F);
}

} // namespace

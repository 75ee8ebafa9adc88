#include "plot/PlotState.h"
#include "support/PageFixture.h"
#include "support/ParameterStudy.h"
#include "support/PlotFixture.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>
#include <vtkFloatArray.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "PageProbes.h"

namespace
{

constexpr int runs = 7;
constexpr int points = 5;

class MultiPlotDetails : public PageFixture
{
protected:
  void draw(int parameters)
  {
    container.setScene(scene.scene());
    container.setPlotStyle(multiPlot);
    container.setLinePlotTable(parameterStudy(runs, points, parameters), false);
  }

  /// Draws with this column as x of the main chart.
  void drawOver(vtkDataArray* x)
  {
    container.getTable()->AddColumn(x);
    settings().xColumns = {static_cast<int>(container.getTable()->GetNumberOfColumns()) - 1};
    container.redraw();
  }

  void expectUntouchedRange()
  {
    vtkNew<vtkChartXY> fresh;
    EXPECT_EQ(mainAxis(vtkAxis::BOTTOM)->GetMinimum(),
              fresh->GetAxis(vtkAxis::BOTTOM)->GetMinimum());
    EXPECT_EQ(mainAxis(vtkAxis::BOTTOM)->GetMaximum(),
              fresh->GetAxis(vtkAxis::BOTTOM)->GetMaximum());
  }

  vtkAxis* mainAxis(int position) { return container.getChartXY()->GetAxis(position); }
};

TEST_F(MultiPlotDetails, HaveTheContainersGutterAndBorders)
{
  container.setLeftMargin(11);
  container.setTopMargin(12);
  container.setBottomMargin(13);
  container.setRightMargin(14);
  container.setHorizontalGutter(5);
  container.setVerticalGutter(6);
  draw(3);
  EXPECT_EQ(matrix()->GetGutter(), vtkVector2f(5, 6));
  int borders[4];
  matrix()->GetBorders(borders);
  EXPECT_EQ(borders[vtkAxis::LEFT], 11);
  EXPECT_EQ(borders[vtkAxis::TOP], 12);
  EXPECT_EQ(borders[vtkAxis::BOTTOM], 13);
  EXPECT_EQ(borders[vtkAxis::RIGHT], 14);
}

TEST_F(MultiPlotDetails, AreOpaqueBlackPointsOfTheTable)
{
  draw(3);
  for (vtkChart* chart : {cell(0, 0), cell(1, 0), cell(0, 1), cell(1, 1)})
  {
    vtkPlot* plot = chart->GetPlot(0);
    EXPECT_STREQ(plot->GetClassName(), "vtkPlotPoints");
    EXPECT_EQ(plot->GetInput(), container.getTable());
    EXPECT_EQ(penColor(plot->GetPen()), (std::array<int, 4>{0, 0, 0, 255}));
  }
}

TEST_F(MultiPlotDetails, TitleTheMainChartFromTheSettings)
{
  draw(3);
  settings().xLabel = "hours";
  settings().yLabel = "copies";
  settings().title = "All pairs";
  container.redraw();
  EXPECT_EQ(mainAxis(vtkAxis::BOTTOM)->GetTitle(), "hours");
  EXPECT_EQ(mainAxis(vtkAxis::LEFT)->GetTitle(), "copies");
  EXPECT_EQ(container.getChartXY()->GetTitle(), "All pairs");
  EXPECT_EQ(cell(0, 0)->GetTitle(), "");
}

TEST_F(MultiPlotDetails, LabelTheTicksOfTheMainChart)
{
  container.setXTickLabels({"before", "during", "after"});
  draw(2);
  vtkStringArray* labels = mainAxis(vtkAxis::BOTTOM)->GetTickLabels();
  ASSERT_EQ(labels->GetNumberOfValues(), 3);
  EXPECT_EQ(labels->GetValue(0), "before");
  EXPECT_EQ(labels->GetValue(1), "during");
  EXPECT_EQ(labels->GetValue(2), "after");
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(mainAxis(vtkAxis::BOTTOM)->GetTickPositions()->GetValue(i), i);
}

TEST_F(MultiPlotDetails, LeaveTheRangeOfAFloatColumnToVtk)
{
  draw(2);
  vtkNew<vtkFloatArray> x;
  x->SetName("single precision");
  for (int row = 0; row < runs * points; ++row)
    x->InsertNextValue(100.0F + static_cast<float>(row));
  drawOver(x);
  expectUntouchedRange();
  EXPECT_EQ(plottedName(container.getChartXY()->GetPlot(0), 0), "single precision");
}

TEST_F(MultiPlotDetails, LeaveARangeToVtkWhoseLimitsWouldNotBeFinite)
{
  draw(2);
  std::vector<double> wide(runs * points, 1.0);
  wide[0] = -1e308;
  wide[1] = 1e308;
  drawOver(Talmesh::plot::makeColumn("wide", wide));
  expectUntouchedRange();
}

TEST_F(MultiPlotDetails, NeedNoTypeWordInTheNameOfASingleParameter)
{
  draw(1);
  container.getTable()->GetColumnByName("Parameter: k1")->SetName("k1");
  container.redraw();
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(1, 1));
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 1);
}

TEST_F(MultiPlotDetails, CountAnEmptyOrMissingNameAsShort)
{
  draw(2);
  container.getTable()->GetColumnByName("Parameter: k2")->SetName("");
  EXPECT_THROW(container.redraw(), std::out_of_range);
  container.getTable()->GetColumn(4)->SetName(nullptr);
  EXPECT_THROW(container.redraw(), std::out_of_range);
}

/// Parameters of which hardly anything can be drawn, on the pages of many charts.
class OddParameters : public PageFixture, public ::testing::WithParamInterface<int>
{
protected:
  void expectFiniteAxes()
  {
    const vtkVector2i size = matrix()->GetSize();
    for (int i = 0; i < size.GetX() * size.GetY(); ++i)
    {
      vtkChart* chart = cell(i % size.GetX(), i / size.GetX());
      for (const int position : {vtkAxis::LEFT, vtkAxis::BOTTOM})
      {
        EXPECT_TRUE(std::isfinite(chart->GetAxis(position)->GetMinimum())) << i;
        EXPECT_TRUE(std::isfinite(chart->GetAxis(position)->GetMaximum())) << i;
      }
    }
  }
};

TEST_P(OddParameters, LeaveEveryAxisFinite)
{
  constexpr double inf = std::numeric_limits<double>::infinity();
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  const auto study = parameterStudy(runs, points, 4);
  const double odd[] = {inf, nan, -inf, 1e300, -1e300, 0.0, 1.0};
  for (int row = 0; row < runs * points; ++row)
  {
    study->values[3][row] = odd[row / points];
    study->values[4][row] = nan;
    study->values[5][row] = inf;
  }
  container.setScene(scene.scene());
  container.setPlotStyle(static_cast<plotStyles>(GetParam()));
  container.setLinePlotTable(study, true);
  for (const bool log : {false, true})
  {
    settings().setLogParameterAxes(log);
    for (const bool density : {false, true})
    {
      settings().setUseDensity(density);
      settings().setCommonDensityScale(log);
      scene.render(container);
      expectFiniteAxes();
    }
  }
  EXPECT_FALSE(settings().signalsBlocked());
}

INSTANTIATE_TEST_SUITE_P(PagesOfManyCharts, OddParameters,
                         ::testing::Values(multiPlot, selectionCdfPlot));

} // namespace

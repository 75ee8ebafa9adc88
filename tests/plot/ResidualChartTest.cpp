#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/PlotStyleCount.h"
#include "support/VtkErrors.h"

#include <vtkAxis.h>
#include <vtkPen.h>

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "ResidualFixture.h"

namespace
{

constexpr double inf = std::numeric_limits<double>::infinity();

class ResidualChart : public ResidualFixture
{
};

using Plot = std::array<std::string, 3>;

TEST_F(ResidualChart, OtherDataHasNoTimeAndUsesTheRowIndex)
{
  show(other, false, false);
  EXPECT_EQ(columnNames(table()), (std::vector<std::string>{"Residual M 0", "Residual P 1"}));
  ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_EQ(plotAt(0), (Plot{"points", "index", "Residual M 0"}));
  EXPECT_EQ(plotAt(1), (Plot{"points", "index", "Residual P 1"}));
  show(other, false, true);
  EXPECT_EQ(columnNames(table()), (std::vector<std::string>{"Prediction M 0", "Observation M 0",
                                                            "Prediction P 1", "Observation P 1"}));
  ASSERT_EQ(chart()->GetNumberOfPlots(), 4);
  EXPECT_EQ(plotAt(0), (Plot{"line", "index", "Prediction M 0"}));
  EXPECT_EQ(plotAt(1), (Plot{"points", "index", "Observation M 0"}));
  EXPECT_EQ(plotAt(2), (Plot{"line", "index", "Prediction P 1"}));
  EXPECT_EQ(plotAt(3), (Plot{"points", "index", "Observation P 1"}));
}

TEST_F(ResidualChart, TimeCoursesArePlottedOverTime)
{
  show(course, false, false);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_EQ(plotAt(0), (Plot{"points", "Time", "Residual M 0"}));
  EXPECT_EQ(plotAt(1), (Plot{"points", "Time", "Residual P 1"}));
  show(course, false, true);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 4);
  EXPECT_EQ(plotAt(0), (Plot{"line", "Time", "Prediction M 0"}));
  EXPECT_EQ(plotAt(1), (Plot{"points", "Time", "Observation M 0"}));
  EXPECT_EQ(plotAt(2), (Plot{"line", "Time", "Prediction P 1"}));
  EXPECT_EQ(plotAt(3), (Plot{"points", "Time", "Observation P 1"}));
}

TEST_F(ResidualChart, AxisTitlesSetBeforeStayWhateverChartWasShown)
{
  for (int style = 0; style < plotStyleCount; ++style)
  {
    container.setPlotStyle(static_cast<plotStyles>(style));
    container.setXLabel("Time [h]");
    container.setYLabel("Residual");
    show(course, false, false);
    EXPECT_EQ(chart()->GetAxis(vtkAxis::BOTTOM)->GetTitle(), "Time [h]") << "style " << style;
    EXPECT_EQ(chart()->GetAxis(vtkAxis::LEFT)->GetTitle(), "Residual") << "style " << style;
  }
}

TEST_F(ResidualChart, AllSeriesAreRed)
{
  show(course, false, true);
  for (int i = 0; i < 4; ++i)
  {
    unsigned char color[4];
    chart()->GetPlot(i)->GetPen()->GetColor(color);
    color[3] = chart()->GetPlot(i)->GetPen()->GetOpacity();
    EXPECT_EQ((std::array<int, 4>{color[0], color[1], color[2], color[3]}),
              (std::array<int, 4>{200, 30, 30, 255}))
        << i;
  }
  EXPECT_EQ(container.getMetaData()->markerStyle, 3);
  EXPECT_EQ(container.getMetaData()->pointSize, 3.0);
}

TEST_F(ResidualChart, TitleIsTheSameInBothViews)
{
  for (const bool sideBySide : {false, true})
  {
    show(course, false, sideBySide);
    EXPECT_EQ(chart()->GetTitle(), "Residuals");
    EXPECT_EQ(container.getMetaData()->title, "Residuals");
    show(course, true, sideBySide);
    EXPECT_EQ(chart()->GetTitle(), "Scaled Residuals");
    EXPECT_EQ(container.getMetaData()->title, "Scaled Residuals");
  }
}

TEST_F(ResidualChart, MorePredictionsThanObservationsGiveEmptyPlots)
{
  predictions.push_back({1.0, 2.0, 3.0});
  VtkErrors errors;
  show(course, false, true);
  EXPECT_EQ(table()->GetNumberOfColumns(), 5);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 6);
  EXPECT_EQ(chart()->GetPlot(5)->GetInput(), nullptr);
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ResidualChart, ZeroErrorsAndEmptyFitsPaintWithoutComplaint)
{
  VtkErrors errors;
  course.errors[0] = {0.0, 0.0, 0.0};
  show(course, true, false);
  EXPECT_EQ(column("Residual M 0")[0], -inf);
  scene.render(container);
  course = {};
  predictions.clear();
  run = {};
  show(course, true, false);
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
  scene.render(container);
  show(other, true, true);
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ResidualChart, AxesFitTheData)
{
  show(course, false, false);
  scene.render(container);
  vtkAxis* left = chart()->GetAxis(vtkAxis::LEFT);
  EXPECT_EQ(left->GetBehavior(), vtkAxis::AUTO);
  EXPECT_LE(left->GetMinimum(), -4.0);
  EXPECT_GE(left->GetMinimum(), -6.0);
  EXPECT_GE(left->GetMaximum(), 3.0);
  EXPECT_LE(left->GetMaximum(), 5.0);
}

TEST_F(ResidualChart, TheXYChartIsUsedAgain)
{
  vtkChartXY* before = chart();
  show(course, false, false);
  show(course, false, false);
  EXPECT_EQ(chart(), before);
  EXPECT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_EQ(chart()->GetScene(), scene.scene());
}

TEST_F(ResidualChart, AMissingXYChartIsMadeAndShown)
{
  container.setPlotStyle(::scatterPlotMatrix);
  container.redraw();
  ASSERT_EQ(chart(), nullptr);
  show(course, false, false);
  ASSERT_NE(chart(), nullptr);
  EXPECT_EQ(container.getItem(), chart());
  EXPECT_EQ(chart()->GetScene(), scene.scene());
}

TEST_F(ResidualChart, NoSceneIsNeeded)
{
  VtkErrors errors;
  PlotContainer hidden(nullptr);
  hidden.setResidualPlot(&run, &course, predictions, false, false);
  EXPECT_EQ(hidden.getChartXY()->GetNumberOfPlots(), 2);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ResidualChart, ACellOfTheMatrixIsNotUsed)
{
  container.getChartMatrix()->SetSize(vtkVector2i(1, 1));
  auto* cell = vtkChartXY::SafeDownCast(container.getChartMatrix()->GetChart(vtkVector2i(0, 0)));
  ASSERT_NE(cell, nullptr);
  stateOf(container).chartXY = cell;
  stateOf(container).currentChart = container.getChartMatrix();
  show(course, false, false);
  EXPECT_NE(chart(), cell);
  EXPECT_EQ(container.getItem(), chart());
  EXPECT_EQ(cell->GetNumberOfPlots(), 0);
}

TEST_F(ResidualChart, SettingsSpeakAgainAfterwards)
{
  container.getMetaData()->blockSignals(true);
  show(course, false, false);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(ResidualChart, PointsAreSeen)
{
  show(course, false, true);
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 1000);
}

} // namespace

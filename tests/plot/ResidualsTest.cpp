#include "plot/Residuals.h"

#include "external/FitRun.h"
#include "external/FitSettings.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/PlotScene.h"
#include "support/SampleRuns.h"
#include "support/VtkErrors.h"

#include <vtkAxis.h>
#include <vtkContextMapper2D.h>
#include <vtkFloatArray.h>
#include <vtkPen.h>
#include <vtkPlotLine.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

using SampleRuns::valuesOf;
using Rows = std::vector<std::vector<double>>;

namespace
{

constexpr double inf = std::numeric_limits<double>::infinity();

class OtherData : public FitSettings
{
public:
  using FitSettings::FitSettings;
  int dataKind() const override { return 2; }
};

/// Two outputs at three times. All numbers are exact in single precision.
class ResidualPlot : public ::testing::Test
{
protected:
  ResidualPlot()
  {
    container.setScene(scene.scene());
    run.timePoints = {0.0, 0.5, 1.0};
    fill(course);
    fill(other);
  }

  static void fill(FitSettings& settings)
  {
    settings.observations = {{1.0, 2.0, 4.0}, {10.0, 20.0, 30.0}};
    settings.errors = {{0.5, 0.25, 2.0}, {1.0, 2.0, 4.0}};
    settings.outputs = {{Talmesh::Molecule, "M"}, {Talmesh::Pattern, "P"}};
  }

  void show(FitSettings& settings, bool scaled, bool sideBySide)
  {
    container.setResidualPlot(&run, &settings, predictions, scaled, sideBySide);
  }

  std::vector<std::string> columnNames()
  {
    std::vector<std::string> names;
    for (int c = 0; c < table()->GetNumberOfColumns(); ++c)
      names.emplace_back(table()->GetColumnName(c));
    return names;
  }

  std::vector<double> column(const std::string& name) { return valuesOf(table(), name); }
  vtkTable* table() { return container.getTable(); }
  vtkChartXY* chart() { return container.getChartXY(); }

  /// Kind, x and y column of a plot.
  std::array<std::string, 3> plotAt(int index)
  {
    vtkPlot* plot = chart()->GetPlot(index);
    const bool isLine = plot->IsA("vtkPlotLine");
    const bool byIndex = plot->GetUseIndexForXSeries();
    const auto name = [plot](int array)
    {
      return std::string(
          plot->GetData()->GetInputArrayToProcess(array, plot->GetInput())->GetName());
    };
    return {isLine ? "line" : "points", byIndex ? "index" : name(0), name(1)};
  }

  PlotScene scene;
  PlotContainer container{nullptr};
  FitRun run;
  FitSettings course;
  OtherData other;
  Rows predictions{{2.0, 4.0, 1.0}, {8.0, 24.0, 30.0}};
};

using Plot = std::array<std::string, 3>;

TEST_F(ResidualPlot, TimeCourseTableHoldsTimeAndResiduals)
{
  show(course, false, false);
  EXPECT_EQ(columnNames(), (std::vector<std::string>{"Time", "Residual M 0", "Residual P 1"}));
  for (int c = 0; c < 3; ++c)
    EXPECT_NE(vtkFloatArray::SafeDownCast(table()->GetColumn(c)), nullptr) << c;
  EXPECT_EQ(column("Time"), (std::vector<double>{0.0, 0.5, 1.0}));
  EXPECT_EQ(column("Residual M 0"), (std::vector<double>{-1.0, -2.0, 3.0}));
  EXPECT_EQ(column("Residual P 1"), (std::vector<double>{2.0, -4.0, 0.0}));
}

TEST_F(ResidualPlot, ScaledResidualsAreDividedByTheErrors)
{
  show(course, true, false);
  EXPECT_EQ(column("Residual M 0"), (std::vector<double>{-2.0, -8.0, 1.5}));
  EXPECT_EQ(column("Residual P 1"), (std::vector<double>{2.0, -2.0, 0.0}));
}

TEST_F(ResidualPlot, SideBySideTableHoldsPredictionsAndObservations)
{
  show(course, false, true);
  EXPECT_EQ(columnNames(), (std::vector<std::string>{"Time", "Prediction M 0", "Observation M 0",
                                                     "Prediction P 1", "Observation P 1"}));
  EXPECT_EQ(column("Prediction M 0"), (std::vector<double>{2.0, 4.0, 1.0}));
  EXPECT_EQ(column("Observation P 1"), (std::vector<double>{10.0, 20.0, 30.0}));
}

TEST_F(ResidualPlot, OtherDataHasNoTimeAndUsesTheRowIndex)
{
  show(other, false, false);
  EXPECT_EQ(columnNames(), (std::vector<std::string>{"Residual M 0", "Residual P 1"}));
  ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_EQ(plotAt(0), (Plot{"points", "index", "Residual M 0"}));
  EXPECT_EQ(plotAt(1), (Plot{"points", "index", "Residual P 1"}));
  show(other, false, true);
  EXPECT_EQ(columnNames(), (std::vector<std::string>{"Prediction M 0", "Observation M 0",
                                                     "Prediction P 1", "Observation P 1"}));
  ASSERT_EQ(chart()->GetNumberOfPlots(), 4);
  EXPECT_EQ(plotAt(0), (Plot{"line", "index", "Prediction M 0"}));
  EXPECT_EQ(plotAt(1), (Plot{"points", "index", "Observation M 0"}));
  EXPECT_EQ(plotAt(2), (Plot{"line", "index", "Prediction P 1"}));
  EXPECT_EQ(plotAt(3), (Plot{"points", "index", "Observation P 1"}));
}

TEST_F(ResidualPlot, TimeCoursesArePlottedOverTime)
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

TEST_F(ResidualPlot, AllSeriesAreRedSquares)
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
  for (const int i : {1, 3})
  {
    auto* points = vtkPlotPoints::SafeDownCast(chart()->GetPlot(i));
    EXPECT_EQ(points->GetMarkerStyle(), vtkPlotPoints::SQUARE);
    EXPECT_EQ(points->GetMarkerSize(), 3.0F);
  }
}

TEST_F(ResidualPlot, TitleIsTheSameInBothViews)
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

TEST_F(ResidualPlot, TheScaleMultipliesTheObservation)
{
  course.globalScale = 2.0;
  show(course, false, false);
  EXPECT_EQ(column("Residual M 0"), (std::vector<double>{0.0, 0.0, 7.0}));
  show(course, false, true);
  EXPECT_EQ(column("Observation M 0"), (std::vector<double>{2.0, 4.0, 8.0}));
  EXPECT_EQ(column("Prediction M 0"), (std::vector<double>{2.0, 4.0, 1.0}));
}

TEST_F(ResidualPlot, AFittedScaleComesFromTheRun)
{
  course.globalScale = 2.0;
  run.parameters["Global Scale"] = 0.5F;
  show(course, false, true);
  EXPECT_EQ(column("Observation M 0")[0], 2.0) << "known but not fitted";
  course.globalScaleFitted = true;
  show(course, false, true);
  EXPECT_EQ(column("Observation M 0")[0], 0.5);
  run.parameters.clear();
  show(course, false, true);
  EXPECT_EQ(column("Observation M 0")[0], 2.0) << "fitted but not known";
}

TEST_F(ResidualPlot, AFittedScaleIsWidenedFromSinglePrecision)
{
  course.globalScaleFitted = true;
  run.parameters["Global Scale"] = 0.1F;
  EXPECT_EQ(Talmesh::plot::observationScale(run, course), static_cast<double>(0.1F));
}

TEST_F(ResidualPlot, StandardisingIgnoresEveryScale)
{
  course.standardize = true;
  course.globalScale = 2.0;
  course.globalScaleFitted = true;
  run.parameters["Global Scale"] = 0.5F;
  predictions = {{1.0, 2.0, 3.0}, {10.0, 30.0, 20.0}};
  for (const bool normalize : {false, true})
  {
    course.normalizeToReference = normalize;
    show(course, false, true);
    EXPECT_EQ(column("Prediction M 0"), (std::vector<double>{-1.0, 0.0, 1.0}));
    EXPECT_EQ(column("Prediction P 1"), (std::vector<double>{-1.0, 1.0, 0.0}));
    EXPECT_EQ(column("Observation M 0"), (std::vector<double>{1.0, 2.0, 4.0}));
  }
  EXPECT_EQ(predictions[0], (std::vector<double>{-1.0, 0.0, 1.0})) << "the caller sees them";
}

TEST_F(ResidualPlot, NormalisingHalvesARowOfReferenceTwo)
{
  course.normalizeToReference = true;
  course.globalScale = 4.0;
  show(course, false, true);
  EXPECT_EQ(predictions[0], (std::vector<double>{1.0, 2.0, 0.5}));
  EXPECT_EQ(predictions[1], (std::vector<double>{1.0, 3.0, 3.75}));
  EXPECT_EQ(column("Observation M 0")[0], 4.0) << "the scale is kept";
}

TEST_F(ResidualPlot, NormalisingTakesTheReciprocalBeforeTheRowChanges)
{
  course.normalizeToReference = true;
  course.referenceIndex = 1;
  show(course, false, true);
  EXPECT_EQ(predictions[0], (std::vector<double>{0.5, 1.0, 0.25}));
}

TEST_F(ResidualPlot, AReferenceOutsideARowLeavesItAlone)
{
  course.normalizeToReference = true;
  predictions = {{2.0, 4.0}, {8.0, 24.0, 4.0}};
  course.referenceIndex = 2;
  show(course, false, true);
  EXPECT_EQ(predictions, (Rows{{2.0, 4.0}, {2.0, 6.0, 1.0}}));
  for (const int index : {-1, 3, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
  {
    course.referenceIndex = index;
    show(course, false, true);
    EXPECT_EQ(predictions, (Rows{{2.0, 4.0}, {2.0, 6.0, 1.0}})) << index;
  }
}

TEST_F(ResidualPlot, AZeroReferenceMakesTheRowInfinite)
{
  course.normalizeToReference = true;
  predictions = {{0.0, 4.0, -1.0}, {8.0, 24.0, 30.0}};
  VtkErrors errors;
  show(course, false, true);
  EXPECT_TRUE(std::isnan(predictions[0][0]));
  EXPECT_EQ(predictions[0][1], inf);
  EXPECT_EQ(predictions[0][2], -inf);
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ResidualPlot, WhatIsMissingIsNan)
{
  predictions = {{2.0}};
  course.errors = {{0.5, 0.25}};
  course.outputs.pop_back();
  VtkErrors errors;
  show(course, true, false);
  EXPECT_EQ(columnNames(), (std::vector<std::string>{"Time", "Residual M 0", "Residual  1"}));
  EXPECT_EQ(column("Residual M 0")[0], -2.0);
  EXPECT_TRUE(std::isnan(column("Residual M 0")[1]));
  EXPECT_TRUE(std::isnan(column("Residual  1")[0]));
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1) << "one plot per row of predictions";
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ResidualPlot, ColumnsOfDifferentLengthAreFilledWithNan)
{
  course.observations = {{1.0, 2.0, 4.0, 5.0}, {10.0}};
  VtkErrors errors;
  show(course, false, true);
  EXPECT_EQ(table()->GetNumberOfRows(), 4);
  EXPECT_EQ(table()->GetNumberOfColumns(), 5);
  EXPECT_TRUE(std::isnan(column("Time")[3]));
  EXPECT_TRUE(std::isnan(column("Prediction M 0")[3]));
  EXPECT_EQ(column("Observation M 0")[3], 5.0);
  EXPECT_TRUE(std::isnan(column("Observation P 1")[1]));
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ResidualPlot, MorePredictionsThanObservationsGiveEmptyPlots)
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

TEST_F(ResidualPlot, ZeroErrorsAndEmptyFitsPaintWithoutComplaint)
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

TEST_F(ResidualPlot, AxesFitTheData)
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

TEST_F(ResidualPlot, TheXYChartIsUsedAgain)
{
  vtkChartXY* before = chart();
  show(course, false, false);
  show(course, false, false);
  EXPECT_EQ(chart(), before);
  EXPECT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_EQ(chart()->GetScene(), scene.scene());
}

TEST_F(ResidualPlot, AMissingXYChartIsMadeAndShown)
{
  container.setPlotStyle(::scatterPlotMatrix);
  container.redraw();
  ASSERT_EQ(chart(), nullptr);
  show(course, false, false);
  ASSERT_NE(chart(), nullptr);
  EXPECT_EQ(container.getItem(), chart());
  EXPECT_EQ(chart()->GetScene(), scene.scene());
}

TEST_F(ResidualPlot, NoSceneIsNeeded)
{
  VtkErrors errors;
  PlotContainer hidden(nullptr);
  hidden.setResidualPlot(&run, &course, predictions, false, false);
  EXPECT_EQ(hidden.getChartXY()->GetNumberOfPlots(), 2);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ResidualPlot, ACellOfTheMatrixIsNotUsed)
{
  container.getChartMatrix()->SetSize(vtkVector2i(1, 1));
  auto* cell = vtkChartXY::SafeDownCast(container.getChartMatrix()->GetChart(vtkVector2i(0, 0)));
  ASSERT_NE(cell, nullptr);
  container.state().chartXY = cell;
  container.state().currentChart = container.getChartMatrix();
  show(course, false, false);
  EXPECT_NE(chart(), cell);
  EXPECT_EQ(container.getItem(), chart());
  EXPECT_EQ(cell->GetNumberOfPlots(), 0);
}

TEST_F(ResidualPlot, SettingsSpeakAgainAfterwards)
{
  container.getMetaData()->blockSignals(true);
  show(course, false, false);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(ResidualPlot, NullRecordsAreIgnored)
{
  vtkTable* before = table();
  container.setResidualPlot(nullptr, &course, predictions, false, false);
  container.setResidualPlot(&run, nullptr, predictions, false, false);
  EXPECT_EQ(table(), before);
}

TEST_F(ResidualPlot, PointsAreSeen)
{
  show(course, false, true);
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 1000);
}

} // namespace

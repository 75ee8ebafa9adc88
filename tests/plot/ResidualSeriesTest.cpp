#include "support/VtkErrors.h"

#include <vtkPlotLine.h>
#include <vtkPlotPoints.h>

#include <cmath>
#include <limits>

#include "ResidualFixture.h"

using SampleRuns::valuesOf;

namespace
{

constexpr double unbounded = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// What every plot of the fit looks like in a container of style 0.
class ResidualSeries : public ResidualFixture
{
protected:
  vtkAxis* left() { return chart()->GetAxis(vtkAxis::LEFT); }
  vtkPlotPoints* plot(int index) { return vtkPlotPoints::SafeDownCast(chart()->GetPlot(index)); }

  void expectUntouchedMarkers(int index, vtkPlotPoints* fresh)
  {
    EXPECT_EQ(plot(index)->GetMarkerStyle(), fresh->GetMarkerStyle()) << index;
    EXPECT_EQ(plot(index)->GetMarkerSize(), fresh->GetMarkerSize()) << index;
  }

  void expectPaintsOnFiniteAxes()
  {
    scene.render(container);
    for (vtkAxis* axis : {left(), chart()->GetAxis(vtkAxis::BOTTOM)})
    {
      EXPECT_TRUE(std::isfinite(axis->GetMinimum()));
      EXPECT_TRUE(std::isfinite(axis->GetMaximum()));
      EXPECT_LE(axis->GetMinimum(), axis->GetMaximum());
    }
  }
};

TEST_F(ResidualSeries, PredictionsBeyondTheObservationsAreLeftOut)
{
  for (FitSettings* data : {&course, static_cast<FitSettings*>(&other)})
  {
    data->observations = {{1.0, 2.0, 4.0, 5.0}, {10.0}};
    show(*data, false, true);
    const std::vector<double> kept = column("Prediction P 1");
    ASSERT_EQ(kept.size(), 4U);
    EXPECT_EQ(kept[0], 8.0);
    for (const std::size_t row : {1U, 2U, 3U})
      EXPECT_TRUE(std::isnan(kept[row])) << row;
    EXPECT_EQ(column("Prediction M 0")[2], 1.0);
    EXPECT_EQ(predictions[1].size(), 3U) << "the caller's stay";
  }
}

TEST_F(ResidualSeries, OnlyTheFirstPlotIsMarkedWithSquares)
{
  vtkNew<vtkPlotPoints> freshPoints;
  for (FitSettings* data : {&course, static_cast<FitSettings*>(&other)})
  {
    show(*data, false, false);
    ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
    EXPECT_EQ(plot(0)->GetMarkerStyle(), vtkPlotPoints::SQUARE);
    EXPECT_EQ(plot(0)->GetMarkerSize(), 3.0F);
    expectUntouchedMarkers(1, freshPoints);
  }
  EXPECT_EQ(container.getMetaData()->markerStyle, 3);
  EXPECT_EQ(container.getMetaData()->pointSize, 3.0);
}

TEST_F(ResidualSeries, OnlyTheFirstLineIsMarkedWithSquaresSideBySide)
{
  vtkNew<vtkPlotPoints> freshPoints;
  vtkNew<vtkPlotLine> freshLine;
  show(course, false, true);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 4);
  EXPECT_EQ(plot(0)->GetMarkerStyle(), vtkPlotPoints::SQUARE);
  EXPECT_EQ(plot(0)->GetMarkerSize(), 3.0F);
  expectUntouchedMarkers(1, freshPoints);
  expectUntouchedMarkers(2, freshLine);
  expectUntouchedMarkers(3, freshPoints);
}

TEST_F(ResidualSeries, TheSizeReachesNoPlotInOtherStyles)
{
  vtkNew<vtkPlotPoints> fresh;
  container.getMetaData()->blockSignals(true);
  container.setPlotStyle(scatterWithErrorBars);
  show(course, false, false);
  EXPECT_EQ(plot(0)->GetMarkerStyle(), vtkPlotPoints::SQUARE);
  EXPECT_EQ(plot(0)->GetMarkerSize(), fresh->GetMarkerSize());
  EXPECT_EQ(container.getMetaData()->pointSize, 3.0);
}

TEST_F(ResidualSeries, TheLeftAxisIsRoundedBeforeTheFirstPaint)
{
  show(course, false, false);
  scene.render(container);
  left()->SetUnscaledRange(0.3, 9.7);
  show(course, false, false);
  EXPECT_EQ(left()->GetMinimum(), 0.0);
  EXPECT_EQ(left()->GetMaximum(), 10.0);
  const std::vector<double> ticks = valuesOf(left()->GetTickPositions());
  ASSERT_FALSE(ticks.empty());
  EXPECT_EQ(ticks.front(), 0.0);
  EXPECT_EQ(ticks.back(), 10.0);
}

/// What makes every value of an output infinite or NaN.
class UnusableResiduals : public ResidualSeries
{
protected:
  /// Leaves one output, so that no other gives the axes a range.
  void keepOneOutput()
  {
    predictions.resize(1);
    other.observations.resize(1);
    other.errors.resize(1);
    other.outputs.resize(1);
  }

  VtkErrors errors;
};

TEST_F(UnusableResiduals, OfAZeroReferencePaintOverTheRowIndex)
{
  keepOneOutput();
  other.normalizeToReference = true;
  predictions = {{0.0, 4.0, -1.0}};
  show(other, false, false);
  EXPECT_EQ(column("Residual M 0")[1], -unbounded);
  expectPaintsOnFiniteAxes();
  predictions = {{0.0, 4.0, -1.0}};
  show(other, false, true);
  expectPaintsOnFiniteAxes();
  EXPECT_EQ(errors.text(), "");
}

TEST_F(UnusableResiduals, OfMissingValuesPaintOverTheRowIndex)
{
  keepOneOutput();
  predictions = {{}};
  show(other, false, false);
  EXPECT_TRUE(std::isnan(column("Residual M 0")[0]));
  expectPaintsOnFiniteAxes();
  other.observations = {{nan, nan, nan}};
  show(other, false, true);
  expectPaintsOnFiniteAxes();
  EXPECT_EQ(errors.text(), "");
}

TEST_F(UnusableResiduals, OfZeroErrorsPaintOverTheRowIndex)
{
  keepOneOutput();
  other.errors = {{0.0, 0.0, 0.0}};
  show(other, true, false);
  EXPECT_EQ(column("Residual M 0")[0], -unbounded);
  expectPaintsOnFiniteAxes();
  EXPECT_EQ(errors.text(), "");
}

TEST_F(UnusableResiduals, LeaveTheOtherOutputsOnTheAxes)
{
  other.errors[0] = {0.0, 0.0, 0.0};
  show(other, true, false);
  expectPaintsOnFiniteAxes();
  EXPECT_LE(left()->GetMinimum(), -2.0);
  EXPECT_GE(left()->GetMaximum(), 2.0);
  EXPECT_LT(left()->GetMaximum(), 10.0);
}

} // namespace

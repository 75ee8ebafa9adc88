#include "plot/PlotState.h"
#include "support/PageFixture.h"
#include "support/ParameterStudy.h"
#include "support/SampleRuns.h"

#include <vtkAxis.h>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace
{

using Values = std::vector<double>;
using Labels = std::vector<std::string>;

constexpr int runs = 20;
constexpr int points = 2;

/// Pages with logarithmic parameter axes, of runs whose k1 is 10 to evenly spaced powers.
class DecadeTicks : public PageFixture
{
protected:
  void draw(plotStyles style, double lowestPower, double highestPower, double lowerBound = 1e-3)
  {
    const auto study = parameterStudy(runs, points, 2);
    for (int row = 0; row < runs * points; ++row)
      study->values[3][row] =
          std::pow(10.0, lowestPower + (highestPower - lowestPower) * (row / points) / (runs - 1));
    study->parameterRanges[0] = {lowerBound, std::pow(10.0, highestPower)};
    container.setScene(scene.scene());
    settings().setLogParameterAxes(true);
    container.setPlotStyle(style);
    container.setLinePlotTable(study, true);
  }

  vtkAxis* axis() { return cell(0, 0)->GetAxis(vtkAxis::BOTTOM); }
  Values positions() { return SampleRuns::valuesOf(axis()->GetTickPositions()); }
  Labels labels()
  {
    Labels texts;
    for (vtkIdType i = 0; i < axis()->GetTickLabels()->GetNumberOfValues(); ++i)
      texts.push_back(axis()->GetTickLabels()->GetValue(i));
    return texts;
  }
};

TEST_F(DecadeTicks, StandAtPowersOfTenBelowADistribution)
{
  draw(selectionCdfPlot, -3, 4);
  EXPECT_EQ(positions(), Values({-3, 0, 3}));
  EXPECT_EQ(labels(), Labels({"0.001", "1", "1000"}));
  scene.render(container);
  EXPECT_TRUE(axis()->GetLogScaleActive());
  EXPECT_EQ(positions(), Values({-3, 0, 3}));
}

TEST_F(DecadeTicks, StandAtPowersOfTenBelowPairs)
{
  draw(multiPlot, -6, 6);
  EXPECT_EQ(positions(), Values({-4, 0, 4}));
  EXPECT_EQ(labels(), Labels({"1e-4", "1", "1e4"}));
  scene.render(container);
  EXPECT_TRUE(axis()->GetLogScaleActive());
}

TEST_F(DecadeTicks, StandAtPowersOfTenBelowADensityBetweenPositiveBounds)
{
  settings().setUseDensity(true);
  draw(selectionCdfPlot, -3, 4);
  EXPECT_EQ(labels(), Labels({"0.001", "1", "1000"}));
  scene.render(container);
  EXPECT_TRUE(axis()->GetLogScaleActive());
}

TEST_F(DecadeTicks, AreLeftToVtkBelowADensityThatBeginsAtZero)
{
  settings().setUseDensity(true);
  draw(selectionCdfPlot, -3, 4, 0.0);
  EXPECT_EQ(positions(), Values());
  scene.render(container);
  // VTK draws an axis that reaches zero on a linear scale, where every label is its position.
  ASSERT_FALSE(axis()->GetLogScaleActive());
  const Values shown = positions();
  const Labels texts = labels();
  ASSERT_GT(shown.size(), 1U);
  for (std::size_t i = 0; i < shown.size(); ++i)
    EXPECT_NEAR(std::stod(texts[i]), shown[i], 1e-6 * std::abs(shown[i])) << texts[i];
}

TEST_F(DecadeTicks, AreLeftToVtkOverAFewDecades)
{
  draw(selectionCdfPlot, -1, 2);
  EXPECT_EQ(positions(), Values());
}

TEST_F(DecadeTicks, AreLeftToVtkOnLinearAxes)
{
  draw(multiPlot, -6, 6);
  settings().setLogParameterAxes(false);
  EXPECT_EQ(positions(), Values());
}

} // namespace

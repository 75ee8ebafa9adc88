#include "plot/DistributionChart.h"

#include "external/Distribution.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/PlotScene.h"
#include "support/SampleRuns.h"
#include "support/VtkErrors.h"
#include "vtk/vtkPlotShiftedStack.h"

#include <vtkAxis.h>
#include <vtkBrush.h>
#include <vtkFloatArray.h>
#include <vtkPlotStacked.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

using SampleRuns::valuesOf;

namespace
{

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// Any density on any range.
class Curve : public Distribution
{
public:
  Curve(double lo, double hi, std::function<double(double)> f)
      : low(lo)
      , high(hi)
      , function(std::move(f))
  {
  }
  int kind() const override { return 77; }
  double density(double x) const override { return function(x); }
  std::pair<double, double> range(int extent) const override
  {
    askedExtent = extent;
    return {low, high};
  }

  mutable int askedExtent = 0;

private:
  double low;
  double high;
  std::function<double(double)> function;
};

class DistributionChart : public ::testing::Test
{
protected:
  DistributionChart() { container.setScene(scene.scene()); }

  vtkTable* table() { return container.getTable(); }
  vtkChartXY* chart() { return container.getChartXY(); }
  vtkAxis* left() { return chart()->GetAxis(vtkAxis::LEFT); }
  vtkAxis* bottom() { return chart()->GetAxis(vtkAxis::BOTTOM); }
  std::vector<double> x() { return valuesOf(table(), "x"); }
  std::vector<double> pdf() { return valuesOf(table(), "pdf"); }

  PlotScene scene;
  PlotContainer container{nullptr};
};

TEST_F(DistributionChart, UniformDensityHasFiftyEvenPoints)
{
  UniformDistribution uniform(0.0, 1.0);
  container.setDistribution(&uniform);
  ASSERT_EQ(table()->GetNumberOfColumns(), 2);
  EXPECT_STREQ(table()->GetColumnName(0), "x");
  EXPECT_STREQ(table()->GetColumnName(1), "pdf");
  EXPECT_NE(vtkFloatArray::SafeDownCast(table()->GetColumn(0)), nullptr);
  EXPECT_NE(vtkFloatArray::SafeDownCast(table()->GetColumn(1)), nullptr);
  ASSERT_EQ(table()->GetNumberOfRows(), 50);
  for (int i = 0; i < 50; ++i)
    EXPECT_EQ(x()[static_cast<std::size_t>(i)], static_cast<float>(i * (1.0 / 49))) << i;
  EXPECT_EQ(pdf(), std::vector<double>(50, 1.0));
  EXPECT_EQ(left()->GetMinimum(), 0.0);
  EXPECT_EQ(left()->GetMaximum(), 1.05);
}

TEST_F(DistributionChart, PointsRunFromEndToEndOfTheRange)
{
  Curve curve(-3.0, 11.0, [](double at) { return at; });
  container.setDistribution(&curve);
  EXPECT_EQ(curve.askedExtent, 1);
  EXPECT_EQ(x().front(), -3.0);
  EXPECT_FLOAT_EQ(static_cast<float>(x().back()), 11.0F);
  EXPECT_EQ(left()->GetMaximum(), 1.05 * (49 * (14.0 / 49) - 3.0));
}

TEST_F(DistributionChart, OfTheLargestDensitiesIsPainted)
{
  for (const double density : {1e308, 1.7e308, std::numeric_limits<double>::max()})
  {
    Curve curve(0.0, 1.0, [density](double) { return density; });
    container.setDistribution(&curve);
    EXPECT_EQ(left()->GetMaximum(), std::min(1.05 * density, std::numeric_limits<double>::max()));
    scene.render(container);
    EXPECT_EQ(left()->GetMinimum(), 0.0);
    EXPECT_GE(left()->GetMaximum(), density);
  }
}

TEST_F(DistributionChart, APointMassIsASpike)
{
  PointMassDistribution fixed(4.0);
  container.setDistribution(&fixed);
  EXPECT_EQ(x(), (std::vector<double>{2.0, 3.92F, 4.0, static_cast<float>(4.0 / 0.98), 8.0}));
  EXPECT_EQ(pdf(), (std::vector<double>{0, 0, 1, 0, 0}));
  EXPECT_NEAR(x()[3], 4.0816, 1e-4);
  EXPECT_EQ(left()->GetMinimum(), 0.0);
  EXPECT_EQ(left()->GetMaximum(), 0.0);
}

TEST_F(DistributionChart, TheRangeOfAPointMassStaysEmptyWhenPainted)
{
  VtkErrors errors;
  for (const double value : {4.0, 0.0, -2.0, 1e30})
  {
    PointMassDistribution fixed(value);
    container.setDistribution(&fixed);
    scene.render(container);
    EXPECT_EQ(left()->GetMinimum(), 0.0) << value;
    EXPECT_EQ(left()->GetMaximum(), 0.0) << value;
  }
  EXPECT_EQ(errors.text(), "");
}

TEST_F(DistributionChart, DensitiesThatAreNotFiniteAreStoredAndIgnoredByTheMaximum)
{
  Curve curve(0.0, 49.0,
              [](double at) {
                return at < 1 ? nan : at < 2 ? inf : at < 3 ? -inf : 2.0;
              });
  VtkErrors errors;
  container.setDistribution(&curve);
  EXPECT_TRUE(std::isnan(pdf()[0]));
  EXPECT_EQ(pdf()[1], inf);
  EXPECT_EQ(pdf()[2], -inf);
  EXPECT_EQ(pdf()[3], 2.0);
  EXPECT_EQ(left()->GetMaximum(), 2.1);
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(DistributionChart, TheMaximumIsAtLeastZero)
{
  Curve negative(0.0, 1.0, [](double) { return -1.0; });
  container.setDistribution(&negative);
  EXPECT_EQ(left()->GetMinimum(), 0.0);
  EXPECT_EQ(left()->GetMaximum(), 0.0);
}

TEST_F(DistributionChart, LabelsGetCoarserWithTheWidth)
{
  const std::vector<std::pair<double, int>> decimals{{0.0, 2},  {1.0, 2},   {9.99, 2}, {10.0, 1},
                                                     {99.9, 1}, {100.0, 0}, {1e9, 0},  {-5.0, 2}};
  for (const auto& [width, expected] : decimals)
  {
    Curve curve(0.0, width, [](double) { return 1.0; });
    container.setDistribution(&curve);
    EXPECT_EQ(bottom()->GetPrecision(), expected) << width;
  }
}

TEST_F(DistributionChart, AxesAreBare)
{
  container.getMetaData()->xLabel = "x label";
  container.getMetaData()->yLabel = "y label";
  container.redraw();
  UniformDistribution uniform(0.0, 1.0);
  container.setDistribution(&uniform);
  EXPECT_EQ(left()->GetBehavior(), vtkAxis::FIXED);
  EXPECT_FALSE(left()->GetTicksVisible());
  EXPECT_FALSE(left()->GetLabelsVisible());
  EXPECT_EQ(left()->GetTitle(), "");
  EXPECT_EQ(left()->GetMargins()[0], 0);
  EXPECT_EQ(left()->GetMargins()[1], 0);
  EXPECT_EQ(bottom()->GetTitle(), "");
  EXPECT_EQ(bottom()->GetNumberOfTicks(), 3);
  EXPECT_EQ(bottom()->GetNotation(), vtkAxis::FIXED_NOTATION);
  EXPECT_EQ(chart()->GetTitle(), "");
  EXPECT_EQ(container.getMetaData()->title, "");
}

TEST_F(DistributionChart, TheCurveIsOneBlueArea)
{
  NormalDistribution normal(5.0, 2.0);
  container.setDistribution(&normal);
  container.setDistribution(&normal);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 1);
  auto* area = vtkPlotStacked::SafeDownCast(chart()->GetPlot(0));
  ASSERT_NE(area, nullptr);
  const unsigned char* color = area->GetBrush()->GetColor();
  EXPECT_EQ((std::vector<int>{color[0], color[1], color[2], color[3]}),
            (std::vector<int>{30, 30, 230, 255}));
  EXPECT_EQ(area->GetInput(), table());
  EXPECT_FALSE(chart()->GetInteractive());
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 1000);
}

TEST_F(DistributionChart, TheCurveFollowsAShiftedChart)
{
  NormalDistribution normal(5.0, 2.0);
  container.setDistribution(&normal);
  EXPECT_NE(dynamic_cast<vtkPlotShiftedStack*>(chart()->GetPlot(0)), nullptr);
}

TEST_F(DistributionChart, RangeEndsAreFormattedButNotAttached)
{
  Curve curve(-0.5, 1250.0, [](double) { return 1.0; });
  const auto ends =
      Talmesh::plot::drawDensityCurve(stateOf(container), Talmesh::plot::densityCurve(curve));
  EXPECT_EQ(ends.positions, (std::array<double, 2>{-0.5, 1250.0}));
  EXPECT_EQ(ends.labels, (std::array<std::string, 2>{"-5.00 x 10^-1", "1.25 x 10^3"}));
  scene.render(container);
  for (vtkIdType i = 0; i < bottom()->GetTickLabels()->GetNumberOfValues(); ++i)
    EXPECT_EQ(bottom()->GetTickLabels()->GetValue(i).find(" x "), std::string::npos);
}

TEST_F(DistributionChart, RangesThatAreNotFinitePaintWithoutComplaint)
{
  VtkErrors errors;
  for (const auto& [low, high] : {std::pair{0.0, inf},
                                  {-inf, inf},
                                  {nan, 1.0},
                                  {0.0, 1e300},
                                  {-1.7e308, 1.7e308},
                                  {1.0, 1.0},
                                  {5.0, -5.0}})
  {
    Curve curve(low, high, [](double) { return 1e300; });
    container.setDistribution(&curve);
    EXPECT_EQ(table()->GetNumberOfRows(), 50);
    scene.render(container);
  }
  EXPECT_EQ(errors.text(), "");
}

TEST_F(DistributionChart, AMissingXYChartIsMadeAndShown)
{
  container.setPlotStyle(::scatterPlotMatrix);
  ASSERT_EQ(chart(), nullptr);
  UniformDistribution uniform(0.0, 1.0);
  container.setDistribution(&uniform);
  ASSERT_NE(chart(), nullptr);
  EXPECT_EQ(container.getItem(), chart());
}

TEST_F(DistributionChart, AnExceptionOfTheDistributionLeavesEverythingAsItWas)
{
  UniformDistribution uniform(0.0, 1.0);
  container.setDistribution(&uniform);
  vtkTable* before = table();
  Curve curve(0.0, 1.0, [](double) -> double { throw std::runtime_error("no density"); });
  EXPECT_THROW(container.setDistribution(&curve), std::runtime_error);
  EXPECT_EQ(table(), before);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(DistributionChart, SettingsSpeakAgainAndNullIsIgnored)
{
  container.getMetaData()->blockSignals(true);
  UniformDistribution uniform(0.0, 1.0);
  container.setDistribution(&uniform);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
  container.setDistribution(nullptr);
  EXPECT_EQ(table()->GetNumberOfRows(), 50);
}

} // namespace

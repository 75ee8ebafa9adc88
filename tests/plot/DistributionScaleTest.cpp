#include "external/Distribution.h"
#include "support/PlotFixture.h"

namespace
{

/// Distributions on a chart that showed other data on logarithmic axes.
class DistributionScale : public PlotFixture
{
protected:
  void showDecades()
  {
    container.setPlotData(tableOf({{"x", {1.0, 10.0, 100.0}}, {"y", {1.0, 10.0, 1000.0}}}));
    container.redraw();
    container.setLogScaleY(true);
    scene.render(container);
    ASSERT_TRUE(left()->GetLogScaleActive());
  }

  /// Before and after painting.
  void expectPlainLeftAxis(double maximum)
  {
    for (int painted = 0; painted < 2; ++painted)
    {
      EXPECT_FALSE(left()->GetLogScaleActive()) << painted;
      EXPECT_EQ(left()->GetMinimum(), 0.0) << painted;
      EXPECT_EQ(left()->GetMaximum(), maximum) << painted;
      EXPECT_EQ(left()->GetUnscaledMinimum(), 0.0) << painted;
      EXPECT_EQ(left()->GetUnscaledMaximum(), maximum) << painted;
      scene.render(container);
    }
  }

  UniformDistribution uniform{0.0, 1.0};
};

TEST_F(DistributionScale, OfTheDensityIsPlain)
{
  showDecades();
  container.setDistribution(&uniform);
  expectPlainLeftAxis(1.05);
}

TEST_F(DistributionScale, OfAFixedValueIsPlain)
{
  PointMassDistribution fixed(4.0);
  showDecades();
  container.setDistribution(&fixed);
  expectPlainLeftAxis(0.0);
}

/// The chart of a density takes no mouse, so other data get a new chart.
TEST_F(DistributionScale, IsThatOfANewChartForOtherData)
{
  showDecades();
  container.setDistribution(&uniform);
  scene.render(container);
  container.setPlotData(tableOf({{"x", {1.0, 10.0, 100.0}}, {"y", {1.0, 10.0, 1000.0}}}));
  container.redraw();
  scene.render(container);
  EXPECT_FALSE(left()->GetLogScaleActive());
  EXPECT_EQ(left()->GetBehavior(), vtkAxis::AUTO);
  EXPECT_EQ(left()->GetMaximum(), 1000.0);
  container.setLogScaleY(true);
  container.redraw();
  scene.render(container);
  EXPECT_TRUE(left()->GetLogScaleActive());
}

TEST_F(DistributionScale, EndsWhereTheDensityEnds)
{
  UniformDistribution far(100.0, 101.0);
  container.setDistribution(&far);
  scene.render(container);
  EXPECT_GE(bottom()->GetMinimum(), 99.0) << "zero would leave a thin spike";
  EXPECT_LE(bottom()->GetMaximum(), 102.0);
}

} // namespace

#include "external/Distribution.h"
#include "support/PlotFixture.h"

namespace
{

/// Distributions on a chart that showed other data on logarithmic axes.
class DistributionScale : public PlotFixture
{
protected:
  void showDecades(double sign)
  {
    container.setPlotData(
        tableOf({{"x", {1.0, 10.0, 100.0}}, {"y", {sign, 10.0 * sign, 1000.0 * sign}}}));
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
  for (const double sign : {1.0, -1.0})
  {
    showDecades(sign);
    container.setDistribution(&uniform);
    expectPlainLeftAxis(1.05);
  }
}

TEST_F(DistributionScale, OfAFixedValueIsPlain)
{
  PointMassDistribution fixed(4.0);
  for (const double sign : {1.0, -1.0})
  {
    showDecades(sign);
    container.setDistribution(&fixed);
    expectPlainLeftAxis(0.0);
  }
}

} // namespace

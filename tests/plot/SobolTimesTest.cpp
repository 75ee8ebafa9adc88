#include "external/PlotMetaData.h"
#include "external/SobolPostProcessResult.h"
#include "plot/PlotContainer.h"
#include "support/PlotScene.h"
#include "support/VtkErrors.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkPlot.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// The bands of one parameter over any times.
class SobolTimes : public ::testing::Test
{
protected:
  SobolTimes()
  {
    container.getMetaData()->blockSignals(true);
    container.getMetaData()->setPlotStyle(reservedStyle2);
    result.parameterValues = {1.0};
    result.parameterNames = {"k"};
    result.outputs = {{Talmesh::Molecule, "M"}};
    result.timePoints = std::make_shared<std::vector<double>>();
    result.firstOrder = std::make_shared<SobolPostProcessResult::Indices>(1);
  }

  /// @return whether the bands are drawn
  bool show(const std::vector<double>& times, std::vector<double> indices)
  {
    *result.timePoints = times;
    result.firstOrder->front().clear();
    for (const double index : indices)
      result.firstOrder->front().push_back({index});
    container.setSobolPostprocessResult(&result, false, false, 0, 0);
    return container.getChartXY()->GetPlot(0)->GetInput() != nullptr;
  }

  /// Paints, and again after the mouse has set the range anew.
  void paint()
  {
    container.setScene(scene.scene());
    scene.render(container);
    vtkAxis* bottom = container.getChartXY()->GetAxis(vtkAxis::BOTTOM);
    ASSERT_TRUE(std::isfinite(bottom->GetMinimum()));
    ASSERT_LT(bottom->GetMaximum(), 1e30);
    bottom->SetMaximum(bottom->GetMaximum() + 1.0);
    bottom->RecalculateTickSpacing();
    scene.render(container);
  }

  PlotScene scene;
  PlotContainer container{nullptr};
  SobolPostProcessResult result;
};

TEST_F(SobolTimes, ThatAreNotFiniteAreNoAxis)
{
  VtkErrors errors;
  const std::vector<std::vector<double>> odd{{5, inf, 2, inf},       {-inf, 1, 2, 3},
                                             {0, 1, 2, inf},         {0, 1e39, 2, 3},
                                             {-inf, inf, -inf, inf}, {0, 1, nan, -1e300}};
  for (const std::vector<double>& times : odd)
  {
    ASSERT_FALSE(show(times, {0.1, 0.2, 0.3, 0.4}));
    paint();
  }
  EXPECT_EQ(errors.text(), "");
}

TEST_F(SobolTimes, ThatAreNotFiniteBehindAnUnknownIndexAreNoAxis)
{
  ASSERT_FALSE(show({0, 1, inf, 3}, {nan, 0.2, 0.3, 0.4}));
  paint();
  ASSERT_FALSE(show({0, 1, 2, inf}, {0.1, inf, 0.3, 0.4}));
  paint();
}

TEST_F(SobolTimes, ThatAreFiniteAreDrawnWhateverTheIndices)
{
  VtkErrors errors;
  ASSERT_TRUE(show({3, 1, 2, 0}, {nan, inf, 0.3, nan}));
  paint();
  ASSERT_TRUE(show({3e38, 1, -2, 0}, {0.1, 0.2, 0.3, 0.4}));
  EXPECT_EQ(errors.text(), "");
}

} // namespace

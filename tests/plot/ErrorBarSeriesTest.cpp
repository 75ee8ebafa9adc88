#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/SampleTables.h"
#include "support/VtkErrors.h"

#include <vtkAxis.h>
#include <vtkPlotLine.h>

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "ErrorBarFixture.h"

namespace
{

class ErrorBarSeries : public ErrorBarFixture
{
};

using Columns = std::array<std::string, 2>;

TEST_F(ErrorBarSeries, PadsAFloatXAxisInSinglePrecisionBeforeTheFirstPaint)
{
  redraw();
  const float padding = 0.05F * (5.0F - 1.0F);
  EXPECT_EQ(bottom()->GetUnscaledMinimum(), 1.0F - padding);
  EXPECT_EQ(bottom()->GetUnscaledMaximum(), 5.0F + padding);
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
}

TEST_F(ErrorBarSeries, AXAxisThatIsNotFloatIsLeftToAutomaticScaling)
{
  redraw();
  container.setPlotData(plainTable());
  bottom()->SetUnscaledRange(-7.0, 7.0);
  redraw();
  EXPECT_EQ(bottom()->GetUnscaledMinimum(), -7.0);
  EXPECT_EQ(bottom()->GetUnscaledMaximum(), 7.0);
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
  scene.render(container);
  EXPECT_EQ(bottom()->GetMinimum(), 0.0);
  EXPECT_EQ(bottom()->GetMaximum(), 4.0);
}

TEST_F(ErrorBarSeries, AFloatColumnIsPaddedByItsFiniteValuesIfItHasAny)
{
  const double infinity = std::numeric_limits<double>::infinity();
  for (const bool finite : {true, false})
  {
    auto odd = vtkSmartPointer<vtkTable>::New();
    addFloats(odd, "x", {finite ? 0.0 : infinity, finite ? 20.0 : -infinity, infinity});
    addFloats(odd, "y", {1.0, 2.0, 3.0});
    addFloats(odd, "error", {1.0, 2.0, 1.0});
    container.setPlotData(odd);
    bottom()->SetUnscaledRange(-7.0, 7.0);
    redraw();
    EXPECT_EQ(bottom()->GetUnscaledMinimum(), finite ? -1.0 : -7.0);
    EXPECT_EQ(bottom()->GetUnscaledMaximum(), finite ? 21.0 : 7.0);
    scene.render(container);
  }
}

TEST_F(ErrorBarSeries, SecondPairOfColumnsIsALine)
{
  secondSeries({0, 3}, {1, 4});
  ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_NE(vtkPlotLine::SafeDownCast(chart()->GetPlot(1)), nullptr);
  EXPECT_EQ(chart()->GetPlot(1)->GetInput(), table());
  EXPECT_EQ(inputOf(1), (Columns{"x2", "y2"}));
  EXPECT_FALSE(chart()->GetPlot(1)->GetUseIndexForXSeries());
}

TEST_F(ErrorBarSeries, SecondSeriesNeedsTwoYColumnsAndAnX)
{
  secondSeries({0, 3}, {1});
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
  secondSeries({0}, {1, 4});
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
  container.setUseIndexForXSeries(true);
  redraw();
  ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_EQ(inputOf(1), (Columns{"x", "y2"})) << "column 0 stands in for the second x column";
  EXPECT_TRUE(chart()->GetPlot(1)->GetUseIndexForXSeries());
}

TEST_F(ErrorBarSeries, SecondSeriesComesFromTheFirstDerivedTable)
{
  const auto curve = tableOf({{"u", {0, 10, 20}}, {"v", {3, 4, 5}}});
  stateOf(container).derivedTables = {curve, table()};
  secondSeries({0, 0}, {1, 1});
  EXPECT_EQ(chart()->GetPlot(1)->GetInput(), curve);
  EXPECT_EQ(inputOf(1), (Columns{"u", "v"}));
  EXPECT_FALSE(chart()->GetPlot(1)->GetSelectable()) << "its rows are not those of the plot table";
  stateOf(container).derivedTables = {nullptr, curve};
  redraw();
  EXPECT_EQ(chart()->GetPlot(1)->GetInput(), table());
  EXPECT_TRUE(chart()->GetPlot(1)->GetSelectable());
}

TEST_F(ErrorBarSeries, SecondSeriesOutsideItsTableHasNoInput)
{
  VtkErrors errors;
  for (const auto& [x, y] : {std::pair{3, 5}, {5, 4}, {-1, 4}, {3, -1}})
  {
    secondSeries({0, x}, {1, y});
    ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
    EXPECT_EQ(chart()->GetPlot(1)->GetInput(), nullptr) << x << ' ' << y;
    scene.render(container);
  }
  stateOf(container).derivedTables = {tableOf({{"u", {0, 10}}})};
  secondSeries({0, 0}, {1, 1});
  EXPECT_EQ(chart()->GetPlot(1)->GetInput(), nullptr);
  EXPECT_EQ(errors.text(), "");
}

} // namespace

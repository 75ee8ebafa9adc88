#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"
#include "support/PlotFixture.h"

#include <vtkCommand.h>

#include <gtest/gtest.h>

#include <limits>

#include "ErrorBarFixture.h"

namespace
{

constexpr double lowest = -std::numeric_limits<double>::max();
constexpr double highest = std::numeric_limits<double>::max();

TEST(AxisRange, IsInUnitsOfTheDataOnEveryScale)
{
  vtkNew<vtkAxis> axis;
  for (const bool logarithmic : {false, true, true, false})
  {
    axis->SetLogScale(logarithmic);
    Talmesh::plot::fixRange(axis, 10, 100);
    EXPECT_EQ(axis->GetLogScaleActive(), logarithmic);
    EXPECT_EQ(axis->GetUnscaledMinimum(), 10);
    EXPECT_EQ(axis->GetUnscaledMaximum(), 100);
    EXPECT_DOUBLE_EQ(axis->GetMinimum(), logarithmic ? 1 : 10);
    EXPECT_DOUBLE_EQ(axis->GetMaximum(), logarithmic ? 2 : 100);
    EXPECT_EQ(axis->GetBehavior(), vtkAxis::FIXED);
  }
}

TEST(AxisRange, ThatHoldsZeroIsLinearUntilAnotherComes)
{
  vtkNew<vtkAxis> axis;
  axis->SetLogScale(true);
  Talmesh::plot::setDataRange(axis, 1, 10);
  Talmesh::plot::setDataRange(axis, -5, 5);
  EXPECT_TRUE(axis->GetLogScale());
  EXPECT_FALSE(axis->GetLogScaleActive());
  EXPECT_EQ(axis->GetMinimum(), -5);
  EXPECT_EQ(axis->GetMaximum(), 5);
  Talmesh::plot::setDataRange(axis, 1, 10);
  EXPECT_TRUE(axis->GetLogScaleActive());
}

TEST(AxisRange, OfALogarithmicAxisDoesNotLimitTheLinearOne)
{
  vtkNew<vtkAxis> axis;
  axis->SetLogScale(true);
  for (const double end : {10, 100, 1000})
    Talmesh::plot::setDataRange(axis, 0.1 * end, end);
  axis->SetLogScale(false);
  EXPECT_EQ(axis->GetMinimumLimit(), lowest);
  EXPECT_EQ(axis->GetMaximumLimit(), highest);
}

TEST(AxisRange, KeepsLimitsThatAClientSet)
{
  vtkNew<vtkAxis> axis;
  axis->SetUnscaledMinimumLimit(-50);
  axis->SetUnscaledMaximumLimit(500);
  axis->SetLogScale(true);
  for (const double end : {10, 100, 1000})
    Talmesh::plot::setDataRange(axis, 0.1 * end, end);
  axis->SetLogScale(false);
  EXPECT_EQ(axis->GetMinimumLimit(), -50);
  EXPECT_EQ(axis->GetMaximumLimit(), 500);
  EXPECT_EQ(axis->GetMaximum(), 500);
}

/// Columns 0 and 1 are positive, column 2 is not.
class AxisLimits : public PlotFixture
{
protected:
  AxisLimits()
  {
    container.setPlotData(
        tableOf({{"x", {1, 10, 100}}, {"y", {2, 20, 200}}, {"signed", {-40, 0, 40}}}));
    choose(0, 1);
  }

  void choose(int x, int y)
  {
    settings().xColumns = {x};
    settings().yColumns = {y};
    draw();
  }

  void draw()
  {
    container.redraw();
    scene.render(container);
  }

  void zoom(double xMin, double xMax, double yMin, double yMax)
  {
    bottom()->SetRange(xMin, xMax);
    left()->SetRange(yMin, yMax);
    chart()->InvokeEvent(vtkCommand::InteractionEvent);
  }

  void expectWindow(vtkAxis* axis, double minimum, double maximum)
  {
    EXPECT_DOUBLE_EQ(axis->GetMinimum(), minimum);
    EXPECT_DOUBLE_EQ(axis->GetMaximum(), maximum);
  }

  void expectUnlimited(vtkAxis* axis)
  {
    EXPECT_EQ(axis->GetMinimumLimit(), lowest);
    EXPECT_EQ(axis->GetMaximumLimit(), highest);
  }
};

TEST_F(AxisLimits, OfTheBottomAxisAreGoneWithTheLogarithms)
{
  settings().setLogX(true);
  draw();
  zoom(0.5, 1.5, 2, 20);
  choose(0, 2);
  EXPECT_TRUE(bottom()->GetLogScaleActive());
  choose(0, 1);
  expectWindow(bottom(), 0.5, 1.5);
  settings().setLogX(false);
  choose(2, 1);
  EXPECT_LE(bottom()->GetMinimum(), -40) << "all of the data are shown";
  EXPECT_GE(bottom()->GetMaximum(), 40);
  expectUnlimited(bottom());
  zoom(-30, -10, 2, 20);
  draw();
  expectWindow(bottom(), -30, -10);
}

TEST_F(AxisLimits, OfTheLeftAxisAreGoneWithTheLogarithms)
{
  container.setLogScaleY(true);
  draw();
  zoom(10, 50, 0.5, 1.5);
  choose(1, 0);
  EXPECT_TRUE(left()->GetLogScaleActive());
  zoom(10, 50, 0.25, 1.75);
  choose(0, 1);
  expectWindow(left(), 0.5, 1.5);
  container.setLogScaleY(false);
  choose(0, 2);
  expectUnlimited(left());
  zoom(10, 50, -30, -10);
  draw();
  expectWindow(left(), -30, -10);
}

TEST_F(AxisLimits, AreGoneAfterAnotherStyleInBetween)
{
  settings().setLogX(true);
  draw();
  zoom(0.5, 1.5, 2, 20);
  drawStyle(scatterPlotMatrix);
  scene.render(container);
  drawStyle(xyPlot);
  scene.render(container);
  expectWindow(bottom(), 0.5, 1.5);
  settings().setLogX(false);
  choose(2, 1);
  EXPECT_LE(bottom()->GetMinimum(), -40);
  expectUnlimited(bottom());
}

TEST_F(AxisLimits, LetALogarithmicAxisBePaddedInUnitsOfTheData)
{
  settings().setLogX(true);
  draw();
  ASSERT_TRUE(bottom()->GetLogScaleActive());
  container.redraw();
  EXPECT_DOUBLE_EQ(bottom()->GetUnscaledMinimum(), 1 - 0.05 * 99);
  EXPECT_DOUBLE_EQ(bottom()->GetUnscaledMaximum(), 100 + 0.05 * 99);
  scene.render(container);
  EXPECT_TRUE(bottom()->GetLogScaleActive()) << "the data alone are positive";
  EXPECT_LE(bottom()->GetMinimum(), 0);
  EXPECT_GE(bottom()->GetMaximum(), 2);
  EXPECT_LT(bottom()->GetMaximum(), 3);
}

class ErrorBarLimits : public ErrorBarFixture
{
};

TEST_F(ErrorBarLimits, AreGoneWithTheLogarithms)
{
  settings().setLogX(true);
  for (int i = 0; i < 3; ++i)
  {
    redraw();
    scene.render(container);
    EXPECT_TRUE(bottom()->GetLogScaleActive());
  }
  auto signedPlaces = measurements();
  addFloats(signedPlaces, "x", {-40, -20, 20, 40});
  settings().setLogX(false);
  container.setPlotData(signedPlaces);
  redraw();
  scene.render(container);
  EXPECT_LE(bottom()->GetMinimum(), -40);
  EXPECT_EQ(bottom()->GetMinimumLimit(), lowest);
}

} // namespace

#include "external/PlotMetaData.h"
#include "support/PlotFixture.h"
#include "support/RecordingDevice.h"
#include "support/SoundPicture.h"

#include <vtkContext2D.h>
#include <vtkRect.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace
{

using Values = std::vector<double>;

/// Column 0 counts, the others are given.
class LogScales : public PlotFixture
{
protected:
  void show(const Values& y, const Values& x = {1, 2, 3, 4, 5})
  {
    container.setPlotData(tableOf({{"x", Values(x.begin(), x.begin() + y.size())}, {"y", y}}));
    settings().xColumns = {0};
    settings().yColumns = {1};
    container.redraw();
  }

  void render() { expectSoundPicture(scene, container); }

  void expectLogarithmic(double low, double high)
  {
    EXPECT_TRUE(container.showsLogScaleY());
    EXPECT_TRUE(left()->GetLogScaleActive());
    EXPECT_LE(left()->GetMinimum(), std::log10(low));
    EXPECT_GE(left()->GetMaximum(), std::log10(high));
  }

  void expectMarkersAtLogarithms(const Values& y)
  {
    RecordingPainter recording;
    ASSERT_TRUE(points()->Paint(recording.painter));
    const auto markers = recording.device->calls(RecordingDevice::Kind::Markers);
    ASSERT_EQ(markers.size(), 1U);
    ASSERT_EQ(markers[0].points.size(), y.size());
    const vtkRectd moved = points()->GetShiftScale();
    for (std::size_t i = 0; i < y.size(); ++i)
      EXPECT_NEAR(markers[0].points[i].second / moved.GetHeight() - moved.GetY(), std::log10(y[i]),
                  1e-4);
  }

  void expectLinear(double low, double high)
  {
    EXPECT_FALSE(container.showsLogScaleY());
    EXPECT_FALSE(left()->GetLogScaleActive());
    EXPECT_LE(left()->GetMinimum(), low);
    EXPECT_GE(left()->GetMaximum(), high);
  }
};

TEST_F(LogScales, PaintDecaysToNothing)
{
  container.setLogScaleY(true);
  for (const double last : {1e-299, 1e-306, 1e-310, std::numeric_limits<double>::denorm_min()})
  {
    show({1.0, 1e-5, last});
    render();
    expectLogarithmic(1e-299, 1.0);
    EXPECT_GE(left()->GetMinimum(), -307.0);
  }
}

TEST_F(LogScales, PaintDecaysToNothingAlongTheBottomAxis)
{
  settings().setLogX(true);
  show({1.0, 2.0, 3.0}, {1e-310, 1e-5, 1.0});
  render();
  EXPECT_TRUE(bottom()->GetLogScaleActive());
  EXPECT_TRUE(container.showsLogScaleX());
  EXPECT_LE(bottom()->GetMinimum(), -299.0);
}

TEST_F(LogScales, ShowValuesThatSinglePrecisionCannotHold)
{
  container.setLogScaleY(true);
  for (const Values& y :
       {Values{1e-50, 1e-44, 1e-40}, Values{3e-39, 4e-39, 5e-39}, Values{1e40, 1e45, 1e50}})
  {
    show(y);
    render();
    expectLogarithmic(y.front(), y.back());
    expectMarkersAtLogarithms(y);
  }
}

TEST_F(LogScales, AreLinearWhereVtkTakesTheEndsForZero)
{
  container.setLogScaleY(true);
  show({1e-200, 2e-200, 3e-200});
  render();
  EXPECT_FALSE(container.showsLogScaleY());
}

TEST_F(LogScales, OfPaintedDataComeWithTheNextPicture)
{
  show({1.0, 10.0, 1000.0});
  render();
  ASSERT_EQ(left()->GetMinimum(), 0.0) << "rounded";
  container.setLogScaleY(true);
  expectLogarithmic(1.0, 1000.0);
  render();
  expectLogarithmic(1.0, 1000.0);
  EXPECT_EQ(left()->GetMinimum(), 0.0);
  EXPECT_EQ(left()->GetMaximum(), 3.0);
  container.setLogScaleY(false);
  render();
  expectLinear(1.0, 1000.0);
}

TEST_F(LogScales, EndWithDataThatCrossZeroAndComeBackWithoutThem)
{
  container.setLogScaleY(true);
  show({1.0, 10.0, 1000.0});
  render();
  expectLogarithmic(1.0, 1000.0);
  for (const Values& refused : {Values{0, 1, 2, 0, -1}, Values{-3, -2, -1}, Values{0, 0, 0}})
  {
    show(refused);
    EXPECT_FALSE(container.showsLogScaleY()) << "also before it is painted";
    render();
    expectLinear(*std::min_element(refused.begin(), refused.end()),
                 *std::max_element(refused.begin(), refused.end()));
    EXPECT_TRUE(left()->GetLogScale()) << "still asked for";
    show({2.0, 20.0, 200.0});
    EXPECT_TRUE(container.showsLogScaleY());
    render();
    expectLogarithmic(2.0, 200.0);
  }
}

TEST_F(LogScales, ShowEveryValueOfARefusedAxis)
{
  show({0, 1, 2, 0, -1});
  render();
  const int painted = scene.paintedPixels();
  show({1, 10, 1000, 10, 1});
  container.setLogScaleY(true);
  render();
  show({0, 1, 2, 0, -1});
  render();
  EXPECT_EQ(scene.paintedPixels(), painted) << "the picture that a linear axis gives";
}

TEST_F(LogScales, OfARefusedAxisDoNotComeWithAWindowBesideZero)
{
  container.setLogScaleY(true);
  show({0, 1, 2, 0, -1});
  render();
  left()->SetRange(0.5, 2.0);
  render();
  EXPECT_FALSE(left()->GetLogScaleActive());
  EXPECT_EQ(left()->GetMinimum(), 0.5);
}

TEST_F(LogScales, StartAWindowThatReachesZeroAtTheData)
{
  show({1.0, 10.0, 1000.0});
  render();
  left()->SetRange(-10.0, 500.0);
  left()->SetBehavior(vtkAxis::FIXED);
  container.setLogScaleY(true);
  render();
  EXPECT_TRUE(left()->GetLogScaleActive());
  EXPECT_DOUBLE_EQ(left()->GetUnscaledMinimum(), 1.0);
  EXPECT_DOUBLE_EQ(left()->GetUnscaledMaximum(), 500.0);
}

TEST_F(LogScales, TakeAnInfiniteValueForNone)
{
  container.setLogScaleY(true);
  show({1.0, std::numeric_limits<double>::infinity(), 1000.0, std::nan("")});
  render();
  expectLogarithmic(1.0, 1000.0);
}

TEST_F(LogScales, AreRefusedWithoutAnXYChart)
{
  drawStyle(scatterPlotMatrix);
  container.setLogScaleY(true);
  EXPECT_FALSE(container.showsLogScaleY());
  EXPECT_FALSE(container.showsLogScaleX());
}

} // namespace

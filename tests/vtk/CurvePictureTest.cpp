#include "support/PictureDevice.h"
#include "vtk/vtkPlotSafeLine.h"
#include "vtk/vtkPlotStepLine.h"

#include <vtkContext2D.h>
#include <vtkPen.h>
#include <vtkTransform2D.h>

#include <gtest/gtest.h>

#include "VtkTestSupport.h"

/// Single lines on a device that takes pictures, to which a coordinate is ten units.
namespace
{
class CurvePicture : public ::testing::Test
{
protected:
  void SetUp() override
  {
    device->setSize(100, 80);
    painter->Begin(device);
    vtkNew<vtkTransform2D> tenfold;
    tenfold->Scale(10, 10);
    painter->SetTransform(tenfold);
  }
  void TearDown() override
  {
    painter->End();
    EXPECT_EQ(vtkOutput.text(), "");
  }

  // A frame as a chart paints it.
  const std::vector<PictureDevice::Picture>& paint(vtkPlotPoints* item)
  {
    device->forget();
    item->Update();
    EXPECT_TRUE(item->Paint(painter));
    return device->pictures;
  }

  static void give(vtkPlotPoints* item, const std::vector<double>& x, const std::vector<double>& y)
  {
    item->SetInputData(makeTable({{"x", x}, {"y", y}}), "x", "y");
  }

  vtkNew<PictureDevice> device;
  vtkNew<vtkContext2D> painter;
  VtkErrors vtkOutput;
};
} // namespace

TEST_F(CurvePicture, ShowsAStaircaseWhereItLies)
{
  vtkNew<vtkPlotStepLine> steps;
  steps->SetColor(10, 20, 30, 102);
  steps->SetWidth(2);
  give(steps, {2, 6}, {0.25, 0.75});
  for (const double ratio : {1.0, 3.0})
  {
    device->pixelRatio = ratio;
    const auto& pictures = paint(steps);
    ASSERT_EQ(pictures.size(), 1u);
    EXPECT_EQ(device->calls().size(), 1u) << "nothing is drawn besides";
    EXPECT_EQ(pictures[0].opacityAt(20, 1), 102) << "up from 0";
    EXPECT_EQ(pictures[0].opacityAt(40, 2.5), 102) << "level at 0.25";
    EXPECT_EQ(pictures[0].opacityAt(60, 5), 102) << "up to 0.75, crossing nothing twice";
    EXPECT_EQ(pictures[0].opacityAt(60, 9), 102) << "up to 1";
    EXPECT_EQ(pictures[0].opacityAt(40, 6), 0);
    EXPECT_EQ(pictures[0].opacityAt(80, 7.5), 0);
    EXPECT_EQ(pictures[0].valueAt(40, 2.5, 0), 10);
    EXPECT_EQ(pictures[0].valueAt(40, 2.5, 2), 30);
  }
}

TEST_F(CurvePicture, HasSmoothEdges)
{
  vtkNew<vtkPlotSafeLine> line;
  line->SetWidth(1);
  give(line, {0, 10}, {1, 2});
  const auto& pictures = paint(line);
  ASSERT_EQ(pictures.size(), 1u);
  int between = 0;
  for (int x = 2; x < 98; ++x)
  {
    int column = 0;
    for (double y = 0.5; y < 80; ++y)
    {
      const int opacity = pictures[0].opacityAt(x + 0.5, y);
      column += opacity;
      between += opacity > 20 && opacity < 235;
    }
    EXPECT_NEAR(column, 255 * 1.005, 6) << "of a line of width 1 with a slope of a tenth, at " << x;
  }
  EXPECT_GT(between, 90);
}

TEST_F(CurvePicture, BreaksAtPointsThatAreNoNumbers)
{
  vtkNew<vtkPlotSafeLine> line;
  line->SetWidth(2);
  give(line, {1, 3, 5, 6, 8}, {4, 4, NaN, 4, 4});
  const auto& pictures = paint(line);
  ASSERT_EQ(pictures.size(), 1u);
  EXPECT_EQ(pictures[0].opacityAt(20, 40), 255);
  EXPECT_EQ(pictures[0].opacityAt(45, 40), 0);
  EXPECT_EQ(pictures[0].opacityAt(70, 40), 255);
}

TEST_F(CurvePicture, IsMadeAgainOnlyForOtherPointsOrAnotherPlace)
{
  vtkNew<vtkPlotStepLine> steps;
  give(steps, {2, 6}, {0.25, 0.75});
  const vtkMTimeType first = paint(steps).at(0).time;
  EXPECT_EQ(paint(steps).at(0).time, first);

  steps->SetShiftScale({0, 1, 1, 2});
  const auto shifted = paint(steps).at(0);
  EXPECT_NE(shifted.time, first);
  EXPECT_GT(shifted.opacityAt(40.5, 24.5) + shifted.opacityAt(40.5, 25.5), 200);

  give(steps, {2, 6}, {0.5, 0.75});
  EXPECT_NE(paint(steps).at(0).time, shifted.time);
}

TEST_F(CurvePicture, IsALineWhereOneIsWantedOrDashed)
{
  vtkNew<vtkPlotStepLine> steps;
  vtkNew<vtkPlotSafeLine> line;
  for (vtkPlotPoints* item :
       {static_cast<vtkPlotPoints*>(steps), static_cast<vtkPlotPoints*>(line)})
  {
    give(item, {2, 6}, {0.25, 0.75});
    device->shapes = 1;
    EXPECT_TRUE(paint(item).empty());
    EXPECT_EQ(device->calls(Kind::Poly).size(), 1u);
    device->shapes = 0;
    EXPECT_EQ(paint(item).size(), 1u);
    EXPECT_TRUE(device->calls(Kind::Poly).empty());
    item->GetPen()->SetLineType(vtkPen::DASH_LINE);
    EXPECT_TRUE(paint(item).empty());
    EXPECT_EQ(device->calls(Kind::Poly).size(), 1u);
  }
}

TEST_F(CurvePicture, LeavesMarkersToTheLine)
{
  vtkNew<vtkPlotSafeLine> line;
  line->SetMarkerStyle(VTK_MARKER_CIRCLE);
  give(line, {2, 6}, {1, 2});
  device->shapes = 0;
  EXPECT_EQ(paint(line).size(), 1u);
  EXPECT_EQ(device->calls(Kind::Markers).size(), 1u);
}

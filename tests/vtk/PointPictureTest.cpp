#include "support/PictureDevice.h"
#include "vtk/PointCloud.h"
#include "vtk/vtkPlotInvisiblePoints.h"

#include <vtkChartXY.h>
#include <vtkContext2D.h>
#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkDoubleArray.h>
#include <vtkImageData.h>
#include <vtkLookupTable.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkWindowToImageFilter.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "VtkTestSupport.h"

/// Point items on a device that takes pictures. Their coordinates are the device's.
namespace
{
template <class Item>
class PointPicture : public ::testing::Test
{
protected:
  void SetUp() override
  {
    device->setSize(100, 80);
    painter->Begin(device);
    item->SetMarkerSize(5);
    item->SetMarkerStyle(vtkPlotPoints::SQUARE);
    item->SetColor(10, 20, 30, 51);
    item->SetInputData(table, "x", "y");
  }
  void TearDown() override { painter->End(); }

  std::vector<PictureDevice::Picture> paint()
  {
    device->forget();
    item->Update();
    EXPECT_TRUE(item->Paint(painter));
    return device->pictures;
  }

  vtkSmartPointer<vtkTable> table =
      makeTable({{"x", {10.5, 20.5, 20.5, 40.5}}, {"y", {10.5, 20.5, 20.5, 40.5}}});
  vtkNew<Item> item;
  vtkNew<PictureDevice> device;
  vtkNew<vtkContext2D> painter;
};

class CloudPicture : public PointPicture<Talmesh::PointCloud>
{
};
class SelectedPicture : public PointPicture<vtkPlotInvisiblePoints>
{
};
} // namespace

TEST_F(CloudPicture, ShowsMarkersAndSelectedOnes)
{
  item->SetSelection(makeIds({3, 17}));
  const auto pictures = paint();
  ASSERT_EQ(pictures.size(), 2u);
  EXPECT_EQ(device->calls().size(), 2u);
  EXPECT_EQ(pictures[0].opacityAt(10.5, 10.5), 51);
  EXPECT_NEAR(pictures[0].opacityAt(20.5, 20.5), 255 * (1 - 0.8 * 0.8), 1);
  EXPECT_EQ(pictures[0].valueAt(10.5, 10.5, 2), 30);
  EXPECT_EQ(pictures[0].opacityAt(12.5, 12.5), 51) << "five pixels wide";
  EXPECT_EQ(pictures[0].opacityAt(13.5, 10.5), 0);
  EXPECT_EQ(pictures[1].opacityAt(40.5, 40.5), item->GetSelectionPen()->GetOpacity());
  EXPECT_EQ(pictures[1].opacityAt(43.4, 40.5), item->GetSelectionPen()->GetOpacity());
  EXPECT_EQ(pictures[1].opacityAt(10.5, 10.5), 0);
}

TEST_F(CloudPicture, StaysWhileNothingChanges)
{
  item->SetSelection(makeIds({3}));
  const auto first = paint();
  item->SetSelection(nullptr);
  const auto selection = makeIds({1});
  item->SetSelection(selection);
  const auto second = paint();
  EXPECT_EQ(second[0].time, first[0].time);
  EXPECT_NE(second[1].time, first[1].time);
  item->SetColor(1, 2, 3, 51);
  EXPECT_NE(paint()[0].time, first[0].time);
  table->SetValueByName(0, "y", 5.0);
  table->Modified();
  EXPECT_EQ(paint()[0].opacityAt(10.5, 5.5), 51);
}

TEST_F(CloudPicture, IsWhatVtkPaintsWhereShapesAreWanted)
{
  device->shapes = 4;
  item->SetSelection(makeIds({3, 17, -1}));
  EXPECT_TRUE(paint().empty());
  const auto markers = device->calls(Kind::Markers);
  ASSERT_EQ(markers.size(), 2u);
  EXPECT_EQ(markers[0].points.size(), 4u);
  EXPECT_EQ(markers[1].points, (Points{{40.5f, 40.5f}}));
  EXPECT_STREQ(item->GetClassName(), "vtkPlotPoints");
}

TEST_F(CloudPicture, TakesOpaqueColoursOfItsPoints)
{
  table->AddColumn(makeColumn<vtkDoubleArray>("c", {0, 1, 0, 1}));
  vtkNew<vtkLookupTable> colors;
  colors->SetNumberOfTableValues(2);
  colors->SetTableValue(0, 1, 0, 0, 1);
  colors->SetTableValue(1, 0, 0, 1, 1);
  colors->SetRange(0, 1);
  item->SetLookupTable(colors);
  item->SelectColorArray("c");
  item->ScalarVisibilityOn();
  auto pictures = paint();
  ASSERT_EQ(pictures.size(), 1u);
  EXPECT_EQ(pictures[0].valueAt(20.5, 20.5, 0), 255) << "the later one lies on top";
  EXPECT_EQ(pictures[0].valueAt(40.5, 40.5, 2), 255);
  colors->SetTableValue(1, 0, 1, 0, 1);
  EXPECT_EQ(paint().at(0).valueAt(40.5, 40.5, 1), 255);
  colors->SetTableValue(1, 0, 1, 0, 0.5);
  EXPECT_TRUE(paint().empty()) << "colours that shine through each other are VTK's";
}

TEST_F(CloudPicture, LeavesBadPointsOut)
{
  table = makeTable({{"x", {10.5, 20.5, NaN}}, {"y", {10.5, NaN, 40.5}}});
  item->SetInputData(table, "x", "y");
  const auto picture = paint().at(0);
  EXPECT_EQ(picture.opacityAt(10.5, 10.5), 51);
  EXPECT_EQ(picture.opacityAt(20.5, 40.5), 0);
}

TEST_F(CloudPicture, HasStrokesOneUnitWide)
{
  for (const int style : {vtkPlotPoints::PLUS, vtkPlotPoints::CROSS})
  {
    item->SetMarkerStyle(style);
    item->SetMarkerSize(9);
    for (const int ratio : {1, 3, 5})
    {
      SCOPED_TRACE(ratio);
      device->pixelRatio = ratio;
      const auto picture = paint().at(0);
      const double arm = style == vtkPlotPoints::PLUS ? 10.5 : 13.5;
      for (int pixel = -ratio; pixel <= ratio; ++pixel)
      {
        const bool inside = std::abs(pixel) <= ratio / 2;
        EXPECT_EQ(picture.opacityAt(13.5, arm + double(pixel) / ratio), inside ? 51 : 0) << pixel;
      }
    }
  }
}

TEST_F(CloudPicture, HasNoMarkersWithoutAStyleButSelectedOnes)
{
  item->SetMarkerStyle(vtkPlotPoints::NONE);
  EXPECT_TRUE(paint().empty());
  item->SetSelection(makeIds({0}));
  const auto pictures = paint();
  ASSERT_EQ(pictures.size(), 1u);
  EXPECT_GT(pictures[0].opacityAt(10.5, 12.5), 0);
}

TEST_F(SelectedPicture, ShowsOnlySelectedPoints)
{
  EXPECT_TRUE(paint().empty());
  item->SetSelection(makeIds({0, 1, 1, 99}));
  const auto pictures = paint();
  ASSERT_EQ(pictures.size(), 1u);
  const double a = 150.0 / 255.0;
  EXPECT_EQ(pictures[0].opacityAt(10.5, 10.5), 150);
  EXPECT_NEAR(pictures[0].opacityAt(20.5, 20.5), 255 * (1 - (1 - a) * (1 - a)), 1);
  EXPECT_EQ(pictures[0].valueAt(10.5, 10.5, 0), 255);
  EXPECT_EQ(pictures[0].opacityAt(40.5, 40.5), 0);
  EXPECT_EQ(paint().at(0).time, pictures[0].time);
}

TEST_F(SelectedPicture, ShowsAllPointsWhereAsked)
{
  item->OnlyShowSelectedOff();
  item->SetSelection(makeIds({0}));
  ASSERT_EQ(paint().size(), 2u);
  device->shapes = 10;
  EXPECT_TRUE(paint().empty());
  EXPECT_EQ(device->calls(Kind::Markers).size(), 2u);
}

TEST(CloudOnScreen, LooksAsVtkPaintsIt)
{
  vtkNew<vtkContextView> view;
  view->GetRenderWindow()->SetSize(300, 200);
  view->GetRenderWindow()->SetMultiSamples(0);
  view->GetRenderer()->SetBackground(1, 1, 1);
  vtkNew<vtkChartXY> chart;
  view->GetScene()->AddItem(chart);
  std::mt19937 random(5);
  std::normal_distribution<double> normal;
  std::vector<double> x(40000);
  std::vector<double> y(40000);
  for (double& value : x)
    value = normal(random);
  for (double& value : y)
    value = normal(random);
  const auto table = makeTable({{"x", x}, {"y", y}});
  const auto show = [&](vtkPlotPoints* points)
  {
    chart->ClearPlots();
    points->SetColor(0, 0, 0, 255);
    points->SetMarkerSize(4);
    points->SetMarkerStyle(vtkPlotPoints::SQUARE);
    points->SetInputData(table, "x", "y");
    chart->AddPlot(points);
    for (int frame = 0; frame < 3; ++frame)
      view->GetRenderWindow()->Render();
    vtkNew<vtkWindowToImageFilter> reader;
    reader->SetInput(view->GetRenderWindow());
    reader->ReadFrontBufferOff();
    reader->Update();
    const auto* values = static_cast<unsigned char*>(reader->GetOutput()->GetScalarPointer());
    return std::vector<unsigned char>(values, values + 3 * 300 * 200);
  };
  const auto expected = show(vtkNew<vtkPlotPoints>());
  const auto found = show(vtkNew<Talmesh::PointCloud>());
  int different = 0;
  int dark = 0;
  for (std::size_t i = 0; i < expected.size(); i += 3)
  {
    different += expected[i] != found[i];
    dark += expected[i] < 50;
  }
  EXPECT_GT(dark, 5000);
  // A marker whose edge lies at the middle of pixels may take those on its other side.
  EXPECT_LT(different, 0.01 * dark);
}

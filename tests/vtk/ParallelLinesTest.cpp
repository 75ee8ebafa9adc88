#include "vtk/ParallelLines.h"

#include "support/PictureDevice.h"
#include "vtk/PaintedLines.h"

#include <vtkAxis.h>
#include <vtkChartParallelCoordinates.h>
#include <vtkContext2D.h>
#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkDoubleArray.h>
#include <vtkLookupTable.h>
#include <vtkPen.h>
#include <vtkRenderWindow.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "VtkTestSupport.h"

namespace
{
/// Two axes: five rows from the lowest to the highest value, two from the highest to the lowest,
/// and one from lowest to lowest.
class ParallelLinesPicture : public ::testing::Test
{
protected:
  void SetUp() override
  {
    device->setSize(300, 200);
    plain->setSize(300, 200);
    // The chart asks the window for its size.
    view->GetRenderWindow()->SetSize(300, 200);
    view->GetScene()->SetGeometry(300, 200);
    chart->SetPlot(lines);
    lines->vtkPlot::SetInputData(table);
    chart->GetVisibleColumns()->InsertNextValue("a");
    chart->GetVisibleColumns()->InsertNextValue("b");
    view->GetScene()->AddItem(chart);
  }

  void paintOn(RecordingDevice* surface)
  {
    vtkNew<vtkContext2D> painter;
    painter->Begin(surface);
    // The first pass lays the axes out.
    for (int pass = 0; pass < 2; ++pass)
    {
      surface->clear();
      device->pictures.clear();
      view->GetScene()->Paint(painter);
    }
    painter->End();
  }

  std::vector<PictureDevice::Picture> paint()
  {
    paintOn(device);
    return device->pictures;
  }

  // A place between the axes, from (0, 0) at the lowest left to (1, 1).
  std::array<double, 2> at(double across, double up)
  {
    const float* left = chart->GetAxis(0)->GetPoint1();
    const float* right = chart->GetAxis(1)->GetPoint1();
    const float* top = chart->GetAxis(0)->GetPoint2();
    return {left[0] + across * (right[0] - left[0]), left[1] + up * (top[1] - left[1])};
  }

  // The greatest opacity within two pixels of a place.
  int opacityNear(const PictureDevice::Picture& picture, double across, double up)
  {
    const auto place = at(across, up);
    int greatest = 0;
    for (int step = -2; step <= 2; ++step)
      greatest = std::max(greatest, picture.opacityAt(place[0], place[1] + step));
    return greatest;
  }

  vtkSmartPointer<vtkTable> table =
      makeTable({{"a", {1, 1, 1, 1, 1, 3, 3, 1}}, {"b", {30, 30, 30, 30, 30, 10, 10, 10}}});
  vtkNew<Talmesh::ParallelLines> lines;
  vtkNew<vtkChartParallelCoordinates> chart;
  vtkNew<vtkContextView> view;
  vtkNew<PictureDevice> device;
  vtkNew<RecordingDevice> plain;
};

std::vector<RecordingDevice::Call> linesOf(RecordingDevice* surface, int alpha)
{
  std::vector<RecordingDevice::Call> found;
  for (const auto& call : surface->calls(Kind::Poly))
  {
    if (call.penColor[3] == alpha && call.points.size() == 2)
      found.push_back(call);
  }
  return found;
}
} // namespace

TEST_F(ParallelLinesPicture, CountsRowsOfLikeValues)
{
  const double a = 25 / 255.0; // VTK's own pen
  const auto pictures = paint();
  ASSERT_EQ(pictures.size(), 1u);
  EXPECT_NEAR(opacityNear(pictures[0], 0.25, 0.25), 255 * (1 - std::pow(1 - a, 5)), 1);
  EXPECT_NEAR(opacityNear(pictures[0], 0.25, 0.75), 255 * (1 - std::pow(1 - a, 2)), 1);
  EXPECT_NEAR(opacityNear(pictures[0], 0.5, 0.5), 255 * (1 - std::pow(1 - a, 7)), 6)
      << "where the lines cross";
  EXPECT_NEAR(opacityNear(pictures[0], 0.5, 0.01), 25, 1);
  EXPECT_EQ(opacityNear(pictures[0], 0.5, 0.25), 0);
  EXPECT_TRUE(linesOf(device, 25).empty());
  EXPECT_STREQ(lines->GetClassName(), "vtkPlotParallelCoordinates");
}

TEST_F(ParallelLinesPicture, IsALineForEachRowOnAnyOtherDevice)
{
  paintOn(plain);
  EXPECT_EQ(linesOf(plain, 25).size(), 8u);
  EXPECT_TRUE(plain->calls(Kind::Image).empty());
  device->shapes = 16; // corners
  EXPECT_TRUE(paint().empty());
  EXPECT_EQ(linesOf(device, 25).size(), 1u) << "like rows are one line";
  device->shapes = 15;
  EXPECT_EQ(paint().size(), 1u);
  device->shapes = 0;
  lines->GetPen()->SetLineType(vtkPen::DASH_LINE);
  EXPECT_TRUE(paint().empty());
}

TEST_F(ParallelLinesPicture, IsALineForLikeRowsWhereLinesAreWanted)
{
  lines->SetSelection(makeIds({5, 6, 0, 5, 99, -1}));
  device->shapes = 16;
  EXPECT_TRUE(paint().empty());
  const auto sum = [](double once, int repeats)
  { return static_cast<int>(std::lround(255 * (1 - std::pow(1 - once / 255.0, repeats)))); };
  const auto first = linesOf(device, sum(25, 5));
  ASSERT_EQ(first.size(), 1u);
  EXPECT_EQ(first[0].points, (Points{{at(0, 0)[0], 0.0F}, {at(1, 0)[0], 1.0F}}));
  EXPECT_EQ(first[0].penColor, (RecordingDevice::Color{0, 0, 0, sum(25, 5)}));
  EXPECT_EQ(linesOf(device, sum(25, 2)).size(), 1u);
  EXPECT_EQ(linesOf(device, 25).size(), 1u);
  const auto selected = linesOf(device, sum(100, 3));
  ASSERT_EQ(selected.size(), 1u) << "of the two rows, one of them listed twice";
  EXPECT_EQ(selected[0].penColor, (RecordingDevice::Color{255, 0, 0, sum(100, 3)}));
  EXPECT_EQ(linesOf(device, 100).size(), 1u);
}

TEST_F(ParallelLinesPicture, AsksForTheSelectedLinesByThemselves)
{
  lines->SetSelection(makeIds({5, 6, 5}));
  device->shapes = 1; // corners, and highlights
  EXPECT_EQ(paint().size(), 1u) << "of all lines";
  EXPECT_EQ(linesOf(device, 100).size() + linesOf(device, 197).size(), 0u);
  const int alpha = static_cast<int>(std::lround(255 * (1 - std::pow(1 - 100 / 255.0, 3))));
  EXPECT_EQ(linesOf(device, alpha).size(), 1u);
  lines->SetSelection(makeIds({5, 0}));
  EXPECT_EQ(paint().size(), 2u);
}

TEST_F(ParallelLinesPicture, KeepsTheOrderOfColouredLines)
{
  table->AddColumn(makeColumn<vtkDoubleArray>("c", {0, 0, 1, 0, 0, 0, 0, 0}));
  vtkNew<vtkLookupTable> colors;
  colors->SetNumberOfTableValues(2);
  colors->SetTableValue(0, 1, 0, 0, 1);
  colors->SetTableValue(1, 0, 0, 1, 1);
  colors->SetRange(0, 1);
  lines->SetLookupTable(colors);
  lines->SelectColorArray("c");
  lines->ScalarVisibilityOn();
  device->shapes = 16;
  EXPECT_TRUE(paint().empty());
  std::vector<int> reds;
  for (const auto& call : device->calls(Kind::Poly))
  {
    if (call.points.size() == 2 && (call.penColor[0] == 255 || call.penColor[2] == 255))
      reds.push_back(call.penColor[0]);
  }
  EXPECT_EQ(reds, (std::vector<int>{255, 0, 255, 255, 255}))
      << "two rows, one, two, two of another line, and the last one";
}

TEST_F(ParallelLinesPicture, ShowsSelectedRowsOnTop)
{
  lines->SetSelection(makeIds({5, 6, 99, -1}));
  const auto pictures = paint();
  ASSERT_EQ(pictures.size(), 2u);
  const double a = 100 / 255.0;
  EXPECT_NEAR(opacityNear(pictures[1], 0.25, 0.75), 255 * (1 - (1 - a) * (1 - a)), 1);
  EXPECT_EQ(opacityNear(pictures[1], 0.25, 0.25), 0);
  const auto again = paint();
  EXPECT_EQ(again[0].time, pictures[0].time);
  EXPECT_EQ(again[1].time, pictures[1].time);
  lines->SetSelection(makeIds({7}));
  const auto other = paint();
  EXPECT_EQ(other[0].time, pictures[0].time);
  EXPECT_NE(other[1].time, pictures[1].time);
}

TEST_F(ParallelLinesPicture, TakesTheColourOfALaterRowWhereTwoCross)
{
  table->AddColumn(makeColumn<vtkDoubleArray>("c", {0, 0, 0, 0, 0, 1, 1, 0}));
  vtkNew<vtkLookupTable> colors;
  colors->SetNumberOfTableValues(2);
  colors->SetTableValue(0, 1, 0, 0, 1);
  colors->SetTableValue(1, 0, 0, 1, 1);
  colors->SetRange(0, 1);
  lines->SetLookupTable(colors);
  lines->SelectColorArray("c");
  lines->ScalarVisibilityOn();
  const auto pictures = paint();
  ASSERT_EQ(pictures.size(), 1u);
  const auto blueAt = [&](double across, double up)
  {
    const auto place = at(across, up);
    return pictures[0].valueAt(place[0], place[1], 2);
  };
  // Colours have the pen's opacity: five red lines, two blue ones, and those over these.
  const double left = 1 - 25 / 255.0;
  EXPECT_NEAR(opacityNear(pictures[0], 0.25, 0.25), 255 * (1 - std::pow(left, 5)), 1);
  EXPECT_EQ(blueAt(0.25, 0.25), 0);
  EXPECT_NEAR(opacityNear(pictures[0], 0.25, 0.75), 255 * (1 - std::pow(left, 2)), 1);
  EXPECT_EQ(blueAt(0.25, 0.75), 255);
  // Red over blue would be 55. The lines cover the pixels around their crossing only in part.
  EXPECT_NEAR(blueAt(0.5, 0.5), 255 * (1 - std::pow(left, 2)) / (1 - std::pow(left, 7)), 20);
}

TEST_F(ParallelLinesPicture, FollowsTheColumnsShown)
{
  const auto first = paint();
  table->SetValueByName(0, "b", 20.0);
  table->GetColumnByName("b")->Modified();
  const auto second = paint();
  EXPECT_NE(second[0].time, first[0].time);
  chart->SetColumnVisibility("b", false);
  EXPECT_TRUE(paint().empty()) << "one axis has no lines";
}

TEST(PaintedLines, LieOverEarlierOnesAcrossTheWholePicture)
{
  const std::vector<float> points{0, 5.5f, 200, 5.5f, 0, 0, 200, 11, 50, 5.5f, 150, 5.5f};
  Talmesh::LinesToCount lines;
  lines.points = points.data();
  lines.runs = {{0, 2, 1}, {2, 2, 1}, {4, 2, 1}};
  const auto image =
      Talmesh::paintLines(lines, {{1, 0, 0}, {2, 0, 0}, {3, 0, 0}}, {}, 200, 11, {1.0, 1.0, 0.0});
  const auto red = [&](int x, int y) { return image[static_cast<std::size_t>(4 * (y * 200 + x))]; };
  const auto opacity = [&](int x, int y)
  { return image[static_cast<std::size_t>(4 * (y * 200 + x) + 3)]; };
  for (int x = 0; x < 200; ++x)
  {
    const int near = x < 40 || x > 160 ? 1 : 3;
    const bool between = x >= 40 && x <= 52;
    const bool beyond = x >= 148 && x <= 160;
    EXPECT_TRUE(between || beyond || red(x, 5) == near) << x;
    EXPECT_EQ(opacity(x, 5), 255) << x;
  }
  EXPECT_EQ(opacity(100, 9), 0);
  EXPECT_EQ(red(15, 0), 2);
  EXPECT_GT(opacity(15, 0), 150);
}

TEST(PaintedLines, BlendEachLineOverThoseBefore)
{
  // A level pixel of half opacity: 60, then 200 three times, then the half of it 100.
  const std::vector<float> points{-5, 1.5f, 20, 1.5f, -5, 1.5f, 20, 1.5f, -5, 2.0f, 20, 2.0f};
  Talmesh::LinesToCount lines;
  lines.points = points.data();
  lines.runs = {{0, 2, 1}, {2, 2, 3}, {4, 2, 1}};
  const auto image =
      Talmesh::paintLines(lines, {{60, 0, 0}, {200, 0, 0}, {100, 0, 0}}, {}, 9, 4, {1.0, 0.5, 0.0});
  double opacity = 0.5;
  double red = 60 * opacity;
  for (const auto& [color, part] : {std::pair(200.0, 1 - 0.125), std::pair(100.0, 0.25)})
  {
    red += part * (color - red);
    opacity += part * (1 - opacity);
  }
  const std::size_t pixel = 4 * (1 * 9 + 4);
  EXPECT_NEAR(image[pixel], red / opacity, 0.51);
  EXPECT_NEAR(image[pixel + 3], 255 * opacity, 0.51);
  EXPECT_NEAR(image[pixel + 4 * 9], 100, 0.51);
  EXPECT_NEAR(image[pixel + 4 * 9 + 3], 255 * 0.25, 0.51);
}

#include "vtk/ClippedDrawing.h"

#include "support/RecordingDevice.h"

#include <vtkObjectFactory.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace
{
class ClippedRecording : public ClippedDrawing<RecordingDevice>
{
public:
  static ClippedRecording* New();
  TALMESH_VTK_TYPE(ClippedRecording, ClippedDrawing<RecordingDevice>);
};
vtkStandardNewMacro(ClippedRecording);

using Kind = RecordingDevice::Kind;
using Points = std::vector<RecordingDevice::Point>;

/// Draws at a rectangle from (10, 20) to (30, 60).
class ClippedDrawingOnADevice : public ::testing::Test
{
protected:
  ClippedDrawingOnADevice()
  {
    std::array<int, 4> rectangle{10, 20, 20, 40};
    device->SetClipping(rectangle.data());
    device->EnableClipping(true);
  }

  std::vector<Points> drawn(Kind kind) const
  {
    std::vector<Points> shapes;
    for (const auto& call : device->calls(kind))
      shapes.push_back(call.points);
    return shapes;
  }

  /// What is drawn, in tenths of pixels.
  std::vector<Points> nearly(Kind kind) const
  {
    std::vector<Points> shapes = drawn(kind);
    for (Points& shape : shapes)
      for (auto& [x, y] : shape)
      {
        x = std::round(10.0f * x) / 10.0f;
        y = std::round(10.0f * y) / 10.0f;
      }
    return shapes;
  }

  template <typename... Coordinates>
  void poly(Coordinates... coordinates)
  {
    std::array<float, sizeof...(coordinates)> points{static_cast<float>(coordinates)...};
    device->DrawPoly(points.data(), sizeof...(coordinates) / 2);
  }

  vtkNew<ClippedRecording> device;
};
} // namespace

TEST_F(ClippedDrawingOnADevice, LeavesALineInsideAsItIs)
{
  poly(10, 20, 15, 30, 30, 60);
  EXPECT_EQ(drawn(Kind::Poly), (std::vector<Points>{{{10, 20}, {15, 30}, {30, 60}}}));
}

TEST_F(ClippedDrawingOnADevice, CutsALineAtEveryEdge)
{
  poly(0, 40, 40, 40);
  poly(20, 0, 20, 80);
  // The line y = x + 10 enters at x = 10 and leaves at x = 30.
  poly(0, 10, 50, 60);
  EXPECT_EQ(
      nearly(Kind::Poly),
      (std::vector<Points>{{{10, 40}, {30, 40}}, {{20, 20}, {20, 60}}, {{10, 20}, {30, 40}}}));
}

TEST_F(ClippedDrawingOnADevice, DrawsNothingOfALineThatPassesACorner)
{
  poly(0, 50, 15, 80);
  poly(0, 0, 50, 10);
  EXPECT_TRUE(device->calls().empty());
}

TEST_F(ClippedDrawingOnADevice, BreaksALineWhereItLeavesAndComesBack)
{
  poly(20, 30, 40, 30, 40, 50, 20, 50);
  EXPECT_EQ(nearly(Kind::Poly), (std::vector<Points>{{{20, 30}, {30, 30}}, {{30, 50}, {20, 50}}}));
}

TEST_F(ClippedDrawingOnADevice, LeavesOutWhatHasNoPlace)
{
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float infinity = std::numeric_limits<float>::infinity();
  poly(15, 30, nan, 40, 25, 50, 20, infinity, 15, 50);
  EXPECT_TRUE(device->calls().empty());
}

TEST_F(ClippedDrawingOnADevice, CutsPairsOfPointsEachForItself)
{
  std::array<float, 12> points{0, 30, 20, 30, 40, 40, 50, 40, 20, 50, 40, 50};
  device->DrawLines(points.data(), 6, nullptr, 0);
  EXPECT_EQ(nearly(Kind::Lines), (std::vector<Points>{{{10, 30}, {20, 30}, {20, 50}, {30, 50}}}));
}

TEST_F(ClippedDrawingOnADevice, KeepsTheColoursOfWhatIsLeft)
{
  std::array<float, 6> points{0, 30, 20, 30, 25, 30};
  std::array<unsigned char, 9> colors{100, 0, 0, 200, 0, 50, 0, 0, 0};
  Talmesh::ClippedPoints left;
  vtkNew<vtkMatrix3x3> identity;
  const Talmesh::ClipRegion region({10, 20, 30, 60}, identity);
  left = region.polyLine(points.data(), 3, colors.data(), 3).at(0);
  // The line is cut halfway between its first two points.
  EXPECT_EQ(left.colors, (std::vector<unsigned char>{150, 0, 25, 200, 0, 50, 0, 0, 0}));
}

TEST_F(ClippedDrawingOnADevice, DropsPointsOutside)
{
  std::array<float, 8> points{10, 20, 9, 40, 20, 61, 20, 40};
  device->DrawPoints(points.data(), 4, nullptr, 0);
  device->DrawPointSprites(nullptr, points.data(), 4, nullptr, 0);
  EXPECT_EQ(drawn(Kind::Points), (std::vector<Points>{{{10, 20}, {20, 40}}}));
  EXPECT_EQ(drawn(Kind::PointSprites), drawn(Kind::Points));
}

TEST_F(ClippedDrawingOnADevice, CutsPolygonsToWhatIsInside)
{
  std::array<float, 8> quad{20, 10, 40, 10, 40, 30, 20, 30};
  device->DrawQuad(quad.data(), 4);
  // What is left is the square from (20, 20) to (30, 30), in two triangles of 50 pixels each.
  double area = 0.0;
  for (const Points& part : drawn(Kind::Polygon))
    for (std::size_t i = 0; i < part.size(); ++i)
    {
      const auto& a = part[i];
      const auto& b = part[(i + 1) % part.size()];
      area += 0.5 * (a.first * b.second - b.first * a.second);
      EXPECT_TRUE(a.first > 19.98f && a.first < 30.02f && a.second > 19.98f && a.second < 30.02f);
    }
  EXPECT_NEAR(area, 100.0, 0.5);
}

TEST_F(ClippedDrawingOnADevice, LeavesPolygonsInsideWhole)
{
  std::array<float, 6> triangle{15, 25, 25, 25, 20, 50};
  device->DrawPolygon(triangle.data(), 3);
  EXPECT_EQ(drawn(Kind::Polygon), (std::vector<Points>{{{15, 25}, {25, 25}, {20, 50}}}));
}

TEST_F(ClippedDrawingOnADevice, CutsAStripOfQuads)
{
  std::array<float, 12> strip{0, 30, 0, 40, 20, 30, 20, 40, 50, 30, 50, 40};
  device->DrawQuadStrip(strip.data(), 6);
  float left = 100;
  float right = 0;
  for (const Points& part : drawn(Kind::Polygon))
    for (const auto& [x, y] : part)
    {
      left = std::min(left, x);
      right = std::max(right, x);
    }
  EXPECT_NEAR(left, 10.0, 0.02);
  EXPECT_NEAR(right, 30.0, 0.02);
}

TEST_F(ClippedDrawingOnADevice, DropsDiscsByTheirCentresAndOtherMarkersByTheirEdges)
{
  device->GetPen()->SetWidth(8.0f);
  std::array<float, 8> points{20, 40, 30, 40, 33, 40, 35, 40};
  device->DrawMarkers(VTK_MARKER_CIRCLE, false, points.data(), 4, nullptr, 0);
  device->DrawMarkers(VTK_MARKER_SQUARE, true, points.data(), 4, nullptr, 0);
  ASSERT_EQ(device->calls().size(), 2u);
  EXPECT_EQ(device->calls()[0].points, (Points{{20, 40}, {30, 40}}));
  EXPECT_EQ(device->calls()[1].points, (Points{{20, 40}, {30, 40}, {33, 40}}));
  EXPECT_TRUE(device->calls()[1].highlight);
}

TEST_F(ClippedDrawingOnADevice, TakesNoNoticeOfRounding)
{
  poly(9.999f, 30, 20, 60.001f, 30.001f, 40);
  std::array<float, 8> quad{9.999f, 19.999f, 20, 19.999f, 20, 30, 9.999f, 30};
  device->DrawQuad(quad.data(), 4);
  EXPECT_EQ(drawn(Kind::Poly), (std::vector<Points>{{{9.999f, 30}, {20, 60.001f}, {30.001f, 40}}}));
  EXPECT_EQ(drawn(Kind::Polygon).size(), 1u);
}

TEST_F(ClippedDrawingOnADevice, CutsInPixelsWhateverTheCoordinates)
{
  vtkNew<vtkMatrix3x3> matrix;
  matrix->SetElement(0, 0, 100.0);
  matrix->SetElement(1, 1, 0.5);
  matrix->SetElement(1, 2, 10.0);
  device->SetMatrix(matrix);
  // In pixels from (0, 40) to (40, 40).
  poly(0, 60, 0.4, 60);
  ASSERT_EQ(device->calls().size(), 1u);
  EXPECT_NEAR(device->calls()[0].points[0].first, 0.1, 0.0002);
  EXPECT_NEAR(device->calls()[0].points[1].first, 0.3, 0.0002);
}

TEST_F(ClippedDrawingOnADevice, DrawsEverythingWhileNothingIsClipped)
{
  device->EnableClipping(false);
  poly(0, 0, 100, 100);
  EXPECT_EQ(drawn(Kind::Poly), (std::vector<Points>{{{0, 0}, {100, 100}}}));
}

#include "vtk/vtkPlotShiftedBag.h"
#include "vtk/vtkPlotShiftedStack.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkContext2D.h>
#include <vtkContextScene.h>
#include <vtkMatrix3x3.h>
#include <vtkObjectFactory.h>

#include <gtest/gtest.h>

#include <algorithm>

#include "VtkTestSupport.h"

/// Areas in a chart whose axes are so far from 1 that it shifts and scales its points.
namespace
{
/// Records shapes where they come to lie on the screen.
class PlacingDevice : public RecordingDevice
{
public:
  static PlacingDevice* New();

  void DrawPoly(float* points, int n, unsigned char* colors, int components) override
  {
    RecordingDevice::DrawPoly(place(points, n), n, colors, components);
  }
  void DrawQuad(float* points, int n) override { RecordingDevice::DrawQuad(place(points, n), n); }
  void DrawQuadStrip(float* points, int n) override
  {
    RecordingDevice::DrawQuadStrip(place(points, n), n);
  }

private:
  float* place(const float* points, int n)
  {
    vtkNew<vtkMatrix3x3> matrix;
    GetMatrix(matrix);
    placed.clear();
    for (int i = 0; i < n; ++i)
    {
      const double point[3] = {points[2 * i], points[2 * i + 1], 1};
      double end[3];
      matrix->MultiplyPoint(point, end);
      placed.insert(placed.end(), {static_cast<float>(end[0]), static_cast<float>(end[1])});
    }
    return placed.data();
  }

  std::vector<float> placed;
};
vtkStandardNewMacro(PlacingDevice);

class ShiftedAreas : public ::testing::Test
{
protected:
  void SetUp() override
  {
    device->setSize(400, 300);
    painter->Begin(device);
    scene->SetGeometry(400, 300);
    scene->AddItem(chart);
    setAxis(vtkAxis::BOTTOM, 309, 311);
    setAxis(vtkAxis::LEFT, 1e-12, 2e-12);
    table->AddColumn(band());
  }

  void TearDown() override { painter->End(); }

  void setAxis(int position, double minimum, double maximum)
  {
    vtkAxis* axis = chart->GetAxis(position);
    axis->SetBehavior(vtkAxis::FIXED);
    axis->SetUnscaledRange(minimum, maximum);
  }

  static vtkSmartPointer<vtkDoubleArray> band()
  {
    auto column = vtkSmartPointer<vtkDoubleArray>::New();
    column->SetName("band");
    column->SetNumberOfComponents(2);
    for (const double low : {1e-12, 1.25e-12, 1.5e-12})
      column->InsertNextTuple2(low, low + 0.5e-12);
    return column;
  }

  /// The corners of the item's shapes as parts of the axes' lengths.
  Points paint(vtkPlot* plot, const char* y, RecordingDevice::Kind kind)
  {
    plot->SetInputData(table, "x", y);
    plot->SetColor(10, 20, 30, 255);
    chart->AddPlot(plot);
    // The first pass settles the axes, as the first frame on a screen does.
    for (int pass = 0; pass < 2; ++pass)
    {
      device->clear();
      scene->Paint(painter);
    }
    const int* low = chart->GetPoint1();
    const int* high = chart->GetPoint2();
    Points corners;
    for (const auto& call : device->calls(kind))
    {
      if (call.penColor != own && call.brushColor != own)
        continue;
      for (const auto& [x, yOfPoint] : call.points)
        corners.emplace_back((x - low[0]) / (high[0] - low[0]),
                             (yOfPoint - low[1]) / (high[1] - low[1]));
    }
    return corners;
  }

  const RecordingDevice::Color own{10, 20, 30, 255};
  vtkSmartPointer<vtkTable> table =
      makeTable({{"x", {309, 310, 311}}, {"y", {1.25e-12, 1.5e-12, 1.75e-12}}});
  vtkNew<PlacingDevice> device;
  vtkNew<vtkContext2D> painter;
  vtkNew<vtkContextScene> scene;
  vtkNew<vtkChartXY> chart;
};

void expectNear(const Points& painted, const Points& expected)
{
  ASSERT_EQ(painted.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i)
  {
    EXPECT_NEAR(painted[i].first, expected[i].first, 1e-4) << "corner " << i;
    EXPECT_NEAR(painted[i].second, expected[i].second, 1e-4) << "corner " << i;
  }
}
} // namespace

TEST_F(ShiftedAreas, LieBetweenTheEndsOfABag)
{
  vtkNew<vtkPlotShiftedBag> bag;
  const Points corners = paint(bag, "band", RecordingDevice::Kind::QuadStrip);
  expectNear(corners, {{0, 0}, {0, 0.5}, {0.5, 0.25}, {0.5, 0.75}, {1, 0.5}, {1, 1}});
}

TEST_F(ShiftedAreas, MoveTheLineOfABagWithoutWidth)
{
  vtkNew<vtkPlotShiftedBag> line;
  const Points corners = paint(line, "y", RecordingDevice::Kind::Poly);
  expectNear(corners, {{0, 0.25}, {0.5, 0.5}, {1, 0.75}});
}

TEST_F(ShiftedAreas, StandOnZeroWhereTheyAreStacked)
{
  vtkNew<vtkPlotShiftedStack> stack;
  const Points corners = paint(stack, "y", RecordingDevice::Kind::Quad);
  // The axis begins its own length above zero.
  expectNear(
      corners,
      {{0, -1}, {0.5, -1}, {0.5, 0.5}, {0, 0.25}, {0.5, -1}, {1, -1}, {1, 0.75}, {0.5, 0.5}});
}

TEST_F(ShiftedAreas, FollowLogarithmsThatTheChartShifts)
{
  // From 2.48996 to 2.49276: far enough from zero to be shifted.
  chart->GetAxis(vtkAxis::BOTTOM)->SetLogScale(true);
  vtkNew<vtkPlotShiftedBag> bag;
  const Points corners = paint(bag, "band", RecordingDevice::Kind::QuadStrip);
  // log(310 / 309) / log(311 / 309), from the first time to the last
  const float middle = 0.500806f;
  ASSERT_EQ(corners.size(), 6u);
  EXPECT_NEAR(corners[0].first, 0, 1e-3);
  EXPECT_NEAR(corners[2].first, middle, 1e-3);
  EXPECT_NEAR(corners[4].first, 1, 1e-3);
}

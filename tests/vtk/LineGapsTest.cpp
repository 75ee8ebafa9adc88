#include "support/PictureDevice.h"

#include <vtkCharArray.h>
#include <vtkRenderingCoreEnums.h>

#include "LineSetFixture.h"

/// A line set that breaks its lines at gaps, on a device that draws shapes.
namespace
{
class LineGaps : public LineSet
{
protected:
  void SetUp() override
  {
    item->OnlyShowSelectedOff();
    item->BreakAtGapsOn();
  }

  Lines dots()
  {
    recording.device->clear();
    EXPECT_TRUE(item->Paint(recording.painter));
    Lines found;
    for (const auto& call : recording.device->calls(Kind::Markers))
    {
      EXPECT_EQ(call.marker, VTK_MARKER_CIRCLE);
      for (const auto& point : call.points)
        found.emplace_back(static_cast<int>(point.first), 1);
    }
    return found;
  }

  Lines pieces()
  {
    recording.device->clear();
    EXPECT_TRUE(item->Paint(recording.painter));
    Lines found;
    for (const auto& call : recording.device->calls(Kind::Poly))
      found.emplace_back(static_cast<int>(call.points[0].first), call.points.size());
    return found;
  }
};
} // namespace

TEST_F(LineGaps, EndALineAndBeginAnother)
{
  setRows(20, {4, 13, 14});
  item->SetStride(10);
  item->Update();
  EXPECT_EQ(pieces(), (Lines{{0, 4}, {5, 5}, {10, 3}, {15, 5}}));
  EXPECT_EQ(dots(), Lines());
}

TEST_F(LineGaps, LeaveNoChartEmptyAndLeadIntoNoOtherRun)
{
  setRows(20, {6, 19});
  item->SetStride(10);
  item->Update();
  EXPECT_EQ(pieces(), (Lines{{0, 6}, {7, 3}, {10, 9}}));
  item->BreakAtGapsOff();
  EXPECT_EQ(pieces(), Lines()) << "by default";
}

TEST_F(LineGaps, LeaveADotOfAPointBetweenTwo)
{
  setRows(20, {1, 3, 18});
  item->SetStride(10);
  item->SetWidth(2);
  item->Update();
  EXPECT_EQ(pieces(), (Lines{{4, 6}, {10, 8}}));
  EXPECT_EQ(dots(), (Lines{{0, 1}, {2, 1}, {19, 1}}));
  EXPECT_FLOAT_EQ(recording.device->calls(Kind::Markers)[0].penWidth, 5.0f);
  EXPECT_FLOAT_EQ(item->GetPen()->GetWidth(), 2.0f);
}

TEST_F(LineGaps, ShowRunsOfOnePointAsDots)
{
  setRows(3, {1});
  item->Update();
  EXPECT_EQ(pieces(), Lines());
  EXPECT_EQ(dots(), (Lines{{0, 1}, {2, 1}}));
}

TEST_F(LineGaps, BreakHighlightsToo)
{
  setRows(20, {4});
  mark({0, 1});
  item->OnlyShowSelectedOn();
  item->SetStride(10);
  item->Update();
  EXPECT_EQ(pieces(), (Lines{{0, 4}, {5, 5}, {0, 4}, {5, 5}}));
}

TEST_F(LineGaps, AreWhatAMaskMarks)
{
  setRows(10);
  vtkNew<vtkCharArray> mask;
  mask->SetName("mask");
  mask->SetNumberOfTuples(10);
  mask->Fill(1);
  mask->SetValue(3, 0);
  table->AddColumn(mask);
  item->SetValidPointMaskName("mask");
  item->SetStride(10);
  item->Update();
  EXPECT_EQ(pieces(), (Lines{{0, 3}, {4, 6}}));
}

TEST_F(LineGaps, BreakHighlightsThatADeviceWantsAsShapes)
{
  setRows(10, {1, 4});
  mark({0, 1});
  item->OnlyShowSelectedOn();
  item->SetStride(10);
  item->SetWidth(1);
  item->Update();
  vtkNew<PictureDevice> device;
  device->shapes = 100;
  vtkNew<vtkContext2D> painter;
  painter->Begin(device);
  EXPECT_TRUE(item->Paint(painter));
  painter->End();
  EXPECT_TRUE(device->pictures.empty());
  // Once, as opaque as twice. The pen is 2.7 wider than that of runs, a dot 3 wider than its line.
  const double left = 1 - 150 / 255.0;
  const auto lines = device->calls(Kind::Poly);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].points, (std::vector<Point>{{2, 1}, {3, 1}}));
  EXPECT_EQ(lines[1].points.size(), 5u);
  EXPECT_EQ(lines[0].penColor[3], std::lround(255 * (1 - left * left)));
  const auto dots = device->calls(Kind::Markers);
  ASSERT_EQ(dots.size(), 1u);
  EXPECT_EQ(dots[0].points, (std::vector<Point>{{0, 1}}));
  EXPECT_EQ(dots[0].penColor, lines[0].penColor);
  EXPECT_FLOAT_EQ(dots[0].penWidth, 6.7f);
}

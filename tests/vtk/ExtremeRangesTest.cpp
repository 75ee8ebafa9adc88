#include "vtk/vtkPlotErrorPoints.h"
#include "vtk/vtkPlotInvisiblePoints.h"
#include "vtk/vtkPlotLineSet.h"
#include "vtk/vtkPlotStepLine.h"

#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkRect.h>

#include <gtest/gtest.h>

#include "VtkTestSupport.h"

/// The plot items in a chart whose axes are so far from 1 that it shifts and scales the points.
namespace
{
class ExtremeRanges : public ::testing::Test
{
protected:
  std::vector<RecordingDevice::Call> paint(vtkPlotPoints* item)
  {
    item->SetInputData(table, "x", "y");
    return paintAgain(item);
  }

  std::vector<RecordingDevice::Call> paintAgain(vtkPlotPoints* item)
  {
    item->SetShiftScale(shiftScale);
    item->Update();
    recording.device->clear();
    EXPECT_TRUE(item->Paint(recording.painter));
    return recording.device->calls();
  }

  void changeY(const std::vector<double>& y)
  {
    table->AddColumn(makeColumn<vtkDoubleArray>("y", y));
    table->Modified();
  }

  // Quarters of picomol per litre: painted as (x - 2) * 8 and (y - 2e-12) * 1e12.
  const vtkRectd shiftScale{-2, -2e-12, 8, 1e12};
  vtkSmartPointer<vtkTable> table =
      makeTable({{"x", {2, 2.5}}, {"y", {2.25e-12, 2.75e-12}}, {"color", {3, 4}}});
  RecordingPainter recording;
};

void expectNear(const Points& painted, const Points& expected)
{
  ASSERT_EQ(painted.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i)
  {
    EXPECT_FLOAT_EQ(painted[i].first, expected[i].first) << "point " << i;
    EXPECT_NEAR(painted[i].second, expected[i].second, 1e-3 + 1e-6 * std::abs(expected[i].second))
        << "point " << i;
  }
}
} // namespace

TEST_F(ExtremeRanges, ScaleTheErrorBarsWithTheirPoints)
{
  const auto errors = makeColumn<vtkFloatArray>("error", {0.125e-12, 1e-12});
  table->AddColumn(errors);
  vtkNew<vtkPlotErrorPoints> points;
  points->SetInputData(table, "x", "y");
  points->SelectErrorArray("error");
  const auto calls = paintAgain(points);
  errors->Register(nullptr); // released by the item's destructor
  ASSERT_EQ(calls.size(), 3u);
  expectNear(calls[0].points, {{0, 0.125f}, {0, 0.375f}});
  expectNear(calls[1].points, {{4, -0.25f}, {4, 1.75f}});
  expectNear(calls[2].points, {{0, 0.25f}, {4, 0.75f}});
}

TEST_F(ExtremeRanges, MoveTheEndsOfTheStaircase)
{
  vtkNew<vtkPlotStepLine> line;
  const auto calls = paint(line);
  ASSERT_EQ(calls.size(), 1u);
  expectNear(calls[0].points,
             {{0, -2}, {0, 0.25f}, {4, 0.25f}, {4, 0.75f}, {4, 0.75f}, {4, 1e12f}});
}

TEST_F(ExtremeRanges, MoveRunsAndTheirHighlights)
{
  vtkNew<vtkPlotLineSet> lines;
  lines->SetStride(2);
  lines->OnlyShowSelectedOff();
  lines->SetSelection(makeIds({1}));
  const auto calls = paint(lines);
  ASSERT_EQ(calls.size(), 2u);
  for (const auto& call : calls)
    expectNear(call.points, {{0, 0.25f}, {4, 0.75f}});
}

TEST_F(ExtremeRanges, MoveTheSelectedInvisiblePoints)
{
  vtkNew<vtkPlotInvisiblePoints> points;
  points->SetSelection(makeIds({1}));
  const auto calls = paint(points);
  ASSERT_EQ(calls.size(), 1u);
  expectNear(calls[0].points, {{4, 0.75f}});
}

TEST_F(ExtremeRanges, FollowAChangedTableWithTheHighlightsOfPoints)
{
  vtkNew<vtkPlotInvisiblePoints> onlySelected;
  vtkNew<vtkPlotInvisiblePoints> all;
  vtkNew<vtkPlotErrorPoints> bars;
  all->OnlyShowSelectedOff();
  for (vtkPlotPoints* item : {static_cast<vtkPlotPoints*>(onlySelected),
                              static_cast<vtkPlotPoints*>(all), static_cast<vtkPlotPoints*>(bars)})
  {
    item->SetMarkerStyle(vtkPlotPoints::CIRCLE);
    changeY({2.25e-12, 2.75e-12});
    item->SetSelection(makeIds({1}));
    expectNear(paint(item).back().points, {{4, 0.75f}});
    for (const double y : {3.0, 4.0})
    {
      changeY({2e-12, y * 1e-12});
      const auto calls = paintAgain(item);
      expectNear(calls.back().points, {{4, static_cast<float>(y - 2)}});
      EXPECT_TRUE(calls.back().highlight);
    }
  }
}

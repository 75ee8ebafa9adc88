#include "vtk/vtkPlotShiftedBag.h"
#include "vtk/vtkPlotShiftedStack.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkContextMouseEvent.h>
#include <vtkDoubleArray.h>
#include <vtkTooltipItem.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "PlacedChart.h"

/// Areas in a chart whose axes are so far from 1 that it shifts and scales its points.
namespace
{
class ShiftedAreas : public PlacedChart
{
protected:
  ShiftedAreas()
  {
    setAxis(vtkAxis::BOTTOM, 309, 311);
    setAxis(vtkAxis::LEFT, 1e-12, 2e-12);
    table->AddColumn(band());
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
    paintChart();
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

TEST_F(ShiftedAreas, AreNamedWithTheirValueUnderTheMouse)
{
  table->AddColumn(makeColumn<vtkDoubleArray>("more", {0.25e-12, 0.25e-12, 0.25e-12}));
  vtkNew<vtkPlotShiftedStack> stack;
  stack->SetInputArray(2, "more");
  paint(stack, "y", RecordingDevice::Kind::Quad);
  const int* low = chart->GetPoint1();
  const int* high = chart->GetPoint2();
  const auto tooltipAt = [&](float x, float y)
  {
    vtkContextMouseEvent mouse;
    const vtkVector2f place(low[0] + x * (high[0] - low[0]), low[1] + y * (high[1] - low[1]));
    mouse.SetInteractor(nullptr);
    mouse.SetButton(vtkContextMouseEvent::NO_BUTTON);
    mouse.SetPos(place);
    mouse.SetScenePos(place);
    mouse.SetScreenPos(vtkVector2i(static_cast<int>(place.GetX()), static_cast<int>(place.GetY())));
    chart->MouseMoveEvent(mouse);
    return chart->GetTooltip()->GetVisible() ? std::string(chart->GetTooltip()->GetText()) : "";
  };
  EXPECT_EQ(tooltipAt(0.5f, 0.2f), "y: 310,  1.5e-12");
  EXPECT_EQ(tooltipAt(0.5f, 0.6f), "more: 310,  1.75e-12");
  EXPECT_EQ(tooltipAt(0.5f, 0.9f), "") << "above both";
  EXPECT_EQ(stack->GetLabel(), "y");
}

TEST_F(ShiftedAreas, AreSelectedWhereTheyArePainted)
{
  vtkNew<vtkPlotShiftedStack> stack;
  paint(stack, "y", RecordingDevice::Kind::Quad);
  const vtkRectd moved = stack->GetShiftScale();
  const auto cornerOf = [&](double x, double y)
  {
    return vtkVector2f(static_cast<float>((x + moved.GetX()) * moved.GetWidth()),
                       static_cast<float>((y + moved.GetY()) * moved.GetHeight()));
  };
  ASSERT_TRUE(stack->SelectPoints(cornerOf(309.5, 1.4e-12), cornerOf(310.5, 1.6e-12)));
  ASSERT_EQ(stack->GetSelection()->GetNumberOfValues(), 1);
  EXPECT_EQ(stack->GetSelection()->GetValue(0), 1);
}

TEST_F(ShiftedAreas, ReachNoFurtherThanTheirAreas)
{
  vtkNew<vtkPlotShiftedStack> stack;
  paint(stack, "y", RecordingDevice::Kind::Quad);
  // what the plot before has left there
  double bounds[4] = {-1e9, 1e9, -1e9, 1e9};
  stack->GetBounds(bounds);
  EXPECT_FLOAT_EQ(bounds[0], 309);
  EXPECT_FLOAT_EQ(bounds[1], 311);
  EXPECT_EQ(bounds[2], 0) << "they stand on it";
  EXPECT_FLOAT_EQ(bounds[3] * 1e12, 1.75);
}

TEST_F(ShiftedAreas, HaveTheBoundsOfABagOnLogarithmicAxes)
{
  setAxis(vtkAxis::LEFT, 1e-12, 2e-9);
  for (const int axis : {vtkAxis::LEFT, vtkAxis::BOTTOM})
    chart->GetAxis(axis)->SetLogScale(true);
  for (const char* column : {"band", "y"})
  {
    vtkNew<vtkPlotShiftedBag> bag;
    paint(bag, column, RecordingDevice::Kind::QuadStrip);
    const bool isLine = column[0] == 'y';
    double bounds[4];
    bag->GetUnscaledInputBounds(bounds);
    EXPECT_EQ(bounds[0], 309);
    EXPECT_EQ(bounds[1], 311);
    EXPECT_DOUBLE_EQ(bounds[2], isLine ? 1.25e-12 : 1e-12);
    EXPECT_DOUBLE_EQ(bounds[3], isLine ? 1.75e-12 : 2e-12);
    bag->GetBounds(bounds);
    EXPECT_DOUBLE_EQ(bounds[0], std::log10(309));
    EXPECT_DOUBLE_EQ(bounds[1], std::log10(311));
    EXPECT_DOUBLE_EQ(bounds[2], std::log10(isLine ? 1.25e-12 : 1e-12));
    EXPECT_DOUBLE_EQ(bounds[3], std::log10(isLine ? 1.75e-12 : 2e-12));
  }
}

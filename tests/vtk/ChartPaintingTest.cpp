#include "vtk/vtkPlotErrorPoints.h"
#include "vtk/vtkPlotInvisiblePoints.h"
#include "vtk/vtkPlotLineSet.h"
#include "vtk/vtkPlotStepLine.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkContext2D.h>
#include <vtkContextScene.h>
#include <vtkFloatArray.h>
#include <vtkPen.h>

#include <gtest/gtest.h>

#include "VtkTestSupport.h"

/// The plot items in a chart that paints itself as on a screen.
namespace
{
class ChartPainting : public ::testing::Test
{
protected:
  void SetUp() override
  {
    recording.device->setSize(400, 300);
    scene->SetGeometry(400, 300);
    scene->AddItem(chart);
  }

  // The items' own calls, told by their colour.
  std::vector<RecordingDevice::Call> paint(const RecordingDevice::Color& color)
  {
    // The first pass settles the axes, as the first frame on a screen does.
    for (int pass = 0; pass < 2; ++pass)
    {
      recording.device->clear();
      scene->Paint(recording.painter);
    }
    std::vector<RecordingDevice::Call> found;
    for (const auto& call : recording.device->calls())
    {
      if (call.penColor == color)
        found.push_back(call);
    }
    return found;
  }

  void add(vtkPlot* plot)
  {
    plot->SetColor(10, 20, 30, 255);
    plot->SetInputData(table, "x", "y");
    chart->AddPlot(plot);
  }

  const RecordingDevice::Color own{10, 20, 30, 255};
  vtkSmartPointer<vtkTable> table = makeTable({{"x", {1, 2, 3, 4}}, {"y", {0.25, 0.5, 0.75, 1.0}}});
  vtkNew<vtkContextScene> scene;
  vtkNew<vtkChartXY> chart;
  RecordingPainter recording;
};
} // namespace

TEST_F(ChartPainting, ShowsTheStaircase)
{
  vtkNew<vtkPlotStepLine> line;
  add(line);
  const Points staircase{{1, 0},    {1, 0.25f}, {2, 0.25f}, {2, 0.5f}, {3, 0.5f},
                         {3, 0.75}, {4, 0.75},  {4, 1},     {4, 1},    {4, 1}};
  auto calls = paint(own);
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].points, staircase);

  table->RemoveRow(3);
  table->Modified();
  calls = paint(own);
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].points.size(), 8u);
}

TEST_F(ChartPainting, ShowsTheStaircaseOnALogAxis)
{
  table = makeTable({{"x", {10, 100}}, {"y", {0.25, 0.75}}});
  vtkNew<vtkPlotStepLine> line;
  add(line);
  chart->GetAxis(vtkAxis::BOTTOM)->SetLogScale(true);
  const auto calls = paint(own);
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].points, (Points{{1, 0}, {1, 0.25}, {2, 0.25}, {2, 0.75}, {2, 0.75}, {2, 1}}));
}

TEST_F(ChartPainting, ShowsErrorBarsAndMarkers)
{
  table->AddColumn(makeColumn<vtkFloatArray>("error", {0.125, 0, 0.25, 0.5}));
  vtkNew<vtkPlotErrorPoints> points;
  add(points);
  points->SelectErrorArray(2);
  const auto calls = paint(own);
  ASSERT_EQ(calls.size(), 5u);
  EXPECT_EQ(calls[0].points, (Points{{1, 0.125f}, {1, 0.375f}}));
  EXPECT_EQ(calls[4].kind, Kind::Markers);
  // The reference that the item releases at its end.
  table->GetColumnByName("error")->Register(nullptr);
}

TEST_F(ChartPainting, ShowsRunsAndHighlightsTheMarkedOne)
{
  table->AddColumn(makeColumn<vtkIdTypeArray>("vtkRemainderSelection", {0, 0, 0, 1}));
  vtkNew<vtkPlotLineSet> lines;
  lines->SetStride(2);
  lines->OnlyShowSelectedOff();
  add(lines);
  EXPECT_EQ(paint(own).size(), 2u);
  const auto highlighted = paint(HighlightColor);
  ASSERT_EQ(highlighted.size(), 1u);
  EXPECT_EQ(highlighted[0].points, (Points{{3, 0.75f}, {4, 1}}));
}

TEST_F(ChartPainting, ShowsOnlyTheSelectedInvisiblePoints)
{
  vtkNew<vtkPlotInvisiblePoints> points;
  add(points);
  EXPECT_TRUE(paint(own).empty());
  points->SetSelection(makeIds({2}));
  const auto highlighted = paint(HighlightColor);
  ASSERT_EQ(highlighted.size(), 1u);
  EXPECT_EQ(highlighted[0].points, (Points{{3, 0.75f}}));
}

TEST_F(ChartPainting, RecordsTitlesAndRectanglesOfTheChart)
{
  vtkNew<vtkPlotStepLine> line;
  add(line);
  chart->SetTitle("A title");
  paint(own);
  bool hasTitle = false;
  for (const auto& call : recording.device->calls(Kind::String))
    hasTitle = hasTitle || call.text == "A title";
  EXPECT_TRUE(hasTitle);
  EXPECT_FALSE(recording.device->calls(Kind::Quad).empty());
}

#include "external/Distribution.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PlotScene.h"
#include "support/RecordingDevice.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"
#include "support/VtkErrors.h"
#include "vtk/vtkPlotErrorPoints.h"

#include <vtkAxis.h>
#include <vtkPen.h>

#include <gtest/gtest.h>

#include <array>

#include "ErrorBarFixture.h"

using SampleRuns::valuesOf;

namespace
{

class ErrorBarChart : public ErrorBarFixture
{
};

using Columns = std::array<std::string, 2>;

TEST_F(ErrorBarChart, PlotsTheFirstColumnsWithTheirErrors)
{
  settings().xLabel = "x label";
  settings().yLabel = "y label";
  settings().title = "title";
  settings().color = {10, 20, 30, 40};
  container.setLeftMargin(91);
  redraw();
  ASSERT_EQ(chart()->GetNumberOfPlots(), 1);
  ASSERT_NE(errorBars(), nullptr);
  EXPECT_EQ(errorBars()->GetInput(), table());
  EXPECT_EQ(inputOf(0), (Columns{"x", "y"}));
  EXPECT_FALSE(errorBars()->GetUseIndexForXSeries());
  EXPECT_EQ(errorBars()->GetErrorArrayName(), "error");
  EXPECT_EQ(bottom()->GetTitle(), "x label");
  EXPECT_EQ(chart()->GetAxis(vtkAxis::LEFT)->GetTitle(), "y label");
  EXPECT_EQ(chart()->GetTitle(), "title");
  unsigned char color[3];
  errorBars()->GetPen()->GetColor(color);
  EXPECT_EQ((std::vector<int>{color[0], color[1], color[2]}), (std::vector<int>{10, 20, 30}));
  EXPECT_EQ(errorBars()->GetPen()->GetOpacity(), 40);
  EXPECT_EQ(chart()->GetPoint1()[0], 91);
  EXPECT_EQ(container.getItem(), chart());
  EXPECT_EQ(chart()->GetScene(), scene.scene());
}

TEST_F(ErrorBarChart, MembersDrawIntoAnyScene)
{
  PlotScene other;
  container.drawScatterPlotWithErrorBars(other.scene());
  EXPECT_EQ(chart()->GetScene(), other.scene());
  ASSERT_EQ(chart()->GetNumberOfPlots(), 1);
  container.setScene(scene.scene());
}

TEST_F(ErrorBarChart, UsesTheRowIndexWhenAsked)
{
  container.setUseIndexForXSeries(true);
  redraw();
  EXPECT_TRUE(errorBars()->GetUseIndexForXSeries());
  EXPECT_EQ(inputOf(0), (Columns{"x", "y"}));
  settings().xColumns = {99};
  redraw();
  EXPECT_TRUE(errorBars()->GetUseIndexForXSeries());
  EXPECT_EQ(errorBars()->GetInput(), table()) << "x columns do not matter then";
}

TEST_F(ErrorBarChart, CustomTicksStandAtTheIndices)
{
  container.setXTickLabels({"a", "b", "c"});
  container.setXTickPosition({7.0, 8.0, 9.0});
  redraw();
  EXPECT_EQ(valuesOf(bottom()->GetTickPositions()), (std::vector<double>{0.0, 1.0, 2.0}));
  EXPECT_EQ(bottom()->GetTickLabels()->GetValue(2), "c");
  container.setXTickLabels({});
  redraw();
  scene.render(container);
  EXPECT_NE(bottom()->GetTickLabels()->GetValue(0), "a");
}

TEST_F(ErrorBarChart, EveryBarIsDrawn)
{
  redraw();
  errorBars()->Update();
  RecordingPainter painting;
  errorBars()->Paint(painting.painter);
  // VTK hands a line to the device as a polyline of two points.
  std::vector<std::vector<RecordingDevice::Point>> bars;
  for (const auto& call : painting.device->calls(RecordingDevice::Kind::Poly))
    bars.push_back(call.points);
  using Bar = std::vector<RecordingDevice::Point>;
  EXPECT_EQ(bars,
            (std::vector<Bar>{
                {{1, 9}, {1, 11}}, {{2, 11.5}, {2, 12.5}}, {{3, 9}, {3, 9}}, {{5, 9}, {5, 13}}}));
}

TEST_F(ErrorBarChart, LineWidthIsThatOfTheSettings)
{
  redraw();
  container.setLineWidth(4.5);
  EXPECT_EQ(errorBars()->GetPen()->GetWidth(), 4.5F);
  redraw();
  EXPECT_EQ(errorBars()->GetPen()->GetWidth(), 4.5F) << "the next drawing keeps it";
}

TEST_F(ErrorBarChart, MissingColumnsPaintWithoutComplaint)
{
  VtkErrors errors;
  for (const int bad : {-1, 5, 1000})
  {
    settings().xColumns = {bad};
    redraw();
    scene.render(container);
    settings().xColumns = {0};
    settings().yColumns = {bad};
    redraw();
    scene.render(container);
    settings().yColumns = {1};
    settings().zColumns = {bad};
    redraw();
    EXPECT_EQ(errorBars()->GetErrorArrayName(), "");
    scene.render(container);
  }
  settings().xColumns.clear();
  settings().yColumns.clear();
  settings().zColumns.clear();
  redraw();
  scene.render(container);
  container.setPlotData(vtkSmartPointer<vtkTable>::New());
  redraw();
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(ErrorBarChart, ErrorsOfAnotherTypeGiveMarkersOnly)
{
  container.setPlotData(plainTable());
  redraw();
  errorBars()->Update();
  RecordingPainter painting;
  errorBars()->Paint(painting.painter);
  EXPECT_TRUE(painting.device->calls(RecordingDevice::Kind::Poly).empty());
  EXPECT_FALSE(painting.device->calls(RecordingDevice::Kind::Markers).empty());
}

TEST_F(ErrorBarChart, NothingOfOtherChartsShowsThrough)
{
  UniformDistribution uniform(0.0, 1.0);
  container.setDistribution(&uniform);
  container.setPlotData(measurements());
  redraw();
  vtkAxis* left = chart()->GetAxis(vtkAxis::LEFT);
  EXPECT_EQ(left->GetBehavior(), vtkAxis::AUTO);
  EXPECT_TRUE(left->GetTicksVisible());
  EXPECT_TRUE(left->GetLabelsVisible());
  EXPECT_EQ(bottom()->GetNumberOfTicks(), -1);
  EXPECT_TRUE(chart()->GetInteractive());

  container.getMetaData()->blockSignals(true);
  settings().setPlotStyle(reservedStyle1);
  container.setupStackedSobol(false);
  container.setScene(scene.scene());
  settings().setPlotStyle(scatterWithErrorBars);
  redraw();
  EXPECT_EQ(chart()->GetAxis(vtkAxis::LEFT)->GetBehavior(), vtkAxis::AUTO);
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
}

TEST_F(ErrorBarChart, SimplePlotWithErrorsShowsThem)
{
  std::vector<double> x{1, 2, 3};
  std::vector<double> y{4, 5, 6};
  std::vector<double> error{0.5, 0.5, 0.5};
  container.setSimpleXYPlot(x, y, error);
  ASSERT_NE(errorBars(), nullptr);
  EXPECT_EQ(errorBars()->GetErrorArrayName(), "error");
  EXPECT_EQ(errorBars()->GetMarkerStyle(), 3);
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 1000);
}

} // namespace

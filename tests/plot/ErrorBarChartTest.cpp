#include "external/Distribution.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/PlotScene.h"
#include "support/RecordingDevice.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"
#include "support/VtkErrors.h"
#include "vtk/vtkPlotErrorPoints.h"

#include <vtkAxis.h>
#include <vtkContextMapper2D.h>
#include <vtkFloatArray.h>
#include <vtkPen.h>
#include <vtkPlotLine.h>
#include <vtkVariant.h>

#include <gtest/gtest.h>

#include <array>
#include <limits>

using SampleRuns::valuesOf;

namespace
{

void addFloats(vtkTable* table, const std::string& name, const std::vector<double>& values)
{
  vtkNew<vtkFloatArray> column;
  column->SetName(name.c_str());
  for (const double value : values)
    column->InsertNextValue(static_cast<float>(value));
  table->AddColumn(column);
}

/// Columns x, y, error, x2 and y2 of single precision.
vtkSmartPointer<vtkTable> measurements()
{
  auto table = vtkSmartPointer<vtkTable>::New();
  addFloats(table, "x", {1.0, 2.0, 3.0, 5.0});
  addFloats(table, "y", {10.0, 12.0, 9.0, 11.0});
  addFloats(table, "error", {1.0, 0.5, 0.0, 2.0});
  addFloats(table, "x2", {1.0, 2.0, 4.0, 5.0});
  addFloats(table, "y2", {10.5, 11.5, 10.0, 10.5});
  return table;
}

class ErrorBarChart : public ::testing::Test
{
protected:
  ErrorBarChart()
  {
    container.setScene(scene.scene());
    container.getMetaData()->blockSignals(true);
    container.getMetaData()->setPlotStyle(scatterWithErrorBars);
    container.getMetaData()->blockSignals(false);
    container.setPlotData(measurements());
  }

  void redraw() { container.redraw(); }
  void secondSeries(const std::vector<int>& x, const std::vector<int>& y)
  {
    settings().xColumns = x;
    settings().yColumns = y;
    redraw();
  }

  PlotMetaData& settings() { return *container.getMetaData(); }
  vtkChartXY* chart() { return container.getChartXY(); }
  vtkAxis* bottom() { return chart()->GetAxis(vtkAxis::BOTTOM); }
  vtkPlotErrorPoints* errorBars() { return vtkPlotErrorPoints::SafeDownCast(chart()->GetPlot(0)); }
  vtkTable* table() { return container.getTable(); }

  /// x and y column of a plot.
  std::array<std::string, 2> inputOf(int index)
  {
    vtkPlot* plot = chart()->GetPlot(index);
    const auto name = [plot](int array)
    {
      return std::string(
          plot->GetData()->GetInputArrayToProcess(array, plot->GetInput())->GetName());
    };
    return {name(0), name(1)};
  }

  PlotScene scene;
  PlotContainer container{nullptr};
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

TEST_F(ErrorBarChart, PadsAFloatXAxisInSinglePrecisionBeforeTheFirstPaint)
{
  redraw();
  const float padding = 0.05F * (5.0F - 1.0F);
  EXPECT_EQ(bottom()->GetUnscaledMinimum(), 1.0F - padding);
  EXPECT_EQ(bottom()->GetUnscaledMaximum(), 5.0F + padding);
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
}

TEST_F(ErrorBarChart, AXAxisThatIsNotFloatIsLeftToAutomaticScaling)
{
  redraw();
  container.setPlotData(plainTable());
  bottom()->SetUnscaledRange(-7.0, 7.0);
  redraw();
  EXPECT_EQ(bottom()->GetUnscaledMinimum(), -7.0);
  EXPECT_EQ(bottom()->GetUnscaledMaximum(), 7.0);
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
  scene.render(container);
  EXPECT_EQ(bottom()->GetMinimum(), 0.0);
  EXPECT_EQ(bottom()->GetMaximum(), 4.0);
}

TEST_F(ErrorBarChart, AFloatColumnThatIsNotFiniteDoesNotTouchTheRange)
{
  auto odd = vtkSmartPointer<vtkTable>::New();
  addFloats(odd, "x", {1.0, std::numeric_limits<double>::infinity()});
  addFloats(odd, "y", {1.0, 2.0});
  addFloats(odd, "error", {1.0, 2.0});
  container.setPlotData(odd);
  bottom()->SetUnscaledRange(-7.0, 7.0);
  redraw();
  EXPECT_EQ(bottom()->GetUnscaledMaximum(), 7.0);
  scene.render(container);
}

TEST_F(ErrorBarChart, SecondPairOfColumnsIsALine)
{
  secondSeries({0, 3}, {1, 4});
  ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_NE(vtkPlotLine::SafeDownCast(chart()->GetPlot(1)), nullptr);
  EXPECT_EQ(chart()->GetPlot(1)->GetInput(), table());
  EXPECT_EQ(inputOf(1), (Columns{"x2", "y2"}));
  EXPECT_FALSE(chart()->GetPlot(1)->GetUseIndexForXSeries());
}

TEST_F(ErrorBarChart, SecondSeriesNeedsTwoYColumnsAndAnX)
{
  secondSeries({0, 3}, {1});
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
  secondSeries({0}, {1, 4});
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
  container.setUseIndexForXSeries(true);
  redraw();
  ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_EQ(inputOf(1), (Columns{"x", "y2"})) << "column 0 stands in for the second x column";
  EXPECT_TRUE(chart()->GetPlot(1)->GetUseIndexForXSeries());
}

TEST_F(ErrorBarChart, SecondSeriesComesFromTheFirstDerivedTable)
{
  const auto curve = tableOf({{"u", {0, 10, 20}}, {"v", {3, 4, 5}}});
  container.state().derivedTables = {curve, table()};
  secondSeries({0, 0}, {1, 1});
  EXPECT_EQ(chart()->GetPlot(1)->GetInput(), curve);
  EXPECT_EQ(inputOf(1), (Columns{"u", "v"}));
  EXPECT_FALSE(chart()->GetPlot(1)->GetSelectable()) << "its rows are not those of the plot table";
  container.state().derivedTables = {nullptr, curve};
  redraw();
  EXPECT_EQ(chart()->GetPlot(1)->GetInput(), table());
  EXPECT_TRUE(chart()->GetPlot(1)->GetSelectable());
}

TEST_F(ErrorBarChart, SecondSeriesOutsideItsTableHasNoInput)
{
  VtkErrors errors;
  for (const auto& [x, y] : {std::pair{3, 5}, {5, 4}, {-1, 4}, {3, -1}})
  {
    secondSeries({0, x}, {1, y});
    ASSERT_EQ(chart()->GetNumberOfPlots(), 2);
    EXPECT_EQ(chart()->GetPlot(1)->GetInput(), nullptr) << x << ' ' << y;
    scene.render(container);
  }
  container.state().derivedTables = {tableOf({{"u", {0, 10}}})};
  secondSeries({0, 0}, {1, 1});
  EXPECT_EQ(chart()->GetPlot(1)->GetInput(), nullptr);
  EXPECT_EQ(errors.text(), "");
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

TEST_F(ErrorBarChart, AHundredRedrawsNeitherLeakNorFreeTheErrorColumn)
{
  vtkAbstractArray* column = table()->GetColumnByName("error");
  const int references = column->GetReferenceCount();
  for (int i = 0; i < 100; ++i)
  {
    redraw();
    // Drawn, updated only and never looked at.
    if (i % 3 == 0)
      scene.render(container);
    else if (i % 3 == 1)
      errorBars()->Update();
  }
  chart()->ClearPlots();
  EXPECT_EQ(column->GetReferenceCount(), references);
  EXPECT_EQ(valuesOf(column), (std::vector<double>{1.0, 0.5, 0.0, 2.0}));
}

TEST_F(ErrorBarChart, AReplacedErrorColumnIsReleasedOnceAndTheNewOneKept)
{
  for (int i = 0; i < 100; ++i)
  {
    redraw();
    errorBars()->Update();
    addFloats(table(), "error", {1.0, 2.0, 3.0, 4.0});
    if (i % 2 == 0)
      errorBars()->Update();
  }
  vtkAbstractArray* column = table()->GetColumnByName("error");
  const int references = column->GetReferenceCount();
  redraw();
  errorBars()->Update();
  table()->RemoveColumnByName("error");
  redraw();
  container.setPlotData(measurements());
  redraw();
  scene.render(container);
  EXPECT_GE(references, 1);
  EXPECT_EQ(valuesOf(table(), "error"), (std::vector<double>{1.0, 0.5, 0.0, 2.0}));
}

TEST_F(ErrorBarChart, ItemsMayOutliveTheirTable)
{
  redraw();
  errorBars()->Update();
  vtkSmartPointer<vtkPlot> item = chart()->GetPlot(0);
  container.setPlotData(plainTable());
  redraw();
  item = nullptr;
  EXPECT_NE(errorBars(), nullptr);
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

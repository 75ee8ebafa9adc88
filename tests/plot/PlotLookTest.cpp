#include "external/LinePlotData.h"
#include "external/PlotMetaData.h"
#include "plot/PlotState.h"
#include "support/PlotFixture.h"
#include "support/RecordingDevice.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"
#include "vtk/vtkGuardedAxis.h"

#include <vtkChartLegend.h>
#include <vtkContext2D.h>
#include <vtkPen.h>
#include <vtkTextProperty.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{

/// A look that differs from the library's in everything.
PlotLook otherLook()
{
  PlotLook look;
  look.textSize = 6;
  look.foreground = {10, 20, 30, 255};
  look.grid = {40, 50, 60, 255};
  look.series = {{1, 2, 3, 255}, {4, 5, 6, 255}};
  look.highlight = {{7, 8, 9, 210}, 5.0};
  look.ticksFollowText = true;
  look.labelsEcdfs = true;
  return look;
}

class PlotLooks : public PlotFixture
{
protected:
  void setLook(const PlotLook& look)
  {
    PlotOptions options = container.getOptions();
    options.look = look;
    container.setOptions(options);
    container.redraw();
  }

  void expectDressed(vtkChart* dressed, int textSize, double green)
  {
    ASSERT_TRUE(dressed);
    EXPECT_EQ(dressed->GetTitleProperties()->GetFontSize(), textSize);
    for (int i = 0; i < dressed->GetNumberOfAxes(); ++i)
    {
      vtkAxis* axis = dressed->GetAxis(i);
      EXPECT_EQ(axis->GetLabelProperties()->GetFontSize(), textSize) << i;
      EXPECT_EQ(axis->GetTitleProperties()->GetFontSize(), textSize) << i;
      EXPECT_DOUBLE_EQ(axis->GetLabelProperties()->GetColor()[1], green) << i;
    }
  }

  /// The chart that is shown, or all charts of the page.
  void expectAllDressed(int textSize, int textSizeIn3D, double green)
  {
    vtkAbstractContextItem* item = container.getItem();
    if (auto* chart3D = vtkChartXYZ::SafeDownCast(item))
    {
      EXPECT_EQ(chart3D->GetAxesTextProperty()->GetFontSize(), textSizeIn3D);
      return;
    }
    auto* page = vtkChartMatrix::SafeDownCast(item);
    if (!page)
      return expectDressed(vtkChart::SafeDownCast(item), textSize, green);
    for (vtkIdType i = 0; i < page->GetNumberOfItems(); ++i)
      if (auto* cell = vtkChart::SafeDownCast(page->GetItem(i)))
        expectDressed(cell, textSize, green);
  }
};

} // namespace

TEST_F(PlotLooks, AreTheLibrarysAtFirst)
{
  expectDressed(chart(), 12, 0.0);
  EXPECT_EQ(chart()->GetLegend()->GetLabelProperties()->GetFontSize(), 12);
  unsigned char grid[4];
  bottom()->GetGridPen()->GetColor(grid);
  EXPECT_EQ(grid[0], 242);
  EXPECT_TRUE(bottom()->GetTitleProperties()->GetBold());
  EXPECT_FALSE(vtkGuardedAxis::SafeDownCast(bottom())->GetTicksFollowText());
}

TEST_F(PlotLooks, AreTakenAndGivenBackInEveryStyle)
{
  // Titles of parameters leave the kind of the name out.
  container.getTable()->GetColumn(2)->SetName("Parameter: k");
  for (const plotStyles style : {xyPlot, scatterWithErrorBars, multiPlot, selectionCdfPlot,
                                 scatterPlotMatrix, parallelCoordinates, xyzPlot})
  {
    settings().parameterColumns = {2};
    drawStyle(style);
    setLook(otherLook());
    expectAllDressed(6, 7, 20.0 / 255.0);
    setLook({});
    expectAllDressed(12, 14, 0.0);
  }
}

TEST_F(PlotLooks, AreCopiedWithTheContainer)
{
  setLook(otherLook());
  EXPECT_EQ(PlotContainer(container).getOptions().look.textSize, 6);
}

TEST_F(PlotLooks, ColourSeriesInTurn)
{
  setLook(otherLook());
  std::vector<double> times{0.0, 1.0};
  std::vector<double> values{1.0, 2.0};
  LinePlotData data;
  data.xName = "t";
  data.xValues = &times;
  std::vector<Talmesh::TypedConcentrationName> items;
  for (const char* name : {"A", "B", "C"})
  {
    items.emplace_back(Talmesh::Molecule, name);
    data.series[items.back()] = &values;
  }
  container.setLinePlotData(&data);
  container.setLinePlotItems(&items);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 3);
  const int expected[] = {1, 4, 1};
  for (vtkIdType i = 0; i < 3; ++i)
  {
    unsigned char color[4];
    chart()->GetPlot(i)->GetPen()->GetColor(color);
    EXPECT_EQ(color[0], expected[i]) << i;
  }
}

TEST(PlotLookOfRuns, HighlightsInItsColourAndWidth)
{
  SampleRuns::Plot plot{SampleRuns::runs(3, 3)};
  PlotMetaData& settings = *plot.container.getMetaData();
  settings.xColumns = {SampleRuns::timeColumn};
  settings.yColumns = {SampleRuns::complexColumn};
  PlotOptions options;
  options.look = otherLook();
  plot.container.setOptions(options);
  settings.setPlotLine(true);
  plot.scene->SetGeometry(400, 300);
  plot.scene->AddItem(plot.container.getItem());
  plot.container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({4}));
  RecordingPainter recording;
  recording.device->setSize(400, 300);
  plot.scene->Paint(recording.painter);
  std::vector<float> widths;
  float usual = 0.0F;
  for (const auto& call : recording.device->calls(RecordingDevice::Kind::Poly))
  {
    if (call.penColor == RecordingDevice::Color{7, 8, 9, 210})
      widths.push_back(call.penWidth);
    else if (call.points.size() == 3)
      usual = call.penWidth;
  }
  ASSERT_EQ(widths.size(), 1U);
  EXPECT_FLOAT_EQ(widths[0], usual + 5.0F);
}

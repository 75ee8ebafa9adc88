#include "plot/AppliedLook.h"

#include "plot/PlotState.h"
#include "plot/SobolChart.h"
#include "vtk/vtkGuardedAxis.h"

#include <vtkAxis.h>
#include <vtkChartLegend.h>
#include <vtkColorSeries.h>
#include <vtkPen.h>
#include <vtkTextProperty.h>

#include <algorithm>

namespace Talmesh::plot
{

namespace
{

/// What VTK writes the axes of 3-D charts in.
constexpr int usualSizeIn3D = 14;

void dressAxis(const PlotLook& look, vtkAxis* axis)
{
  dressText(look, axis->GetTitleProperties());
  dressText(look, axis->GetLabelProperties());
  const auto& line = look.foreground;
  const auto& grid = look.grid;
  axis->GetPen()->SetColor(line[0], line[1], line[2], line[3]);
  axis->GetGridPen()->SetColor(grid[0], grid[1], grid[2], grid[3]);
  if (auto* guarded = vtkGuardedAxis::SafeDownCast(axis))
    guarded->SetTicksFollowText(look.ticksFollowText);
}

void dressMatrix(const PlotLook& look, vtkChartMatrix* matrix)
{
  for (vtkIdType i = 0; i < matrix->GetNumberOfItems(); ++i)
    if (auto* chart = vtkChart::SafeDownCast(matrix->GetItem(i)))
      dressInLook(look, chart);
}

void dressScatterMatrix(const PlotLook& look, vtkScatterPlotMatrix* matrix)
{
  dressMatrix(look, matrix);
  dressText(look, matrix->GetTitleProperties());
  for (const int kind : {vtkScatterPlotMatrix::SCATTERPLOT, vtkScatterPlotMatrix::HISTOGRAM,
                         vtkScatterPlotMatrix::ACTIVEPLOT})
    dressText(look, matrix->GetAxisLabelProperties(kind));
}

} // namespace

void dressText(const PlotLook& look, vtkTextProperty* text, int usualSize)
{
  constexpr int usual = PlotLook::usualTextSize;
  text->SetFontSize(std::max(1, (usualSize * look.textSize + usual / 2) / usual));
  const auto& color = look.foreground;
  text->SetColor(color[0] / 255.0, color[1] / 255.0, color[2] / 255.0);
  text->SetOpacity(color[3] / 255.0);
  if (look.fontFile.empty())
    text->SetFontFamilyToArial();
  else
  {
    text->SetFontFamily(VTK_FONT_FILE);
    text->SetFontFile(look.fontFile.c_str());
  }
}

void dressInLook(const PlotLook& look, vtkChart* chart)
{
  dressText(look, chart->GetTitleProperties());
  for (int axis = 0; axis < chart->GetNumberOfAxes(); ++axis)
    dressAxis(look, chart->GetAxis(axis));
  if (vtkChartLegend* legend = chart->GetLegend())
    dressText(look, legend->GetLabelProperties());
}

void dressInLook(PlotState& state)
{
  const PlotLook& look = state.options.look;
  vtkAbstractContextItem* shown = state.currentChart;
  if (shown && shown == state.sobolChart.Get())
    dressSobolChart(look, state.sobolChart);
  else if (auto* matrix = vtkScatterPlotMatrix::SafeDownCast(shown))
    dressScatterMatrix(look, matrix);
  else if (auto* page = vtkChartMatrix::SafeDownCast(shown))
    dressMatrix(look, page);
  else if (auto* chart3D = vtkChartXYZ::SafeDownCast(shown))
  {
    dressText(look, chart3D->GetAxesTextProperty(), usualSizeIn3D);
    const auto& line = look.foreground;
    chart3D->SetAxisColor({line[0], line[1], line[2], line[3]});
  }
  else if (auto* chart = vtkChart::SafeDownCast(shown))
    dressInLook(look, chart);
}

vtkSmartPointer<vtkColorSeries> seriesColors(const PlotLook& look)
{
  auto colors = vtkSmartPointer<vtkColorSeries>::New();
  colors->SetColorScheme(vtkColorSeries::WILD_FLOWER);
  if (look.series.empty())
    return colors;
  colors->ClearColors();
  for (const PlotLook::Color& color : look.series)
    colors->AddColor({color[0], color[1], color[2]});
  return colors;
}

PlotLook::Color firstSeriesColor(const PlotLook& look, const PlotLook::Color& usual)
{
  return look.series.empty() ? usual : look.series.front();
}

void setColor(vtkPlot* plot, const PlotLook::Color& color)
{
  plot->SetColor(color[0], color[1], color[2], color[3]);
}

} // namespace Talmesh::plot

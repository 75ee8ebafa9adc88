#include "plot/PointAppearance.h"

#include "external/PlotMetaData.h"
#include "plot/ParameterCells.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/StyleTable.h"
#include "plot/TableColumns.h"
#include "vtk/vtkPlotErrorPoints.h"

#include <vtkLookupTable.h>
#include <vtkPen.h>
#include <vtkPlotPoints.h>

namespace Talmesh::plot
{

namespace
{

/// Active plots of the scatter-plot matrix are drawn larger, and so are their markers.
constexpr double activePlotScale = 1.5;

vtkPlot* firstPlot(vtkChart* chart)
{
  return chart ? chart->GetPlot(0) : nullptr;
}

void setMarkerSize(vtkPlot* plot, double size)
{
  if (auto* points = vtkPlotPoints::SafeDownCast(plot))
    points->SetMarkerSize(static_cast<float>(size));
}

vtkSmartPointer<vtkLookupTable> columnColors(const double range[2])
{
  auto colors = vtkSmartPointer<vtkLookupTable>::New();
  colors->SetAlpha(1.0);
  colors->SetHueRange(0.2, 0.8);
  colors->SetSaturationRange(0.95, 1.0);
  colors->SetValueRange(0.9, 0.9);
  colors->SetRange(range);
  colors->Build();
  return colors;
}

void colorByColumn(PlotState& state, vtkPlotPoints* points)
{
  const int column = state.metaData->colorColumn;
  double range[2];
  if (!finiteRange(doubleColumn(state.table, column), range))
    return;
  colorPoints(points, columnName(state.table, column), columnColors(range));
}

} // namespace

void setColorScheme(PlotState& state, const std::string& column, bool solid)
{
  state.metaData->solidColor = solid;
  if (!solid)
  {
    for (int i = 0; i < state.table->GetNumberOfColumns(); ++i)
    {
      if (columnName(state.table, i) == column)
        state.metaData->colorColumn = i;
    }
  }
  useColors(state, nullptr);
}

void useColors(PlotState& state, vtkPlot* plot)
{
  auto* points = vtkPlotPoints::SafeDownCast(plot ? plot : firstPlot(state.chartXY));
  if (!points)
    return;
  if (!state.metaData->solidColor)
  {
    colorByColumn(state, points);
    return;
  }
  points->ScalarVisibilityOff();
  const auto& color = state.metaData->color;
  const auto component = [&](std::size_t i) { return static_cast<unsigned char>(color[i]); };
  points->SetColor(component(0), component(1), component(2), component(3));
}

void setMarkerStyle(PlotState& state, int style)
{
  state.metaData->markerStyle = style;
  if (auto* points = vtkPlotPoints::SafeDownCast(firstPlot(state.chartXY)))
    points->SetMarkerStyle(style);
}

void setPointSize(PlotState& state, double size)
{
  state.metaData->pointSize = size;
  if (const auto resize = currentStyle(state).resizeMarkers)
    resize(state, size);
}

void resizeXYMarkers(PlotState& state, double size)
{
  setMarkerSize(firstPlot(state.chartXY), size);
}

void resizeScatterMatrixMarkers(PlotState& state, double size)
{
  state.scatterPlotMatrix->SetPlotMarkerSize(vtkScatterPlotMatrix::ACTIVEPLOT,
                                             static_cast<float>(size * activePlotScale));
  state.scatterPlotMatrix->SetPlotMarkerSize(vtkScatterPlotMatrix::SCATTERPLOT,
                                             static_cast<float>(size));
}

void resizeMultiPlotMarkers(PlotState& state, double size)
{
  const std::size_t parameters = state.metaData->parameterColumns.size();
  const auto resize = [&](int column, int row)
  { setMarkerSize(firstPlot(state.chartMatrix->GetChart(vtkVector2i(column, row))), size); };
  forEachPair(parameters, [&](const ParameterPair& pair) { resize(pair.column, pair.row); });
  const int middle = static_cast<int>(parameters / 2);
  resize(middle, middle);
}

void setLineWidth(PlotState& state, double width)
{
  state.metaData->setLineWidth(width);
  if (const auto widen = currentStyle(state).widenLines)
    widen(state, width);
}

void widenErrorBars(PlotState& state, double width)
{
  if (auto* errorBars = vtkPlotErrorPoints::SafeDownCast(firstPlot(state.chartXY)))
  {
    vtkSmartPointer<vtkPen> pen = errorBars->GetPen();
    pen->SetWidth(static_cast<float>(width));
    errorBars->SetPen(pen);
  }
}

} // namespace Talmesh::plot

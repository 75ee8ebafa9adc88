#include "plot/PointChart3D.h"

#include "external/PlotMetaData.h"
#include "plot/ChartLifetime.h"
#include "plot/DrawnRows.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "vtk/GestureHandling.h"
#include "vtk/RowSelections.h"
#include "vtk/vtkSelectableChartXYZ.h"

#include <vtkAnnotationLink.h>
#include <vtkChartXYZ.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkPen.h>
#include <vtkPlotPoints3D.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace Talmesh::plot
{

namespace
{

using Coordinates = std::array<vtkDataArray*, 3>;

/// Pixels, a bit more than the points.
constexpr float highlightWidth = 8.0F;

constexpr const char* axisNames[] = {"x", "y", "z"};

/// The rows as the chart stores them, in single precision.
std::vector<vtkVector3f> pointsOf(const Coordinates& coordinates)
{
  // A client may have shortened a column in place.
  const vtkIdType rows =
      std::min({coordinates[0]->GetNumberOfTuples(), coordinates[1]->GetNumberOfTuples(),
                coordinates[2]->GetNumberOfTuples()});
  std::vector<vtkVector3f> points(static_cast<std::size_t>(rows));
  for (vtkIdType row = 0; row < rows; ++row)
    for (int axis = 0; axis < 3; ++axis)
      points[static_cast<std::size_t>(row)][axis] =
          static_cast<float>(coordinates[static_cast<std::size_t>(axis)]->GetComponent(row, 0));
  return points;
}

/// A point that is not finite would stretch the axes without end.
bool isFinite(const vtkVector3f& point)
{
  return std::isfinite(point[0]) && std::isfinite(point[1]) && std::isfinite(point[2]);
}

/// A column named after each axis: the same column of the data may serve twice.
vtkSmartPointer<vtkTable> finitePoints(const std::vector<vtkVector3f>& points)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  for (int axis = 0; axis < 3; ++axis)
  {
    vtkNew<vtkFloatArray> column;
    column->SetName(axisNames[axis]);
    for (const vtkVector3f& point : points)
      if (isFinite(point))
        column->InsertNextValue(point[axis]);
    table->AddColumn(column);
  }
  return table;
}

/// As the places of the selected rows among the finite points.
void highlight(vtkPlot3D* plot, const std::vector<vtkVector3f>& points,
               const std::vector<bool>& selected, const PlotLook::Color& color)
{
  vtkNew<vtkIdTypeArray> places;
  vtkIdType place = 0;
  for (std::size_t row = 0; row < points.size(); ++row)
  {
    if (!isFinite(points[row]))
      continue;
    if (row < selected.size() && selected[row])
      places->InsertNextValue(place);
    ++place;
  }
  plot->GetSelectionPen()->SetColor(color[0], color[1], color[2], 255);
  plot->GetSelectionPen()->SetWidth(highlightWidth);
  plot->SetSelection(places);
}

/// Where a program takes gestures, points are selected and shown selected.
void enableSelection3D(PlotState& state, vtkPlot3D* plot, std::vector<vtkVector3f> points)
{
  auto* chart = vtkSelectableChartXYZ::SafeDownCast(state.chartXYZ);
  if (!chart)
    return;
  const DrawnRows drawn = drawnRows(state);
  chart->SetGestures(state.gestures);
  if (state.gestures->select)
    highlight(plot, points, markedRows(drawn.link->GetCurrentSelection(), drawn.table),
              state.options.look.highlight.color);
  chart->SetPoints(drawn.table, std::move(points), drawn.link);
}

bool feedPoints(PlotState& state, vtkPlotPoints3D* plot)
{
  const DrawnRows drawn = drawnRows(state);
  const Coordinates coordinates = {plottableColumn(drawn.table, drawn.x),
                                   plottableColumn(drawn.table, drawn.y),
                                   plottableColumn(drawn.table, drawn.z)};
  if (!coordinates[0] || !coordinates[1] || !coordinates[2])
    return false;
  std::vector<vtkVector3f> points = pointsOf(coordinates);
  vtkSmartPointer<vtkTable> finite = finitePoints(points);
  if (finite->GetNumberOfRows() == 0)
    return false;
  plot->SetInputData(finite, axisNames[0], axisNames[1], axisNames[2]);
  enableSelection3D(state, plot, std::move(points));
  return true;
}

void titleAxes(PlotState& state)
{
  const DrawnRows drawn = drawnRows(state);
  state.chartXYZ->SetXAxisLabel(columnName(drawn.table, drawn.x));
  state.chartXYZ->SetYAxisLabel(columnName(drawn.table, drawn.y));
  state.chartXYZ->SetZAxisLabel(columnName(drawn.table, drawn.z));
}

} // namespace

vtkSmartPointer<vtkChartXYZ> makeChart3D()
{
  return vtkSmartPointer<vtkSelectableChartXYZ>::New();
}

void drawPointChart3D(PlotState& state, vtkContextScene* scene)
{
  showChart(state, state.chartXYZ, scene);
  state.chartXYZ->ClearPlots();
  releaseChartXY(state);

  showSelectionInSummary(state);
  if (auto* chart = vtkSelectableChartXYZ::SafeDownCast(state.chartXYZ))
    chart->SetPoints(nullptr, {}, nullptr);
  vtkNew<vtkPlotPoints3D> plot;
  if (feedPoints(state, plot))
  {
    state.chartXYZ->AddPlot(plot);
    titleAxes(state);
  }
  state.chartXYZ->SetAxisColor(vtkColor4ub(0, 0, 0, 255));
  state.chartXYZ->RecalculateBounds();
  state.chartXYZ->SetGeometry(vtkRectf(75, 20, 250, 260));
}

} // namespace Talmesh::plot

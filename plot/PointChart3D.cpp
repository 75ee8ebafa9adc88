#include "plot/PointChart3D.h"

#include "external/PlotMetaData.h"
#include "plot/ChartLifetime.h"
#include "plot/DrawnRows.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "vtk/VtkCompat.h"

#include <vtkChartXYZ.h>
#include <vtkContext2D.h>
#include <vtkFloatArray.h>
#include <vtkObjectFactory.h>
#include <vtkPlotPoints3D.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace Talmesh::plot
{

namespace
{

using Coordinates = std::array<vtkDataArray*, 3>;

/// VTK's chart writes the numbers of its axes before it tells the painter how to write: in white on
/// white in the first painting of all, and as the last item wrote in the others.
class vtkLegibleChartXYZ : public vtkChartXYZ
{
public:
  static vtkLegibleChartXYZ* New();
  TALMESH_VTK_TYPE(vtkLegibleChartXYZ, vtkChartXYZ);

  bool Paint(vtkContext2D* painter) override
  {
    painter->ApplyTextProp(GetAxesTextProperty());
    return Scene && Superclass::Paint(painter);
  }

  // Without a scene of its own it is nowhere, as vtkSelectableChartXY.
  bool Hit(const vtkContextMouseEvent& mouse) override { return Scene && Superclass::Hit(mouse); }
  bool KeyPressEvent(const vtkContextKeyEvent& key) override
  {
    return Scene && Superclass::KeyPressEvent(key);
  }

protected:
  vtkLegibleChartXYZ() = default;
  ~vtkLegibleChartXYZ() override = default;

private:
  vtkLegibleChartXYZ(const vtkLegibleChartXYZ&) = delete;
  void operator=(const vtkLegibleChartXYZ&) = delete;
};

vtkStandardNewMacro(vtkLegibleChartXYZ);

constexpr const char* axisNames[] = {"x", "y", "z"};

/// The three columns as the chart stores them, in single precision, one named after each axis: the
/// same column may serve twice. A point that is not finite would stretch the axes without end.
vtkSmartPointer<vtkTable> finitePoints(const Coordinates& coordinates)
{
  std::array<vtkNew<vtkFloatArray>, 3> columns;
  // A client may have shortened a column in place.
  const vtkIdType rows =
      std::min({coordinates[0]->GetNumberOfTuples(), coordinates[1]->GetNumberOfTuples(),
                coordinates[2]->GetNumberOfTuples()});
  for (vtkIdType row = 0; row < rows; ++row)
  {
    std::array<float, 3> point;
    for (std::size_t axis = 0; axis < point.size(); ++axis)
      point[axis] = static_cast<float>(coordinates[axis]->GetComponent(row, 0));
    if (!std::isfinite(point[0]) || !std::isfinite(point[1]) || !std::isfinite(point[2]))
      continue;
    for (std::size_t axis = 0; axis < point.size(); ++axis)
      columns[axis]->InsertNextValue(point[axis]);
  }
  auto points = vtkSmartPointer<vtkTable>::New();
  for (std::size_t axis = 0; axis < columns.size(); ++axis)
  {
    columns[axis]->SetName(axisNames[axis]);
    points->AddColumn(columns[axis]);
  }
  return points;
}

bool feedPoints(vtkPlotPoints3D* plot, const PlotState& state)
{
  const DrawnRows drawn = drawnRows(state);
  const Coordinates coordinates = {plottableColumn(drawn.table, drawn.x),
                                   plottableColumn(drawn.table, drawn.y),
                                   plottableColumn(drawn.table, drawn.z)};
  if (!coordinates[0] || !coordinates[1] || !coordinates[2])
    return false;
  vtkSmartPointer<vtkTable> points = finitePoints(coordinates);
  if (points->GetNumberOfRows() == 0)
    return false;
  plot->SetInputData(points, axisNames[0], axisNames[1], axisNames[2]);
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
  return vtkSmartPointer<vtkLegibleChartXYZ>::New();
}

void drawPointChart3D(PlotState& state, vtkContextScene* scene)
{
  showChart(state, state.chartXYZ, scene);
  state.chartXYZ->ClearPlots();
  releaseChartXY(state);

  vtkNew<vtkPlotPoints3D> plot;
  if (feedPoints(plot, state))
  {
    state.chartXYZ->AddPlot(plot);
    titleAxes(state);
  }
  state.chartXYZ->SetAxisColor(vtkColor4ub(0, 0, 0, 255));
  state.chartXYZ->RecalculateBounds();
  state.chartXYZ->SetGeometry(vtkRectf(75, 20, 250, 260));
}

} // namespace Talmesh::plot

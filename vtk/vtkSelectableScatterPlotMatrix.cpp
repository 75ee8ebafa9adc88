#include "vtk/vtkSelectableScatterPlotMatrix.h"

#include "vtk/HandlerScope.h"
#include "vtk/vtkSelectableChartXY.h"

#include <vtkAxis.h>
#include <vtkDataArray.h>
#include <vtkObjectFactory.h>
#include <vtkTable.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

vtkStandardNewMacro(vtkSelectableScatterPlotMatrix);

namespace
{

/// Another scene in an item's place for one, also where its painting fails.
class SceneInstead
{
public:
  SceneInstead(vtkContextScene*& ofItem, vtkContextScene* other)
      : scene(ofItem)
      , own(ofItem)
  {
    scene = other;
  }
  ~SceneInstead() { scene = own; }
  SceneInstead(const SceneInstead&) = delete;
  SceneInstead& operator=(const SceneInstead&) = delete;

private:
  vtkContextScene*& scene;
  vtkContextScene* own;
};

#if TALMESH_VTK_MATRIX_LEAVES_AXES
using Range = std::array<double, 2>;
using Ranges = std::array<Range, 4>;

Ranges rangesOf(vtkChart* chart)
{
  Ranges ranges;
  for (int axis = 0; axis < 4; ++axis)
    chart->GetAxis(axis)->GetUnscaledRange(ranges[static_cast<std::size_t>(axis)].data());
  return ranges;
}

void setRanges(vtkChart* chart, const Ranges& ranges)
{
  for (int axis = 0; axis < 4; ++axis)
  {
    const Range& range = ranges[static_cast<std::size_t>(axis)];
    chart->GetAxis(axis)->SetUnscaledRange(range[0], range[1]);
  }
}

bool hasExtent(const Range& range)
{
  const double extent = range[1] - range[0];
  return extent > 0.0 && std::isfinite(extent);
}

/// The range that VTK gives an axis, or where that has no extent, one of the values.
Range withExtent(const Range& range, vtkAbstractArray* values)
{
  if (hasExtent(range))
    return range;
  Range own = range;
  auto* numbers = vtkDataArray::SafeDownCast(values);
  if (numbers && numbers->GetNumberOfTuples() > 0)
    numbers->GetFiniteRange(own.data(), 0);
  if (hasExtent(own))
    return own;
  const double value = std::isfinite(own[0]) ? own[0] : 0.0;
  const double margin = value == 0.0 ? 1e-7 : 0.01 * std::fabs(value);
  return {value - margin, value + margin};
}

void shareAxes(vtkChart* large, vtkChart* cell)
{
  Ranges ranges = rangesOf(cell);
  ranges[vtkAxis::RIGHT] = ranges[vtkAxis::LEFT];
  ranges[vtkAxis::TOP] = ranges[vtkAxis::BOTTOM];
  setRanges(large, ranges);
}
#endif

} // namespace

vtkSelectableScatterPlotMatrix::vtkSelectableScatterPlotMatrix()
{
  NumberOfFrames = 0;
}

vtkChart* vtkSelectableScatterPlotMatrix::GetChart(const vtkVector2i& position)
{
  const vtkIdType before = GetNumberOfItems();
  vtkChart* cell = Superclass::GetChart(position);
  // A cell that VTK has just filled has a chart of VTK's.
  if (GetNumberOfItems() == before)
    return cell;
  vtkSelectableChartXY* const placed = vtkSelectableChartXY::PlaceIn(this, position);
  if (placed)
    placed->SetGestures(Gestures);
  return placed;
}

void vtkSelectableScatterPlotMatrix::SetGestures(
    std::shared_ptr<const Talmesh::GestureHandling> gestures)
{
  Gestures = std::move(gestures);
}

bool vtkSelectableScatterPlotMatrix::Paint(vtkContext2D* painter)
{
  const Talmesh::HandlerScope running;
  if (!Scene)
    return false;
  // New cells get their scene here.
  Update();
  const auto roomBefore = SpecificResize;
  vtkContextScene* const shownIn = Scene;
  Wishes->SetGeometry(shownIn->GetSceneWidth(), shownIn->GetSceneHeight());
  const bool painted = [&]
  {
    const SceneInstead wishes(Scene, Wishes);
    return Superclass::Paint(painter);
  }();
  // VTK's matrix takes the room beside its large chart away after each painting, gives it back and
  // finds its layout outdated, even where nothing has changed. All points would be painted twice.
  if (SpecificResize == roomBefore)
    LayoutIsDirty = false;
  else
    Scene->SetDirty(true);
  return painted;
}

bool vtkSelectableScatterPlotMatrix::MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  return Superclass::MouseButtonReleaseEvent(mouse);
}

#if TALMESH_VTK_MATRIX_LEAVES_AXES
void vtkSelectableScatterPlotMatrix::Update()
{
  vtkChart* const large = GetMainChart();
  // The large chart may have been zoomed.
  const bool keeps = large && ActivePlotValid;
  const Ranges kept = keeps ? rangesOf(large) : Ranges();
  Superclass::Update();
  for (int column = 0; Input && column < Size.GetX(); ++column)
    for (int row = 0; column + row < Size.GetY(); ++row)
      GiveExtent({column, row});
  if (keeps && GetMainChart() == large)
    setRanges(large, kept);
  else if (GetMainChart() && ActivePlotValid)
    shareAxes(GetMainChart(), GetChart(ActivePlot));
}

void vtkSelectableScatterPlotMatrix::GiveExtent(const vtkVector2i& position)
{
  vtkAbstractArray* x = Input->GetColumnByName(GetColumnName(position.GetX()).c_str());
  vtkAbstractArray* y = Input->GetColumnByName(GetRowName(position.GetY()).c_str());
  std::array<vtkAbstractArray*, 4> values;
  values[vtkAxis::BOTTOM] = x;
  values[vtkAxis::TOP] = x;
  values[vtkAxis::LEFT] = y;
  // That of a histogram counts.
  values[vtkAxis::RIGHT] = GetPlotType(position) == HISTOGRAM ? nullptr : y;
  vtkChart* const cell = GetChart(position);
  Ranges ranges = rangesOf(cell);
  for (std::size_t axis = 0; axis < 4; ++axis)
    ranges[axis] = withExtent(ranges[axis], values[axis]);
  setRanges(cell, ranges);
}

bool vtkSelectableScatterPlotMatrix::SetActivePlot(const vtkVector2i& position)
{
  if (!Superclass::SetActivePlot(position))
    return false;
  if (vtkChart* large = GetMainChart())
  {
    GiveExtent(position);
    shareAxes(large, GetChart(position));
  }
  return true;
}
#endif

vtkTable* vtkSelectableScatterPlotMatrix::GetShownTable() const
{
  return this->Input;
}

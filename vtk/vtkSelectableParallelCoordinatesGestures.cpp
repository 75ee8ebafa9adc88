#include "vtk/AxisBrush.h"
#include "vtk/GestureHandling.h"
#include "vtk/RowSelections.h"
#include "vtk/vtkSelectableParallelCoordinates.h"

#include <vtkAnnotationLink.h>
#include <vtkAxis.h>
#include <vtkBrush.h>
#include <vtkChartXY.h>
#include <vtkContext2D.h>
#include <vtkContextMouseEvent.h>
#include <vtkContextScene.h>
#include <vtkPen.h>
#include <vtkPlot.h>
#include <vtkTable.h>
#include <vtkVectorOperators.h>

#include <algorithm>
#include <utility>

/// What the mouse does in a chart whose program takes gestures.
namespace
{

using Gesture = Talmesh::SelectionGesture;
using Brush = Gesture::Brush;

/// Pixels, as all here. So near to the mouse a line is meant by it.
constexpr double pointingReach = 6.0;
constexpr float brushWidth = 14.0F;
constexpr float tooltipOffset = 2.0F;
/// Red, green, blue and opacity, out of 255.
constexpr unsigned char brushColor[] = {255, 110, 30, 110};
constexpr unsigned char brushEdgeColor[] = {160, 50, 0};

void dropBrushOf(const std::string& column, std::vector<Brush>& brushes)
{
  const auto isOfIt = [&column](const Brush& brush) { return brush.column == column; };
  brushes.erase(std::remove_if(brushes.begin(), brushes.end(), isOfIt), brushes.end());
}

int axisOf(vtkChartParallelCoordinates& chart, const std::string& column)
{
  vtkStringArray* columns = chart.GetVisibleColumns();
  for (vtkIdType i = 0; i < columns->GetNumberOfValues(); ++i)
    if (columns->GetValue(i) == column)
      return static_cast<int>(i);
  return -1;
}

} // namespace

void vtkSelectableParallelCoordinates::SetGestures(
    std::shared_ptr<const Talmesh::GestureHandling> gestures)
{
  Gestures = std::move(gestures);
}

bool vtkSelectableParallelCoordinates::AsksFirst() const
{
  return Gestures && Gestures->select;
}

void vtkSelectableParallelCoordinates::BeginGesture(const vtkContextMouseEvent& mouse)
{
  Pressed = mouse.GetScenePos();
  BrushedTo = BrushedFrom;
  Say({});
}

void vtkSelectableParallelCoordinates::FollowMouse(const vtkContextMouseEvent& mouse)
{
  if (mouse.GetButton() == vtkContextMouseEvent::NO_BUTTON)
    return Describe(mouse);
  if (BrushedAxis < 0)
    return;
  BrushedTo = HeightOnAxis(mouse);
  Scene->SetDirty(true);
}

Gesture vtkSelectableParallelCoordinates::PointedAt(const vtkVector2f& place)
{
  Gesture gesture;
  gesture.kind = Gesture::Kind::Click;
  gesture.table = GetPlot(0)->GetInput();
  const auto row = Talmesh::nearestLine(*this, place, pointingReach);
  gesture.rows.emplace();
  if (row)
    gesture.rows->push_back(*row);
  return gesture;
}

/// Selects what the program does not take.
void vtkSelectableParallelCoordinates::Take(const Gesture& gesture)
{
  const vtkSmartPointer<vtkObject> kept = this;
  const vtkSmartPointer<vtkAnnotationLink> link = AnnotationLink;
  // The handler may take itself away, and draw other lines.
  const auto select = Gestures->select;
  const vtkSmartPointer<vtkTable> table = gesture.table;
  if (select(gesture) || !link || (gesture.rows && gesture.rows->empty()))
    return;
  std::vector<bool> rows = Talmesh::rowsWithin(table, gesture.brushes);
  // The table may have lost rows in place, of which the gesture still tells.
  for (const vtkIdType row : gesture.rows.value_or(std::vector<vtkIdType>()))
    if (static_cast<std::size_t>(row) < rows.size())
      rows[static_cast<std::size_t>(row)] = true;
  Talmesh::selectRows(link, table, rows, Talmesh::selectionMode(gesture.mode));
}

bool vtkSelectableParallelCoordinates::EndGesture(const vtkContextMouseEvent& mouse)
{
  const int axis = std::exchange(BrushedAxis, -1);
  Scene->SetDirty(true);
  if (!GetPlot(0)->GetInput())
    return true;
  const Gesture::Mode mode = Talmesh::gestureMode(
      vtkChartXY::GetMouseSelectionMode(mouse, vtkContextScene::SELECTION_DEFAULT));
  if ((mouse.GetScenePos() - Pressed).Norm() < Talmesh::clickExtent)
  {
    Gesture click = PointedAt(mouse.GetScenePos());
    click.mode = mode;
    Take(click);
    return true;
  }
  if (axis < 0 || axis >= static_cast<int>(GetNumberOfAxes()))
    return true;
  const Brush brush = Talmesh::brushOf(*this, axis, {BrushedFrom, HeightOnAxis(mouse)});
  if (mode != Gesture::Mode::Replace)
    Brushes.clear();
  dropBrushOf(brush.column, Brushes);
  std::vector<Brush> together = Brushes;
  together.push_back(brush);
  if (mode == Gesture::Mode::Replace)
    Brushes = together;
  Take(Talmesh::gestureOf(*this, together, mode));
  return true;
}

void vtkSelectableParallelCoordinates::Say(const std::string& text)
{
  // Another picture only where another text, or the same elsewhere, is to be seen.
  if (Scene && (!text.empty() || Tooltip->GetVisible()))
    Scene->SetDirty(true);
  Tooltip->SetText(text);
  Tooltip->SetVisible(!text.empty());
}

void vtkSelectableParallelCoordinates::Describe(const vtkContextMouseEvent& mouse)
{
  if (!Gestures->describe || !HasColumns())
    return Say({});
  const auto describe = Gestures->describe;
  Tooltip->SetPosition(mouse.GetScenePos().GetX() + tooltipOffset,
                       mouse.GetScenePos().GetY() + tooltipOffset);
  Say(describe(PointedAt(mouse.GetScenePos())).value_or(std::string()));
}

bool vtkSelectableParallelCoordinates::MouseLeaveEvent(const vtkContextMouseEvent& mouse)
{
  Say({});
  return Superclass::MouseLeaveEvent(mouse);
}

void vtkSelectableParallelCoordinates::SetPlot(vtkPlotParallelCoordinates* plot)
{
  MovedAxis = -1;
  BrushesUnsure = true;
  Superclass::SetPlot(plot);
}

bool vtkSelectableParallelCoordinates::CancelDrag()
{
  if (MovedAxis >= 0)
  {
    MovedAxis = -1;
    SetVisibleColumns(ColumnsBefore);
    PlaceAxes();
    return Cancelled = true;
  }
  if (BrushedAxis < 0)
  {
    // Those that meet no row cannot be taken away by selecting nothing.
    if (!std::exchange(Brushes, {}).empty() && Scene)
      Scene->SetDirty(true);
    return false;
  }
  BrushedAxis = -1;
  Cancelled = true;
  ResetAxesSelection();
  if (Scene)
    Scene->SetDirty(true);
  return true;
}

/// The brushes of a selection that is others' do not tell what is selected, nor do those of axes
/// that nobody sees.
void vtkSelectableParallelCoordinates::DropOtherBrushes()
{
  const auto isHidden = [this](const Brush& brush) { return axisOf(*this, brush.column) < 0; };
  vtkTable* table = GetPlot(0)->GetInput();
  if (!AsksFirst() || !table || !AnnotationLink ||
      std::any_of(Brushes.begin(), Brushes.end(), isHidden) ||
      !Talmesh::areWithin(table, Brushes,
                          Talmesh::markedRows(AnnotationLink->GetCurrentSelection(), table)))
    Brushes.clear();
}

void vtkSelectableParallelCoordinates::PaintBrush(vtkContext2D* painter, int axis,
                                                  const Brush& brush)
{
  vtkAxis* shown = GetAxis(axis);
  const double bottom = shown->GetPoint1()[1];
  const double height = shown->GetPoint2()[1] - bottom;
  const double minimum = shown->GetUnscaledMinimum();
  const double range = shown->GetUnscaledMaximum() - minimum;
  const auto pixelOf = [&](double value)
  {
    // Of an axis without extent all values are one.
    const double part = range > 0.0 ? std::clamp((value - minimum) / range, 0.0, 1.0) : 0.5;
    return static_cast<float>(bottom + part * height);
  };
  painter->GetBrush()->SetColor(brushColor[0], brushColor[1], brushColor[2], brushColor[3]);
  painter->GetPen()->SetLineType(vtkPen::SOLID_LINE);
  painter->GetPen()->SetWidth(1.0F);
  painter->GetPen()->SetColor(brushEdgeColor[0], brushEdgeColor[1], brushEdgeColor[2]);
  painter->DrawRect(shown->GetPoint1()[0] - brushWidth / 2, pixelOf(brush.low), brushWidth,
                    pixelOf(brush.high) - pixelOf(brush.low));
}

void vtkSelectableParallelCoordinates::PaintGestures(vtkContext2D* painter)
{
  if (!AsksFirst())
    return;
  const int drawn = BrushedTo == BrushedFrom ? -1 : BrushedAxis;
  for (const Brush& brush : Brushes)
    if (const int axis = axisOf(*this, brush.column); axis >= 0 && axis != drawn)
      PaintBrush(painter, axis, brush);
  if (drawn >= 0 && drawn < static_cast<int>(GetNumberOfAxes()))
    PaintBrush(painter, drawn, Talmesh::brushOf(*this, drawn, {BrushedFrom, BrushedTo}));
  Tooltip->SetScene(Scene);
  Tooltip->Paint(painter);
}

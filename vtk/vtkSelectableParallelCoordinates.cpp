#include "vtk/vtkSelectableParallelCoordinates.h"

#include "vtk/AxisNames.h"
#include "vtk/HandlerScope.h"
#include "vtk/LostColumns.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkCommand.h>
#include <vtkContext2D.h>
#include <vtkContextMouseEvent.h>
#include <vtkContextScene.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPlot.h>
#include <vtkPlotParallelCoordinates.h>
#include <vtkStringArray.h>
#include <vtkTable.h>
#include <vtkTextProperty.h>

#include <algorithm>
#include <cmath>
#include <utility>

vtkStandardNewMacro(vtkSelectableParallelCoordinates);

namespace
{

/// Pixels; as near to an axis as VTK's own chart wants the mouse.
constexpr float reach = 10.0F;

/// Of both rows of names, in pixels: the numbers hang over the lower ends of the axes.
constexpr float belowAxes[] = {25.0F, 40.0F};

std::vector<bool> rowsShown(vtkPlot* plot)
{
  std::vector<bool> rows(static_cast<std::size_t>(plot->GetInput()->GetNumberOfRows()), false);
  vtkIdTypeArray* shown = plot->GetSelection();
  for (vtkIdType i = 0; shown && i < shown->GetNumberOfValues(); ++i)
  {
    const auto row = static_cast<std::size_t>(shown->GetValue(i));
    if (row < rows.size())
      rows[row] = true;
  }
  return rows;
}

} // namespace

bool vtkSelectableParallelCoordinates::HasColumns()
{
  vtkTable* table = GetPlot(0)->GetInput();
  for (vtkIdType i = 0; table && i < VisibleColumns->GetNumberOfValues(); ++i)
    if (!Talmesh::hasNumbers(table, VisibleColumns->GetValue(i)))
      return false;
  return true;
}

vtkIdType vtkSelectableParallelCoordinates::RowsNow()
{
  vtkTable* table = GetPlot(0)->GetInput();
  return table ? table->GetNumberOfRows() : 0;
}

bool vtkSelectableParallelCoordinates::Paint(vtkContext2D* painter)
{
  const Talmesh::HandlerScope running;
  if (!Scene)
    return false;
  if (!HasColumns())
    GetPlot(0)->SetVisible(false);
  if (AnnotationLink && AnnotationLink->GetMTime() > Shown)
  {
    if (!KeepsBrush)
      ResetAxesSelection();
    KeepsBrush = false;
    ShowSelection();
    BrushesUnsure = true;
  }
  // A table that has lost rows in place has outdated the rows shown too.
  else if (AnnotationLink && RowsNow() != ShownRows)
    ShowSelection();
  if (std::exchange(BrushesUnsure, false))
    DropOtherBrushes();
  for (int i = 0; i < static_cast<int>(GetNumberOfAxes()); ++i)
    GetAxis(i)->SetTitleVisible(!PlacesNames);
  if (!Superclass::Paint(painter))
    return false;
  if (PlacesNames)
    PaintNames(painter);
  // Axes, which are items too, have been painted.
  for (unsigned int i = 0; i < GetNumberOfItems(); ++i)
    if (!vtkAxis::SafeDownCast(GetItem(i)))
      GetItem(i)->Paint(painter);
  PaintGestures(painter);
  return true;
}

void vtkSelectableParallelCoordinates::SetPlacesNames(bool places)
{
  PlacesNames = places;
}

void vtkSelectableParallelCoordinates::PaintNames(vtkContext2D* painter)
{
  std::vector<Talmesh::AxisName> names;
  for (int i = 0; i < static_cast<int>(GetNumberOfAxes()); ++i)
    names.push_back({GetAxis(i)->GetTitle(), GetAxis(i)->GetPoint1()[0]});
  vtkNew<vtkTextProperty> text;
  text->ShallowCopy(GetAxis(0)->GetTitleProperties());
  text->SetJustificationToCentered();
  text->SetVerticalJustificationToCentered();
  painter->ApplyTextProp(text);
  const auto widthOf = [painter](const std::string& name)
  {
    float bounds[4];
    painter->ComputeStringBounds(name, bounds);
    return bounds[2];
  };
  const auto width = static_cast<float>(Scene->GetViewWidth());
  for (const Talmesh::PlacedName& name : Talmesh::placeNames(names, width, widthOf))
    painter->DrawString(name.x, GetAxis(0)->GetPoint1()[1] - belowAxes[name.row], name.text);
}

void vtkSelectableParallelCoordinates::ShowSelection()
{
  vtkPlot* plot = GetPlot(0);
  if (AnnotationLink && plot->GetInput())
    plot->SetSelection(Talmesh::listSelectedRows(AnnotationLink, plot->GetInput()));
  // VTK takes the link's own list, unchecked, when the link is younger than the plot.
  plot->Modified();
  Shown.Modified();
  ShownRows = RowsNow();
}

int vtkSelectableParallelCoordinates::AxisUnder(const vtkContextMouseEvent& mouse)
{
  const vtkVector2f position = mouse.GetScenePos();
  if (position.GetY() <= static_cast<float>(Point1[1]) ||
      position.GetY() >= static_cast<float>(Point2[1]))
    return -1;
  for (int i = 0; i < static_cast<int>(GetNumberOfAxes()); ++i)
  {
    if (std::fabs(GetAxis(i)->GetPoint1()[0] - position.GetX()) < reach)
      return i;
  }
  return -1;
}

/// From 0 at the lower end of the axes to 1 at the upper one.
float vtkSelectableParallelCoordinates::HeightOnAxis(const vtkContextMouseEvent& mouse)
{
  const float low = static_cast<float>(Point1[1]);
  const float high = static_cast<float>(Point2[1]);
  return std::clamp((mouse.GetScenePos().GetY() - low) / (high - low), 0.0F, 1.0F);
}

#if TALMESH_VTK_KEEPS_RESET_BRUSHES
void vtkSelectableParallelCoordinates::BrushAlone(float to)
{
  auto* lines = vtkPlotParallelCoordinates::SafeDownCast(GetPlot(0));
  lines->ResetSelectionRange();
  lines->SetSelectionRange(BrushedAxis, std::min(BrushedFrom, to), std::max(BrushedFrom, to));
}
#endif

/// Not VTK's: it changes the range of an axis whose end is under the mouse, and reads an axis that
/// is not there when the mouse is beside all of them or the columns change meanwhile.
void vtkSelectableParallelCoordinates::MoveAxis(const vtkContextMouseEvent& mouse)
{
  const int last = static_cast<int>(GetNumberOfAxes()) - 1;
  if (MovedAxis < 0 || MovedAxis > last)
    return;
  vtkAxis* axis = GetAxis(MovedAxis);
  // The mouse may be beyond the outer axes, which are passed there.
  const float mouseX = mouse.GetScenePos().GetX();
  const float x = std::clamp(mouseX, static_cast<float>(Point1[0]), static_cast<float>(Point2[0]));
  axis->SetPoint1(x, axis->GetPoint1()[1]);
  axis->SetPoint2(x, axis->GetPoint2()[1]);
  for (; MovedAxis > 0 && mouseX < GetAxis(MovedAxis - 1)->GetPoint1()[0]; --MovedAxis)
    SwapAxes(MovedAxis, MovedAxis - 1);
  for (; MovedAxis < last && mouseX > GetAxis(MovedAxis + 1)->GetPoint1()[0]; ++MovedAxis)
    SwapAxes(MovedAxis, MovedAxis + 1);
  Scene->SetDirty(true);
}

void vtkSelectableParallelCoordinates::PlaceAxes()
{
  GeometryValid = false;
  if (Scene)
    Scene->SetDirty(true);
}

bool vtkSelectableParallelCoordinates::MouseButtonPressEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  Cancelled = false;
  MovedAxis = -1;
  if (mouse.GetButton() == Actions.Pan())
  {
    MovedAxis = AxisUnder(mouse);
    ColumnsBefore->DeepCopy(VisibleColumns);
    return true;
  }
  const bool selects = mouse.GetButton() == Actions.Select();
  BrushedAxis = selects ? AxisUnder(mouse) : -1;
  BrushedFrom = HeightOnAxis(mouse);
  if (selects && AsksFirst())
  {
    BeginGesture(mouse);
    return true;
  }
  if (BrushedAxis >= 0)
    ResetAxesSelection();
  const bool handled = Superclass::MouseButtonPressEvent(mouse);
  // VTK's chart takes the rows of the former brush off the plot.
  if (BrushedAxis >= 0)
    ShowSelection();
  return handled;
}

bool vtkSelectableParallelCoordinates::MouseMoveEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  if (Cancelled || !Scene)
    return true;
  if (mouse.GetButton() == Actions.Pan())
    MoveAxis(mouse);
  else if (AsksFirst())
    FollowMouse(mouse);
  else
    return Superclass::MouseMoveEvent(mouse);
  return true;
}

bool vtkSelectableParallelCoordinates::MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  if (std::exchange(Cancelled, false) || !Scene)
    return true;
  if (mouse.GetButton() == Actions.Pan())
  {
    const vtkSmartPointer<vtkObject> kept = this;
    const bool moved = std::exchange(MovedAxis, -1) >= 0;
    PlaceAxes();
    if (moved)
      InvokeEvent(vtkCommand::InteractionEvent);
    return true;
  }
  vtkPlot* plot = GetPlot(0);
  const bool selects = mouse.GetButton() == Actions.Select();
  if (selects && AsksFirst())
    return EndGesture(mouse);
  if (!selects || BrushedAxis < 0 || !AnnotationLink || !plot->GetInput())
    return Superclass::MouseButtonReleaseEvent(mouse);
  const vtkSmartPointer<vtkObject> kept = this;
  const vtkSmartPointer<vtkAnnotationLink> link = AnnotationLink;
  // Without a link the rows brushed stay in the plot.
  SetAnnotationLink(nullptr);
  plot->SetSelection(vtkNew<vtkIdTypeArray>());
  const bool handled = Superclass::MouseButtonReleaseEvent(mouse);
#if TALMESH_VTK_KEEPS_RESET_BRUSHES
  BrushAlone(HeightOnAxis(mouse));
#endif
  BrushedAxis = -1;
  SetAnnotationLink(link);
  const std::vector<bool> brushed = rowsShown(plot);
  const int mode = vtkChartXY::GetMouseSelectionMode(mouse, vtkContextScene::SELECTION_DEFAULT);
  ShowSelection();
  KeepsBrush = true;
  Talmesh::selectRows(link, plot->GetInput(), brushed, mode);
  KeepsBrush = link->GetMTime() > Shown;
  return handled;
}

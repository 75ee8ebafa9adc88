#include "vtk/vtkSelectableChartXYZ.h"

#include "vtk/AxisBrush.h"
#include "vtk/GestureHandling.h"
#include "vtk/HandlerScope.h"
#include "vtk/RowSelections.h"

#include <vtkBrush.h>
#include <vtkChartXY.h>
#include <vtkContext2D.h>
#include <vtkContextKeyEvent.h>
#include <vtkContextMouseEvent.h>
#include <vtkContextScene.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPlane.h>
#include <vtkPlaneCollection.h>
#include <vtkRenderWindowInteractor.h>
#include <vtkTransform.h>
#include <vtkVectorOperators.h>

#include <algorithm>
#include <cmath>
#include <utility>

vtkStandardNewMacro(vtkSelectableChartXYZ);

namespace
{

using Gesture = Talmesh::SelectionGesture;
using Rows = std::vector<vtkIdType>;

/// Pixels, as all here. So near to the mouse a point is meant by it.
constexpr float pointingReach = 8.0F;
constexpr float tooltipOffset = 2.0F;
/// So far outside the box of the axes a point is still seen.
constexpr double roomOutside = 0.5;

Gesture gestureOf(vtkTable* table, const Rows& rows, Gesture::Kind kind)
{
  Gesture gesture;
  gesture.kind = kind;
  gesture.table = table;
  gesture.rows = rows;
  return gesture;
}

} // namespace

/// A point with the largest or smallest value of an axis lies on a face of the box that what is
/// painted is clipped to. Rounding would decide whether it is seen: with VTK 9.3 it is not.
void vtkSelectableChartXYZ::CalculateTransforms()
{
  Superclass::CalculateTransforms();
  for (int i = 0; i < BoundingCube->GetNumberOfItems(); ++i)
    BoundingCube->GetItem(i)->Push(-roomOutside);
}

/// VTK's chart writes the numbers of its axes before it tells the painter how to write: in white on
/// white in the first painting of all, and as the last item wrote in the others.
bool vtkSelectableChartXYZ::Paint(vtkContext2D* painter)
{
  const Talmesh::HandlerScope running;
  painter->ApplyTextProp(GetAxesTextProperty());
  if (!Scene || !Superclass::Paint(painter))
    return false;
  if (Pressed)
  {
    painter->GetPen()->SetColor(0, 0, 0, 255);
    painter->GetPen()->SetWidth(1.0F);
    painter->GetPen()->SetLineType(vtkPen::SOLID_LINE);
    painter->GetBrush()->SetColor(255, 255, 255, 0);
    painter->DrawRect(Pressed->GetX(), Pressed->GetY(), Reached.GetX() - Pressed->GetX(),
                      Reached.GetY() - Pressed->GetY());
  }
  Tooltip->SetScene(Scene);
  Tooltip->Paint(painter);
  return true;
}

void vtkSelectableChartXYZ::SetGestures(std::shared_ptr<const Talmesh::GestureHandling> gestures)
{
  Gestures = std::move(gestures);
}

void vtkSelectableChartXYZ::SetPoints(vtkTable* table, std::vector<vtkVector3f> points,
                                      vtkAnnotationLink* link)
{
  Table = table;
  Places = std::move(points);
  RowLink = link;
  if (!table)
    Pressed.reset();
  Say({});
}

bool vtkSelectableChartXYZ::AsksFirst() const
{
  return Gestures && Gestures->select && Table;
}

vtkVector2f vtkSelectableChartXYZ::PixelOf(const vtkVector3f& point)
{
  float pixel[3];
  ContextTransform->TransformPoint(point.GetData(), pixel);
  return {pixel[0], pixel[1]};
}

Rows vtkSelectableChartXYZ::RowsBetween(const vtkVector2f& a, const vtkVector2f& b)
{
  const auto isBetween = [](float value, float end, float other)
  { return value >= std::min(end, other) && value <= std::max(end, other); };
  Rows rows;
  for (std::size_t row = 0; row < Places.size(); ++row)
  {
    const vtkVector2f pixel = PixelOf(Places[row]);
    if (isBetween(pixel.GetX(), a.GetX(), b.GetX()) && isBetween(pixel.GetY(), a.GetY(), b.GetY()))
      rows.push_back(static_cast<vtkIdType>(row));
  }
  return rows;
}

Rows vtkSelectableChartXYZ::NearestRow(const vtkVector2f& place)
{
  Rows nearest;
  float least = pointingReach;
  for (std::size_t row = 0; row < Places.size(); ++row)
  {
    const vtkVector2f pixel = PixelOf(Places[row]);
    const float distance = std::hypot(pixel.GetX() - place.GetX(), pixel.GetY() - place.GetY());
    if (!(distance < least))
      continue;
    least = distance;
    nearest = {static_cast<vtkIdType>(row)};
  }
  return nearest;
}

bool vtkSelectableChartXYZ::MouseButtonPressEvent(const vtkContextMouseEvent& mouse)
{
  if (mouse.GetButton() != vtkContextMouseEvent::RIGHT_BUTTON || !AsksFirst())
    return Superclass::MouseButtonPressEvent(mouse);
  Pressed = mouse.GetScenePos();
  Reached = *Pressed;
  Say({});
  return true;
}

bool vtkSelectableChartXYZ::MouseMoveEvent(const vtkContextMouseEvent& mouse)
{
  if (!Scene)
    return true;
  if (mouse.GetButton() == vtkContextMouseEvent::RIGHT_BUTTON && AsksFirst())
  {
    Reached = mouse.GetScenePos();
    Scene->SetDirty(true);
    return true;
  }
  if (mouse.GetButton() == vtkContextMouseEvent::NO_BUTTON && AsksFirst())
    Describe(mouse);
  return Superclass::MouseMoveEvent(mouse);
}

bool vtkSelectableChartXYZ::MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  if (mouse.GetButton() != vtkContextMouseEvent::RIGHT_BUTTON || !Pressed)
    return Superclass::MouseButtonReleaseEvent(mouse);
  const vtkVector2f from = *std::exchange(Pressed, std::nullopt);
  if (!Scene || !AsksFirst())
    return true;
  Scene->SetDirty(true);
  const vtkVector2f to = mouse.GetScenePos();
  const bool click = (to - from).Norm() < Talmesh::clickExtent;
  Gesture gesture = click ? gestureOf(Table, NearestRow(to), Gesture::Kind::Click)
                          : gestureOf(Table, RowsBetween(from, to), Gesture::Kind::Rectangle);
  gesture.mode = Talmesh::gestureMode(
      vtkChartXY::GetMouseSelectionMode(mouse, vtkContextScene::SELECTION_DEFAULT));
  Take(gesture);
  return true;
}

bool vtkSelectableChartXYZ::MouseLeaveEvent(const vtkContextMouseEvent& mouse)
{
  Say({});
  return Superclass::MouseLeaveEvent(mouse);
}

bool vtkSelectableChartXYZ::KeyPressEvent(const vtkContextKeyEvent& key)
{
  const bool isShortcut = key.GetInteractor() && key.GetInteractor()->GetControlKey() != 0;
  return Scene && !isShortcut && Superclass::KeyPressEvent(key);
}

bool vtkSelectableChartXYZ::CancelDrag()
{
  if (!Pressed)
    return false;
  Pressed.reset();
  if (Scene)
    Scene->SetDirty(true);
  return true;
}

/// Selects what the program does not take. A click beside all points changes nothing.
void vtkSelectableChartXYZ::Take(const Gesture& gesture)
{
  const vtkSmartPointer<vtkObject> kept = this;
  const vtkSmartPointer<vtkTable> table = Table;
  const vtkSmartPointer<vtkAnnotationLink> link = RowLink;
  // The handler may take itself away, and draw other points.
  const auto select = Gestures->select;
  if (select(gesture) || !link || (gesture.kind == Gesture::Kind::Click && gesture.rows->empty()))
    return;
  std::vector<bool> hit(static_cast<std::size_t>(table->GetNumberOfRows()), false);
  // The table may have lost rows in place, whose points are still there.
  for (const vtkIdType row : *gesture.rows)
    if (static_cast<std::size_t>(row) < hit.size())
      hit[static_cast<std::size_t>(row)] = true;
  Talmesh::selectRows(link, table, hit, Talmesh::selectionMode(gesture.mode));
}

void vtkSelectableChartXYZ::Describe(const vtkContextMouseEvent& mouse)
{
  if (!Gestures->describe)
    return;
  const auto describe = Gestures->describe;
  const vtkVector2f place = mouse.GetScenePos();
  const auto text = describe(gestureOf(Table, NearestRow(place), Gesture::Kind::Click));
  Tooltip->SetPosition(place.GetX() + tooltipOffset, place.GetY() + tooltipOffset);
  Say(text.value_or(std::string()));
}

void vtkSelectableChartXYZ::Say(const std::string& text)
{
  // Another picture only where another text, or the same elsewhere, is to be seen.
  if (Scene && (!text.empty() || Tooltip->GetVisible()))
    Scene->SetDirty(true);
  Tooltip->SetText(text);
  Tooltip->SetVisible(!text.empty());
}

#include "vtk/vtkSelectableParallelCoordinates.h"

#include "vtk/HandlerScope.h"
#include "vtk/LostColumns.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotationLink.h>
#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkContextMouseEvent.h>
#include <vtkContextScene.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPlot.h>
#include <vtkPlotParallelCoordinates.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <algorithm>
#include <cmath>
#include <utility>

vtkStandardNewMacro(vtkSelectableParallelCoordinates);

namespace
{

/// Pixels; as near to an axis as VTK's own chart wants the mouse.
constexpr float reach = 10.0F;

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
  {
    if (!Talmesh::hasNumbers(table, VisibleColumns->GetValue(i)))
      return false;
  }
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
  }
  // A table that has lost rows in place has outdated the rows shown too.
  else if (AnnotationLink && RowsNow() != ShownRows)
    ShowSelection();
  return Superclass::Paint(painter);
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

bool vtkSelectableParallelCoordinates::MouseButtonPressEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  Cancelled = false;
  const bool selects = mouse.GetButton() == Actions.Select();
  BrushedAxis = selects ? AxisUnder(mouse) : -1;
  BrushedFrom = HeightOnAxis(mouse);
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
  return Cancelled || Superclass::MouseMoveEvent(mouse);
}

bool vtkSelectableParallelCoordinates::CancelDrag()
{
  if (BrushedAxis < 0)
    return false;
  BrushedAxis = -1;
  Cancelled = true;
  ResetAxesSelection();
  if (Scene)
    Scene->SetDirty(true);
  return true;
}

bool vtkSelectableParallelCoordinates::MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  if (std::exchange(Cancelled, false) || !Scene)
    return true;
  vtkPlot* plot = GetPlot(0);
  const bool selects = mouse.GetButton() == Actions.Select();
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
  KeepsBrush = true;
  Talmesh::selectRows(link, plot->GetInput(), rowsShown(plot),
                      vtkChartXY::GetMouseSelectionMode(mouse, vtkContextScene::SELECTION_DEFAULT));
  return handled;
}

#include "vtk/vtkSelectableChartXY.h"

#include "vtk/HandlerScope.h"
#include "vtk/LogScales.h"
#include "vtk/PlottedRows.h"
#include "vtk/PointCloud.h"
#include "vtk/RowSelections.h"
#include "vtk/vtkGuardedAxis.h"
#include "vtk/vtkPlotSafeLine.h"
#include "vtk/vtkPlotShiftedStack.h"

#include <vtkAnnotationLink.h>
#include <vtkBrush.h>
#include <vtkChartLegend.h>
#include <vtkChartMatrix.h>
#include <vtkCommand.h>
#include <vtkContextMouseEvent.h>
#include <vtkContextScene.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPlot.h>
#include <vtkTable.h>
#include <vtkTooltipItem.h>
#include <vtkVectorOperators.h>

#include <cmath>
#include <utility>

vtkStandardNewMacro(vtkSelectableChartXY);

namespace
{

/// Pixels; a smaller extent is none.
constexpr float smallestExtent = 0.5F;

} // namespace

vtkSelectableChartXY::vtkSelectableChartXY()
{
  for (int position = 0; position < static_cast<int>(GetNumberOfAxes()); ++position)
  {
    vtkAxis* replaced = GetAxis(position);
    vtkGuardedAxis* axis = vtkGuardedAxis::New();
    axis->SetTitle(replaced->GetTitle());
    SetAxis(position, axis);
    // The chart owned it, and now owns the other one.
    replaced->Delete();
  }
  // In front of the axes again.
  const vtkSmartPointer<vtkAbstractContextItem> front[] = {Legend, Tooltip};
  for (const auto& item : front)
  {
    RemoveItem(item);
    AddItem(item);
  }
}

vtkPlot* vtkSelectableChartXY::AddPlot(int type, unsigned int blockIndex)
{
  const vtkSmartPointer<vtkPlot> replaced = Superclass::AddPlot(type, blockIndex);
  vtkSmartPointer<vtkPlot> plot;
  if (type == LINE)
    plot = vtkSmartPointer<vtkPlotSafeLine>::New();
  else if (type == POINTS)
    plot = vtkSmartPointer<Talmesh::PointCloud>::New();
  else if (type == STACKED)
    plot = vtkSmartPointer<vtkPlotShiftedStack>::New();
  else
    return replaced;
  plot->GetPen()->DeepCopy(replaced->GetPen());
  plot->GetBrush()->DeepCopy(replaced->GetBrush());
  RemovePlotInstance(replaced);
  AddPlot(plot, blockIndex);
  return plot;
}

vtkSelectableChartXY* vtkSelectableChartXY::PlaceIn(vtkChartMatrix* matrix,
                                                    const vtkVector2i& position)
{
  vtkNew<vtkSelectableChartXY> chart;
  return matrix->SetChart(position, chart) ? chart.Get() : nullptr;
}

bool vtkSelectableChartXY::SelectsRows(const vtkContextMouseEvent& mouse)
{
  return mouse.GetButton() == Actions.Select() && SelectionMethod == SELECTION_ROWS;
}

void vtkSelectableChartXY::EndDrag()
{
  MouseBox.SetWidth(0.0F);
  MouseBox.SetHeight(0.0F);
  DrawBox = false;
  Trail.clear();
}

bool vtkSelectableChartXY::CancelDrag()
{
  if (!DrawBox && Trail.empty())
    return false;
  EndDrag();
  Cancelled = true;
  if (Scene)
    Scene->SetDirty(true);
  return true;
}

void vtkSelectableChartXY::SettleScales()
{
  Lost.hidePlots(this);
  Talmesh::settleLogScales(this);
}

void vtkSelectableChartXY::Update()
{
  if (PlotTransformValid)
    Lost.hidePlots(this);
  else
    SettleScales();
  Superclass::Update();
  Scales.note(this);
  if (!AnnotationLink || SelectionMethod != SELECTION_ROWS)
    return;
  for (vtkIdType i = 0; i < GetNumberOfPlots(); ++i)
    Talmesh::showRowsOfPlot(GetPlot(i), AnnotationLink);
}

bool vtkSelectableChartXY::Paint(vtkContext2D* painter)
{
  const Talmesh::HandlerScope running;
  if (!Scene || !Superclass::Paint(painter))
    return false;
  PaintTrail(painter);
  return true;
}

bool vtkSelectableChartXY::Hit(const vtkContextMouseEvent& mouse)
{
  return Scene && (Superclass::Hit(mouse) || BeginsBeside(mouse));
}

// Plots that have just been told another shift and scale of this painting's axes must read their
// points anew, or they would be missing in it.
bool vtkSelectableChartXY::PaintChildren(vtkContext2D* painter)
{
  for (vtkIdType i = 0; i < GetNumberOfPlots(); ++i)
    if (GetPlot(i)->GetVisible() && !Scales.areKnown(this, i))
      GetPlot(i)->Update();
  Scales.note(this);
  // The large charts that a matrix had one after another share it, and the last of them to die
  // takes it out of the scene.
  if (Tooltip)
  {
    Tooltip->SetScene(Scene);
    // A new one is visible, and the frame of an empty text is no point.
    if (Tooltip->GetText().empty())
      Tooltip->SetVisible(false);
  }
  return Superclass::PaintChildren(painter);
}

bool vtkSelectableChartXY::MouseEnterEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  return Superclass::MouseEnterEvent(mouse);
}

bool vtkSelectableChartXY::MouseMoveEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  if (mouse.GetButton() == vtkContextMouseEvent::NO_BUTTON && Describe(mouse))
    return true;
  if (!SelectsRows(mouse) || !AsksFirst())
    return Superclass::MouseMoveEvent(mouse);
  vtkContextMouseEvent within(mouse);
  within.SetPos(WithinAxes(mouse.GetPos()));
  LeaveTrail(within.GetPos());
  return Superclass::MouseMoveEvent(within);
}

bool vtkSelectableChartXY::MouseLeaveEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  return Superclass::MouseLeaveEvent(mouse);
}

bool vtkSelectableChartXY::MouseDoubleClickEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  return Superclass::MouseDoubleClickEvent(mouse);
}

bool vtkSelectableChartXY::MouseWheelEvent(const vtkContextMouseEvent& mouse, int delta)
{
  const Talmesh::HandlerScope running;
  return Superclass::MouseWheelEvent(mouse, delta);
}

bool vtkSelectableChartXY::KeyPressEvent(const vtkContextKeyEvent& key)
{
  const Talmesh::HandlerScope running;
  return Scene && Superclass::KeyPressEvent(key);
}

bool vtkSelectableChartXY::MouseButtonPressEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  Cancelled = false;
  if (SelectsRows(mouse) && !AnnotationLink)
    return false;
  if (!SelectsRows(mouse) || !AsksFirst())
    return Superclass::MouseButtonPressEvent(mouse);
  vtkContextMouseEvent within(mouse);
  within.SetPos(WithinAxes(mouse.GetPos()));
  const bool handled = Superclass::MouseButtonPressEvent(within);
  BeginTrail(within.GetPos());
  return handled;
}

bool vtkSelectableChartXY::MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  if (std::exchange(Cancelled, false) || !Scene)
  {
    EndDrag();
    return true;
  }
  if (!SelectsRows(mouse))
    return Superclass::MouseButtonReleaseEvent(mouse);
  if (!AnnotationLink)
    return false;
  // Whoever hears of the selection may replace the chart.
  const vtkSmartPointer<vtkObject> kept = this;
  if (AsksFirst())
    return EndGesture(mouse);
  const vtkVector2f from(MouseBox.GetX(), MouseBox.GetY());
  const vtkVector2f drag = mouse.GetPos() - from;
  const bool wide = std::fabs(drag.GetX()) >= smallestExtent;
  const bool high = std::fabs(drag.GetY()) >= smallestExtent;
  EndDrag();
  Scene->SetDirty(true);
  // A line encloses nothing.
  if (wide != high)
    return true;
  return SelectRows(wide ? HitsBetween(from, mouse.GetPos()) : HitsAt(mouse.GetPos()), mouse);
}

bool vtkSelectableChartXY::SelectRows(const Hits& hits, const vtkContextMouseEvent& mouse)
{
  if (!hits.table)
    return true;
  Talmesh::selectRows(AnnotationLink, hits.table, hits.rows,
                      GetMouseSelectionMode(mouse, SelectionMode));
  InvokeEvent(vtkCommand::SelectionChangedEvent);
  return true;
}

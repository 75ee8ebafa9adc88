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
#include <vtkContextTransform.h>
#include <vtkIdTypeArray.h>
#include <vtkMatrix3x3.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPlot.h>
#include <vtkTable.h>
#include <vtkTooltipItem.h>
#include <vtkTransform2D.h>
#include <vtkVectorOperators.h>

#include <algorithm>
#include <cmath>

vtkStandardNewMacro(vtkSelectableChartXY);

namespace
{

/// Pixels; as far as VTK's own charts look for a point.
constexpr float reach = 5.0F;
/// Pixels; a smaller extent is none.
constexpr float smallestExtent = 0.5F;

/// The plot at `index` of a corner if it takes selections, otherwise null.
vtkPlot* selectablePlot(vtkContextTransform* corner, unsigned int index)
{
  auto* plot = vtkPlot::SafeDownCast(corner->GetItem(index));
  return plot && plot->GetVisible() && plot->GetSelectable() && plot->GetInput() ? plot : nullptr;
}

vtkVector2f inCorner(vtkContextTransform* corner, const vtkVector2f& pixel)
{
  vtkVector2f point;
  corner->GetTransform()->InverseTransformPoints(pixel.GetData(), point.GetData(), 1);
  return point;
}

vtkVector2f reachIn(vtkContextTransform* corner)
{
  vtkMatrix3x3* matrix = corner->GetTransform()->GetMatrix();
  return {static_cast<float>(std::fabs(reach / matrix->GetElement(0, 0))),
          static_cast<float>(std::fabs(reach / matrix->GetElement(1, 1)))};
}

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

void vtkSelectableChartXY::Hits::Add(vtkTable* of, vtkIdType row)
{
  if (!table)
  {
    table = of;
    rows.assign(static_cast<std::size_t>(table->GetNumberOfRows()), false);
  }
  if (row >= 0 && row < static_cast<vtkIdType>(rows.size()))
    rows[static_cast<std::size_t>(row)] = true;
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
  return Superclass::Paint(painter);
}

// Plots that have just been told another shift and scale of this painting's axes must read their
// points anew, or they would be missing in it.
bool vtkSelectableChartXY::PaintChildren(vtkContext2D* painter)
{
  for (vtkIdType i = 0; i < GetNumberOfPlots(); ++i)
    if (GetPlot(i)->GetVisible() && !Scales.areKnown(this, i))
      GetPlot(i)->Update();
  Scales.note(this);
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
  return Superclass::MouseMoveEvent(mouse);
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
  return Superclass::KeyPressEvent(key);
}

bool vtkSelectableChartXY::MouseButtonPressEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  if (SelectsRows(mouse) && !AnnotationLink)
    return false;
  return Superclass::MouseButtonPressEvent(mouse);
}

bool vtkSelectableChartXY::MouseButtonReleaseEvent(const vtkContextMouseEvent& mouse)
{
  const Talmesh::HandlerScope running;
  if (!Scene)
  {
    EndDrag();
    return true;
  }
  if (!SelectsRows(mouse))
    return Superclass::MouseButtonReleaseEvent(mouse);
  if (!AnnotationLink)
    return false;
  const vtkVector2f from(MouseBox.GetX(), MouseBox.GetY());
  const vtkVector2f drag = mouse.GetPos() - from;
  const bool wide = std::fabs(drag.GetX()) >= smallestExtent;
  const bool high = std::fabs(drag.GetY()) >= smallestExtent;
  EndDrag();
  Scene->SetDirty(true);
  // A line encloses nothing.
  if (wide != high)
    return true;
  const Hits hits = wide ? HitsBetween(from, mouse.GetPos()) : HitsAt(mouse.GetPos());
  if (!hits.table)
    return true;
  // Whoever hears of the selection may replace the chart.
  const vtkSmartPointer<vtkObject> kept = this;
  Talmesh::selectRows(AnnotationLink, hits.table, hits.rows,
                      GetMouseSelectionMode(mouse, SelectionMode));
  InvokeEvent(vtkCommand::SelectionChangedEvent);
  return true;
}

vtkSelectableChartXY::Hits vtkSelectableChartXY::HitsBetween(const vtkVector2f& from,
                                                             const vtkVector2f& to) const
{
  Hits hits;
  for (vtkContextTransform* corner : GetTransforms())
  {
    const vtkVector2f a = inCorner(corner, from);
    const vtkVector2f b = inCorner(corner, to);
    const vtkVector2f low(std::min(a.GetX(), b.GetX()), std::min(a.GetY(), b.GetY()));
    const vtkVector2f high(std::max(a.GetX(), b.GetX()), std::max(a.GetY(), b.GetY()));
    for (unsigned int i = 0; i < corner->GetNumberOfItems(); ++i)
    {
      vtkPlot* plot = selectablePlot(corner, i);
      if (!plot)
        continue;
      // Asked once: it takes longer than all that is done for a row.
      vtkTable* const input = plot->GetInput();
      hits.Add(input, -1);
      // The plot writes into its list, which may be that of the link and of other plots.
      plot->SetSelection(vtkNew<vtkIdTypeArray>());
      plot->SelectPoints(low, high);
      vtkIdTypeArray* rows = plot->GetSelection();
      for (vtkIdType k = 0; k < rows->GetNumberOfValues(); ++k)
        hits.Add(input, rows->GetValue(k));
    }
  }
  return hits;
}

vtkSelectableChartXY::Hits vtkSelectableChartXY::HitsAt(const vtkVector2f& position) const
{
  Hits hits;
  for (vtkContextTransform* corner : GetTransforms())
  {
    for (unsigned int i = corner->GetNumberOfItems(); i-- > 0;)
    {
      vtkPlot* plot = selectablePlot(corner, i);
      vtkVector2f location;
      vtkIdType segment = -1;
      const vtkIdType row = plot ? plot->GetNearestPoint(inCorner(corner, position),
                                                         reachIn(corner), &location, &segment)
                                 : -1;
      if (row < 0)
        continue;
      hits.Add(plot->GetInput(), row);
      return hits;
    }
  }
  return hits;
}

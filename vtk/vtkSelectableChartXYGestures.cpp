#include "vtk/AxisBrush.h"
#include "vtk/GestureHandling.h"
#include "vtk/vtkPlotLineSet.h"
#include "vtk/vtkSelectableChartXY.h"

#include <vtkAxis.h>
#include <vtkBrush.h>
#include <vtkContext2D.h>
#include <vtkContextMapper2D.h>
#include <vtkContextMouseEvent.h>
#include <vtkContextScene.h>
#include <vtkContextTransform.h>
#include <vtkDataArray.h>
#include <vtkPen.h>
#include <vtkPlot.h>
#include <vtkTable.h>
#include <vtkTooltipItem.h>
#include <vtkVectorOperators.h>

#include <algorithm>
#include <cmath>
#include <utility>

/// What the mouse draws in a chart, and what that is in units of the data.
namespace
{

using Gesture = Talmesh::SelectionGesture;

/// Pixels, as all here. So far beside the axes a drag may begin; no farther than half of the gutter
/// between charts, so that neighbours do not compete.
constexpr int besideAxes = 14;
/// Corners of a lasso are as far apart at least.
constexpr float trailStep = 4.0F;
constexpr float trailWidth = 1.5F;
constexpr float tooltipOffset = 2.0F;

float extentOf(const std::vector<vtkVector2f>& pixels)
{
  float extent = 0.0F;
  for (const vtkVector2f& pixel : pixels)
    for (const int i : {0, 1})
      extent = std::max(extent, std::fabs(pixel[i] - pixels.front()[i]));
  return extent;
}

/// An axis as a ruler: from pixels to values.
struct Ruler
{
  Ruler(vtkAxis* axis, int coordinate)
      : first(axis->GetPoint1()[coordinate])
      , minimum(axis->GetMinimum())
      , perPixel((axis->GetMaximum() - minimum) / (axis->GetPoint2()[coordinate] - first))
      , logarithmic(axis->GetLogScaleActive())
  {
  }

  double valueAt(float pixel) const
  {
    const double place = minimum + (pixel - first) * perPixel;
    return logarithmic ? std::pow(10.0, place) : place;
  }

  double first;
  double minimum; ///< of a logarithmic axis its logarithm
  double perPixel;
  bool logarithmic;
};

std::string nameOfInput(vtkPlot* plot, int which)
{
  auto* column = plot->GetData()->GetInputAbstractArrayToProcess(which, plot->GetInput());
  return column && column->GetName() ? column->GetName() : "";
}

Gesture::Series seriesOf(vtkPlot* plot)
{
  return {plot->GetUseIndexForXSeries() ? "" : nameOfInput(plot, 0), nameOfInput(plot, 1),
          vtkPlotLineSet::SafeDownCast(plot) != nullptr};
}

bool isAround(vtkAbstractContextItem* item, const vtkVector2i& position)
{
  auto* chart = vtkChart::SafeDownCast(item);
  return chart && position[0] > chart->GetPoint1()[0] && position[0] < chart->GetPoint2()[0] &&
         position[1] > chart->GetPoint1()[1] && position[1] < chart->GetPoint2()[1];
}

} // namespace

void vtkSelectableChartXY::SetGestures(std::shared_ptr<const Talmesh::GestureHandling> gestures)
{
  Gestures = std::move(gestures);
}

bool vtkSelectableChartXY::AsksFirst() const
{
  return Gestures && Gestures->select;
}

bool vtkSelectableChartXY::BeginsBeside(const vtkContextMouseEvent& mouse)
{
  if (!Interactive || !AnnotationLink || !AsksFirst() || !SelectsRows(mouse))
    return false;
  const vtkVector2i position(mouse.GetScreenPos());
  for (const int i : {0, 1})
    if (position[i] < Point1[i] - besideAxes || position[i] > Point2[i] + besideAxes)
      return false;
  // Within another chart of the page it is that one's.
  for (unsigned int i = 0; Parent && i < Parent->GetNumberOfItems(); ++i)
    if (Parent->GetItem(i) != this && isAround(Parent->GetItem(i), position))
      return false;
  return true;
}

vtkVector2f vtkSelectableChartXY::WithinAxes(const vtkVector2f& pixel) const
{
  vtkVector2f within = pixel;
  for (const int i : {0, 1})
    within[i] = std::clamp(pixel[i], static_cast<float>(Point1[i]), static_cast<float>(Point2[i]));
  return within;
}

void vtkSelectableChartXY::BeginTrail(const vtkVector2f& pixel)
{
  if (Gestures->tool == Talmesh::SelectionTool::Rectangle)
    return;
  DrawBox = false;
  Trail = {pixel};
}

void vtkSelectableChartXY::LeaveTrail(const vtkVector2f& pixel)
{
  if (Trail.empty())
    return;
  if (Gestures->tool == Talmesh::SelectionTool::Line)
    Trail.resize(1);
  else if ((Trail.back() - pixel).Norm() < trailStep)
    return;
  Trail.push_back(pixel);
}

void vtkSelectableChartXY::PaintTrail(vtkContext2D* painter) const
{
  if (Trail.size() < 2)
    return;
  painter->GetPen()->SetColor(0, 0, 0, 255);
  painter->GetPen()->SetWidth(trailWidth);
  painter->GetPen()->SetLineType(vtkPen::SOLID_LINE);
  Pixels closed = Trail;
  if (Gestures && Gestures->tool == Talmesh::SelectionTool::Lasso)
    closed.push_back(closed.front());
  painter->DrawPoly(closed.front().GetData(), static_cast<int>(closed.size()));
}

std::optional<Gesture> vtkSelectableChartXY::GestureOf(const Pixels& pixels) const
{
  Gesture gesture;
  vtkPlot* first = nullptr;
  for (vtkContextTransform* corner : GetTransforms())
    for (unsigned int i = 0; i < corner->GetNumberOfItems(); ++i)
    {
      auto* plot = vtkPlot::SafeDownCast(corner->GetItem(i));
      if (!plot || !plot->GetVisible() || !plot->GetSelectable() || !plot->GetInput())
        continue;
      if (!first)
        first = plot;
      if (plot->GetInput() != first->GetInput() || plot->GetXAxis() != first->GetXAxis() ||
          plot->GetYAxis() != first->GetYAxis())
        return {};
      gesture.series.push_back(seriesOf(plot));
    }
  if (!first)
    return {};
  gesture.table = first->GetInput();
  const Ruler x(first->GetXAxis(), 0);
  const Ruler y(first->GetYAxis(), 1);
  gesture.unitsX = std::fabs(x.perPixel);
  gesture.unitsY = std::fabs(y.perPixel);
  gesture.logX = x.logarithmic;
  gesture.logY = y.logarithmic;
  for (const vtkVector2f& pixel : pixels)
    gesture.points.push_back({x.valueAt(pixel[0]), y.valueAt(pixel[1])});
  return gesture;
}

bool vtkSelectableChartXY::EndGesture(const vtkContextMouseEvent& mouse)
{
  const vtkVector2f end = WithinAxes(mouse.GetPos());
  LeaveTrail(end);
  const bool box = Trail.empty();
  Pixels drawn = box ? Pixels{{MouseBox.GetX(), MouseBox.GetY()}, end} : Trail;
  EndDrag();
  Scene->SetDirty(true);
  auto kind = box ? Gesture::Kind::Rectangle
                  : (Gestures->tool == Talmesh::SelectionTool::Lasso ? Gesture::Kind::Lasso
                                                                     : Gesture::Kind::Line);
  if (extentOf(drawn) < Talmesh::clickExtent)
  {
    kind = Gesture::Kind::Click;
    drawn = {end};
  }
  // There and back again encloses nothing.
  if (kind == Gesture::Kind::Lasso && drawn.size() < 3)
    drawn.push_back(drawn.front());
  if (std::optional<Gesture> gesture = GestureOf(drawn))
  {
    gesture->kind = kind;
    gesture->mode = Talmesh::gestureMode(GetMouseSelectionMode(mouse, SelectionMode));
    // The handler may take itself away.
    const auto select = Gestures->select;
    if (select(*gesture))
      return true;
  }
  if (kind == Gesture::Kind::Line || !Scene || !AnnotationLink)
    return true;
  return SelectRows(kind == Gesture::Kind::Click   ? HitsAt(end)
                    : kind == Gesture::Kind::Lasso ? HitsWithin(drawn)
                                                   : HitsBetween(drawn.front(), end),
                    mouse);
}

/// @return whether the program knows what is there, or that nothing is
bool vtkSelectableChartXY::Describe(const vtkContextMouseEvent& mouse)
{
  if (!Gestures || !Gestures->describe || !Tooltip)
    return false;
  std::optional<Gesture> gesture = GestureOf({mouse.GetPos()});
  if (!gesture)
    return false;
  gesture->kind = Gesture::Kind::Click;
  const auto describe = Gestures->describe;
  const std::optional<std::string> text = describe(*gesture);
  if (!text)
    return false;
  // Another picture only where another text, or the same elsewhere, is to be seen.
  if (!text->empty() || Tooltip->GetVisible())
    Scene->SetDirty(true);
  Tooltip->SetText(*text);
  Tooltip->SetPosition(mouse.GetScreenPos()[0] + tooltipOffset,
                       mouse.GetScreenPos()[1] + tooltipOffset);
  Tooltip->SetVisible(!text->empty());
  return true;
}

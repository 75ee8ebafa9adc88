#include "vtk/SmoothScene.h"

#include "vtk/ParallelLines.h"
#include "vtk/vtkPlotLineSet.h"
#include "vtk/vtkPlotSafeLine.h"
#include "vtk/vtkPlotStepLine.h"
#include "vtk/vtkSelectableChartXY.h"

#include <vtkAnnotationLink.h>
#include <vtkAxis.h>
#include <vtkChartMatrix.h>
#include <vtkChartParallelCoordinates.h>
#include <vtkContextClip.h>
#include <vtkContextScene.h>
#include <vtkContextTransform.h>
#include <vtkIdTypeArray.h>
#include <vtkPen.h>
#include <vtkPlotGrid.h>
#include <vtkRenderingCoreEnums.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkTooltipItem.h>

namespace Talmesh
{

namespace
{

template <class... Classes>
bool isOneOf(vtkAbstractContextItem* item)
{
  return (dynamic_cast<Classes*>(item) || ...);
}

bool hasMarkers(vtkPlotPoints* plot)
{
  const bool selected = plot->GetSelection() && plot->GetSelection()->GetNumberOfValues() > 0;
  return selected || plot->GetMarkerStyle() != VTK_MARKER_NONE;
}

/// Lines go to the screen as pictures unless they are dashed.
bool isSmoothPlot(vtkPlot* plot)
{
  if (!plot->GetInput())
    return true;
  if (plot->GetPen()->GetLineType() != vtkPen::SOLID_LINE)
    return false;
  if (auto* line = dynamic_cast<vtkPlotSafeLine*>(plot))
    return line->GetPolyLine() && !hasMarkers(line);
  return isOneOf<vtkPlotLineSet, vtkPlotStepLine, ParallelLines>(plot);
}

bool isAnythingSelected(vtkAnnotationLink* link)
{
  vtkSelection* selection = link ? link->GetCurrentSelection() : nullptr;
  for (unsigned int i = 0; selection && i < selection->GetNumberOfNodes(); ++i)
  {
    vtkAbstractArray* list = selection->GetNode(i)->GetSelectionList();
    if (list && list->GetNumberOfValues() > 0)
      return true;
  }
  return false;
}

/// A chart hands what was selected elsewhere to its plots only when it is painted.
bool willMarkLines(vtkSelectableChartXY* chart)
{
  if (!isAnythingSelected(chart->GetAnnotationLink()))
    return false;
  for (vtkIdType i = 0; i < chart->GetNumberOfPlots(); ++i)
  {
    vtkPlot* plot = chart->GetPlot(i);
    if (dynamic_cast<vtkPlotSafeLine*>(plot) && plot->GetVisible() && plot->GetSelectable() &&
        plot->GetInput())
      return true;
  }
  return false;
}

bool isSmoothAlone(vtkAbstractContextItem* item)
{
  if (auto* plot = vtkPlot::SafeDownCast(item))
    return isSmoothPlot(plot);
  // A polygon drawn with the mouse has slanted sides.
  if (auto* chart = dynamic_cast<vtkSelectableChartXY*>(item))
    return chart->GetActionToButton(vtkChart::SELECT_POLYGON) < 0 && !willMarkLines(chart);
  // A legend is none: its markers are round.
  return isOneOf<vtkAxis, vtkChartMatrix, vtkChartParallelCoordinates, vtkContextClip,
                 vtkContextTransform, vtkPlotGrid, vtkTooltipItem>(item);
}

bool isSmooth(vtkAbstractContextItem* item)
{
  if (!item->GetVisible())
    return true;
  if (!isSmoothAlone(item))
    return false;
  for (unsigned int i = 0; i < item->GetNumberOfItems(); ++i)
    if (!isSmooth(item->GetItem(i)))
      return false;
  return true;
}

} // namespace

bool isSmoothOnScreen(vtkContextScene& scene)
{
  for (unsigned int i = 0; i < scene.GetNumberOfItems(); ++i)
    if (!isSmooth(scene.GetItem(i)))
      return false;
  return true;
}

} // namespace Talmesh

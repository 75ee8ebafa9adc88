#include "plot/Redraw.h"

#include "external/PlotMetaData.h"
#include "plot/AxisScales.h"
#include "plot/ChartLifetime.h"
#include "plot/Decorations.h"
#include "plot/PlotState.h"
#include "plot/PointAppearance.h"
#include "plot/RankedTables.h"
#include "plot/ReservedStyle.h"
#include "plot/SelectionBounds.h"
#include "plot/SettingsSignals.h"
#include "plot/StyleTable.h"
#include "plot/vtkSelectionUpdateCallback.h"

#include <vtkCommand.h>

#include <iostream>

namespace Talmesh::plot
{

namespace
{

void dress(PlotState& state)
{
  setPointSize(state, state.metaData->pointSize);
  setMarkerStyle(state, state.metaData->markerStyle);
  removeDecorations(state);
  drawDecorations(state);
  applyLogScaleX(state);
}

/// Whoever watches the selection hears of the cut and may answer by drawing.
/// @return whether that happened, or the container has ended
bool cutSelection(PlotState& state)
{
  // A style that draws no rows needs no cut.
  if (!currentScene(state) || builderOf(state.metaData->getPlotStyle()) == drawReservedStyle)
    return false;
  const unsigned long before = state.drawings;
  const vtkSmartPointer<vtkSelectionUpdateCallback> callback = state.selectionUpdateCallback;
  cutSelectionToTable(state);
  // Who ends the container has no state any more.
  return !callback->Container || state.drawings != before;
}

} // namespace

void redraw(PlotState& state)
{
  freeChartsSetAside(state);
  if (cutSelection(state))
    return;
  blockSettings(state);
  if (state.chartXY)
    state.chartXY->RemoveObservers(vtkCommand::InteractionEvent);
  vtkContextScene* scene = currentScene(state);
  if (!scene)
  {
    std::cout << "void PlotContainer::redraw(): invalid scene" << std::endl;
    return;
  }
  dropOutdatedRanks(state);
  if (!showsXYChart(state.metaData->getPlotStyle()))
    forgetChartLooks(state);
  builderOf(state.metaData->getPlotStyle())(state, scene);
  dress(state);
  ++state.drawings;
  unblockSettings(state);
}

void markDirty(PlotState& state)
{
  if (vtkContextScene* scene = currentScene(state))
    scene->SetDirty(true);
}

} // namespace Talmesh::plot

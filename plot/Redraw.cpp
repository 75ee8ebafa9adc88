#include "plot/Redraw.h"

#include "external/PlotMetaData.h"
#include "plot/AppliedLook.h"
#include "plot/AxisScales.h"
#include "plot/ChartLifetime.h"
#include "plot/Decorations.h"
#include "plot/DrawingSteps.h"
#include "plot/PlotState.h"
#include "plot/PointAppearance.h"
#include "plot/RankedTables.h"
#include "plot/SelectionBounds.h"
#include "plot/SettingsSignals.h"
#include "plot/StyleTable.h"
#include "plot/vtkSelectionUpdateCallback.h"

#include <vtkCommand.h>

#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <iostream>
#include <utility>

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
  dressInLook(state);
}

/// Whoever watches the selection hears of the cut and may answer by drawing.
/// @return whether that happened, or the container has ended
bool cutSelection(PlotState& state)
{
  if (!currentScene(state) || !currentStyle(state).drawsRows)
    return false;
  const unsigned long before = state.drawings;
  const vtkSmartPointer<vtkSelectionUpdateCallback> callback = state.selectionUpdateCallback;
  cutSelectionToTable(state);
  // Who ends the container has no state any more.
  return !callback->Container || state.drawings != before;
}

/// Makes up for a reaction to the selection that was refused.
/// @return whether it has drawn the page, was refused once more, or the container has ended
bool reactLate(PlotState& state)
{
  if (!std::exchange(state.steps.reactionOwed, false))
    return false;
  const unsigned long before = state.drawings;
  const vtkSmartPointer<vtkSelectionUpdateCallback> callback = state.selectionUpdateCallback;
  callback->Execute(state.annotationLink, 0, nullptr);
  if (!callback->Container)
    return true;
  unblockSettings(state);
  return state.drawings != before || state.steps.reactionOwed;
}

/// @return whether a drawing ran inside the builder, which is the one that is shown
bool build(PlotState& state, vtkContextScene* scene)
{
  const unsigned long before = state.drawings;
  currentStyle(state).build(state, scene);
  return state.drawings != before;
}

/// What a step before the drawing asks for is in the drawing.
void prepare(PlotState& state)
{
  runSteps(state, DrawingMoment::before);
  state.steps.again = false;
}

/// Not before it is certain that the chart is drawn anew: a page that stays has its window noted.
void stopWatchingChart(PlotState& state)
{
  if (state.chartXY)
    state.chartXY->RemoveObservers(vtkCommand::InteractionEvent);
}

/// @return whether a page was drawn; otherwise the container may be gone
bool draw(PlotState& state)
{
  freeChartsSetAside();
  if (cutSelection(state))
    return false;
  blockSettings(state);
  if (!currentScene(state))
  {
    stopWatchingChart(state);
    std::cout << "void PlotContainer::redraw(): invalid scene" << std::endl;
    return false;
  }
  if (!mayDraw(state))
  {
    unblockSettings(state);
    return false;
  }
  if (reactLate(state))
    return false;
  blockSettings(state);
  stopWatchingChart(state);
  prepare(state);
  dropOutdatedRanks(state);
  if (!currentStyle(state).showsXYChart)
    forgetChartLooks(state);
  const bool drawnWithin = build(state, currentScene(state));
  dress(state);
  if (!drawnWithin)
    runSteps(state, DrawingMoment::after);
  ++state.drawings;
  unblockSettings(state);
  return true;
}

} // namespace

bool mayDraw(PlotState& state)
{
  const QSignalBlocker silence(state.metaData);
  return runSteps(state, DrawingMoment::question);
}

void redraw(PlotState& state)
{
  // In the middle of a step the chart is not ready to be built anew.
  if (state.steps.running)
  {
    state.steps.again = true;
    return;
  }
  // Twice at most: steps that ask in every drawing would never come to an end.
  if (draw(state) && state.steps.again)
    draw(state);
}

void withoutDrawing(PlotState& state, const std::function<void()>& change)
{
  const QScopedValueRollback<bool> guard(state.steps.running, true);
  change();
}

void markDirty(PlotState& state)
{
  if (vtkContextScene* scene = currentScene(state))
    scene->SetDirty(true);
}

} // namespace Talmesh::plot

#include "plot/Redraw.h"

#include "external/PlotMetaData.h"
#include "plot/AxisScales.h"
#include "plot/ChartLifetime.h"
#include "plot/Decorations.h"
#include "plot/PlotState.h"
#include "plot/PointAppearance.h"
#include "plot/RankedTables.h"
#include "plot/SettingsSignals.h"
#include "plot/StyleTable.h"

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

} // namespace

void redraw(PlotState& state)
{
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
  const unsigned long before = state.drawings;
  builderOf(state.metaData->getPlotStyle())(state, scene);
  // A drawing that ran inside this one has dressed the chart that is now shown.
  if (state.drawings == before)
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

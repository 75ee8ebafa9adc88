#include "plot/SelectionPage.h"

#include "external/PlotMetaData.h"
#include "plot/ChartLifetime.h"
#include "plot/DistributionCell.h"
#include "plot/Margins.h"
#include "plot/ParameterCells.h"
#include "plot/PlotState.h"
#include "plot/PointAppearance.h"
#include "plot/RankedTables.h"
#include "plot/ShownParameters.h"
#include "plot/TrajectoryChart.h"
#include "plot/vtkSelectionUpdateCallback.h"
#include "plot/vtkShiftScaleCallback.h"

#include <vtkCommand.h>
#include <vtkPlot.h>

#include <algorithm>

namespace Talmesh::plot
{

namespace
{

/// Room above the highest density when all charts share one scale.
constexpr double commonScalePadding = 1.05;

struct PageLayout
{
  int columns = 1;
  int groups = 1; ///< rows of parameter charts; the trajectories are as high as all of them
};

PageLayout layoutOf(std::size_t shown)
{
  const std::size_t filled = std::max<std::size_t>(shown, 1);
  return {static_cast<int>(std::min(filled, chartsPerRow)),
          static_cast<int>((filled - 1) / chartsPerRow) + 1};
}

/// A chart loses its scene with its place among the items, but a handler that is still running in
/// it needs one.
void clearScene(const PlotState& state, vtkContextScene* scene)
{
  const vtkSmartPointer<vtkAbstractContextItem> shown = state.currentChart;
  const bool wasHere = shown && shown->GetScene() == scene;
  scene->ClearItems();
  if (wasHere)
    shown->SetScene(scene);
}

void rankOwnData(PlotState& state)
{
  dropOutdatedRanks(state);
  if (!hasOwnRanks(state) || !state.metaData->rankedDataCurrent)
    generateRankedParameters(state, state.table, 0);
}

void placeTrajectoryChart(PlotState& state, const PageLayout& layout)
{
  const vtkVector2i cell(0, layout.groups);
  state.chartMatrix->SetChartSpan(cell, vtkVector2i(layout.columns, layout.groups));
  adoptCell(state, cell.GetX(), cell.GetY());
  state.chartXY->SetRenderEmpty(true);
  state.chartXY->AddObserver(vtkCommand::InteractionEvent, state.shiftScaleCallback);
  enableSelection(state, state.chartXY);
}

/// @return whether the update drew the page
bool runPendingUpdate(PlotState& state)
{
  if (!state.selectionUpdatePending)
    return false;
  state.selectionUpdatePending = false;
  const unsigned long before = state.drawings;
  state.selectionUpdateCallback->Execute(state.annotationLink, 0, nullptr);
  return state.drawings != before;
}

std::vector<std::size_t> parametersOn(const PlotState& state)
{
  const PlotMetaData& settings = *state.metaData;
  const auto shown = [&settings](const auto& tests)
  {
    return shownParameters(tests, settings.parameterColumns.size(), settings.getPThreshold(),
                           settings.getKsThreshold());
  };
  return state.parameterTests ? shown(*state.parameterTests) : shown(state.ksResults);
}

std::vector<std::string> titlesOf(const PlotState& state, const std::vector<std::size_t>& shown)
{
  std::vector<std::string> titles;
  for (const std::size_t parameter : shown)
    titles.push_back(parameterTitle(state, parameter));
  return titles;
}

/// Cells for the parameters and, as the container's XY chart, an empty one for the trajectories.
void layOut(PlotState& state, std::size_t shown)
{
  const PageLayout layout = layoutOf(shown);
  resetChartMatrix(state, layout.columns, 2 * layout.groups);
  applySelectionPageBorders(state);
  placeTrajectoryChart(state, layout);
}

vtkChart* parameterCell(PlotState& state, std::size_t position)
{
  const vtkVector2i cell(static_cast<int>(position % chartsPerRow),
                         static_cast<int>(position / chartsPerRow));
  state.chartMatrix->SetChartSpan(cell, vtkVector2i(1, 1));
  return state.chartMatrix->GetChart(cell);
}

void scaleDensities(PlotState& state, std::size_t shown)
{
  std::vector<double> maxima;
  for (std::size_t i = 0; i < shown; ++i)
    maxima.push_back(highestBound(parameterCell(state, i)));
  if (maxima.empty())
    return;
  const double common = commonScalePadding * *std::max_element(maxima.begin(), maxima.end());
  for (std::size_t i = 0; i < shown; ++i)
    scaleDensityAxis(parameterCell(state, i),
                     state.metaData->getCommonDensityScale() ? common : maxima[i]);
}

} // namespace

void drawSelectionPage(PlotState& state, vtkContextScene* scene)
{
  const PlotMetaData& settings = *state.metaData;
  const std::vector<std::size_t> shown = parametersOn(state);
  const std::vector<std::string> titles = titlesOf(state, shown);
  if (scene)
    clearScene(state, scene);
  showChart(state, state.chartMatrix, scene);
  rankOwnData(state);
  // Before the cells are made: a drawing in there that fails may leave others behind.
  if (runPendingUpdate(state))
    return;
  layOut(state, shown.size());
  vtkPlot* runs = fillTrajectoryChart(state);
  for (std::size_t i = 0; i < shown.size(); ++i)
    fillDistributionCell(state, parameterCell(state, i), shown[i], titles[i]);
  if (settings.getUseDensity())
    scaleDensities(state, shown.size());
  useColors(state, runs);
  state.chartXY->SetTitle(settings.title);
  if (scene)
    scene->AddItem(state.currentChart);
}

} // namespace Talmesh::plot

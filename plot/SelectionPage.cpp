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

void rankOwnData(PlotState& state)
{
  dropOutdatedRanks(state);
  const bool missing =
      state.derivedTables.size() < 2 || !state.derivedTables[0] || !state.derivedTables[1];
  if (missing || !state.metaData->rankedDataCurrent)
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
  const unsigned long drawing = state.drawings;
  state.selectionUpdateCallback->Execute(state.annotationLink, 0, nullptr);
  return state.drawings != drawing;
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
  const std::vector<std::string> titles = parameterTitles(state);
  scene->ClearItems();
  showChart(state, state.chartMatrix, scene);
  rankOwnData(state);
  const std::vector<std::size_t> shown =
      shownParameters(state.ksResults, titles.size(), state.metaData->getPThreshold(),
                      state.metaData->getKsThreshold());
  const PageLayout layout = layoutOf(shown.size());
  resetChartMatrix(state, layout.columns, 2 * layout.groups);
  applySelectionPageBorders(state);

  placeTrajectoryChart(state, layout);
  if (runPendingUpdate(state))
    return;
  vtkPlot* runs = fillTrajectoryChart(state);
  for (std::size_t i = 0; i < shown.size(); ++i)
    fillDistributionCell(state, parameterCell(state, i), shown[i], titles[shown[i]]);
  if (state.metaData->getUseDensity())
    scaleDensities(state, shown.size());
  useColors(state, runs);
  state.chartXY->SetTitle(state.metaData->title);
  scene->AddItem(state.currentChart);
}

} // namespace Talmesh::plot

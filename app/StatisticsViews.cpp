#include "app/StatisticsViews.h"

#include "app/PlotChoice.h"
#include "app/Study.h"
#include "external/LinePlotTable.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

constexpr int clusterCount = 3;

/// How far the study's first item moves in the second half of a run.
double liveliness(const LinePlotTable& runs, std::size_t run)
{
  const std::size_t points = runs.pointsPerTrajectory;
  const double* first = runs.values.front() + run * points + points / 2;
  const auto [least, most] = std::minmax_element(first, first + (points - points / 2));
  return *most - *least;
}

/// The fourth of the runs that move most at the end: in the example study those that oscillate.
ParameterSelection livelyRuns(const LinePlotTable& runs)
{
  std::vector<std::pair<double, int>> order;
  for (std::size_t run = 0; run < runs.numberOfTrajectories; ++run)
    order.emplace_back(-liveliness(runs, run), static_cast<int>(run));
  std::sort(order.begin(), order.end());
  ParameterSelection selection;
  for (std::size_t i = 0; i < order.size() / 4; ++i)
    selection.runs.insert(order[i].second);
  return selection;
}

std::string drawStyle(const Study& study, PlotContainer& container, plotStyles style)
{
  showStudy(study, container);
  PlotChoice choice = choiceOf(container);
  choice.style = style;
  return applyChoice(container, choice);
}

std::string drawComparison(const Study& study, PlotContainer& container, plotStyles style)
{
  const std::string error = drawStyle(study, container, style);
  if (study.runs && error.empty())
  {
    ParameterSelection lively = livelyRuns(*study.runs);
    container.setSelection(&lively, 0);
  }
  return error;
}

std::string drawDensities(const Study& study, PlotContainer& container)
{
  PlotMetaData& settings = *container.getMetaData();
  settings.blockSignals(true);
  settings.setUseDensity(true);
  settings.setShowQuantiles(true);
  settings.blockSignals(false);
  container.generateQuartiles();
  const std::string error = drawComparison(study, container, selectionCdfPlot);
  container.generateQuartiles();
  container.redraw();
  return error;
}

std::string drawClusters(const Study& study, PlotContainer& container)
{
  const std::string error = drawStyle(study, container, xyPlot);
  container.clusterTimeSeries(clusterCount, 0);
  container.setShowDecorations(true);
  container.redraw();
  return error;
}

} // namespace

const std::vector<GalleryView>& statisticsViews()
{
  static const std::vector<GalleryView> views = {
      {"multiPlot", [](const Study& study, PlotContainer& container)
       { return drawComparison(study, container, multiPlot); }},
      {"selectionCdfPlot", [](const Study& study, PlotContainer& container)
       { return drawComparison(study, container, selectionCdfPlot); }},
      {"selectionCdfPlot-densities", drawDensities},
      {"xyPlot-clusters", drawClusters}};
  return views;
}

} // namespace Talmesh::app

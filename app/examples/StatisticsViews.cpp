#include "app/examples/StatisticsViews.h"

#include "app/document/Document.h"
#include "external/LinePlotTable.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/RunSelection.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::app
{

namespace
{

constexpr int clusterCount = 3;

/// How far the study's first item moves in the second half of the run that begins at `row`.
double liveliness(const LinePlotTable& runs, std::size_t row)
{
  const std::size_t points = runs.pointsPerTrajectory;
  const double* const begin = runs.values.front() + row;
  double least = std::numeric_limits<double>::infinity();
  double most = -least;
  for (const double* value = begin + points / 2; value != begin + points; ++value)
  {
    if (!std::isfinite(*value))
      continue;
    least = std::min(least, *value);
    most = std::max(most, *value);
  }
  return least <= most ? most - least : 0.0;
}

/// The fourth of the runs that move most at the end: in the example study those that oscillate.
ParameterSelection livelyRuns(const LinePlotTable& runs, const PlotContainer& container)
{
  std::vector<std::pair<double, int>> order;
  for (const plot::PlacedRun& run : plot::wholeRuns(stateOf(container)))
    order.emplace_back(-liveliness(runs, static_cast<std::size_t>(run.firstRow)), run.index);
  std::sort(order.begin(), order.end());
  ParameterSelection selection;
  for (std::size_t i = 0; i < order.size() / 4; ++i)
    selection.runs.insert(order[i].second);
  return selection;
}

void selectLivelyRuns(const Study& study, Document& document)
{
  if (!study.runs)
    return;
  ParameterSelection lively = livelyRuns(*study.runs, *document.container());
  document.container()->setSelection(&lively, 0);
}

std::string drawComparison(const Study& study, Document& document, plotStyles style)
{
  std::string error = showIn(document, study, style);
  selectLivelyRuns(study, document);
  return error;
}

std::string drawDensities(const Study& study, Document& document)
{
  std::string error = showIn(document, study, selectionCdfPlot);
  ComparisonChoice choice = comparisonChoiceOf(*document.container());
  choice.density = true;
  choice.bands = true;
  document.compareBy(choice);
  selectLivelyRuns(study, document);
  return error;
}

std::string drawClusters(const Study& study, Document& document)
{
  std::string error = showIn(document, study, xyPlot);
  PlotContainer& container = *document.container();
  container.clusterTimeSeries(clusterCount, 0);
  container.setShowDecorations(true);
  return error;
}

} // namespace

const std::vector<GalleryView>& statisticsViews()
{
  static const std::vector<GalleryView> views = {
      {"multiPlot", [](const Study& study, Document& document)
       { return drawComparison(study, document, multiPlot); }},
      {"selectionCdfPlot", [](const Study& study, Document& document)
       { return drawComparison(study, document, selectionCdfPlot); }},
      {"selectionCdfPlot-densities", drawDensities},
      {"xyPlot-clusters", drawClusters}};
  return views;
}

} // namespace Talmesh::app

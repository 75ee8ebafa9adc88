#include "plot/Clustering.h"

#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "external/vtkKMeansPearson.h"
#include "plot/Decorations.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/RunTables.h"
#include "plot/SpectralFeatures.h"
#include "plot/TableColumns.h"

#include <vtkKMeansStatistics.h>
#include <vtkPlot.h>

#include <algorithm>
#include <iostream>

namespace Talmesh::plot
{

namespace
{

constexpr int phaseMode = 2;
constexpr int magnitudeMode = 3;

/// Clusters beyond the runs are empty. Listing this many is enough: a mistyped number must not
/// exhaust the memory.
constexpr vtkIdType longestEmptyList = 4096;

constexpr double fullBrightness = 255.0;
constexpr unsigned char curveAlpha = 180;

/// What is compared, in both layouts.
struct Observations
{
  vtkSmartPointer<vtkTable> byRow;    ///< one row per run
  vtkSmartPointer<vtkTable> byColumn; ///< one column per run
};

Observations observe(const PlotState& state, int mode)
{
  Observations result;
  result.byRow = runsByRow(state);
  if (result.byRow->GetNumberOfRows() == 0)
    return result;
  result.byColumn = transposed(result.byRow);
  if (mode == phaseMode || mode == magnitudeMode)
  {
    const SpectralFeature feature =
        mode == phaseMode ? SpectralFeature::phase : SpectralFeature::magnitude;
    result.byColumn = spectralFeatures(result.byColumn, feature);
    result.byRow = transposed(result.byColumn);
  }
  return result;
}

/// The observations with two more columns: distance and number of the closest centre.
vtkSmartPointer<vtkTable> assess(vtkTable* observations, int clusters)
{
  vtkNew<vtkKMeansStatistics> statistics;
  vtkNew<vtkKMeansPearson> distance;
  statistics->SetDistanceFunctor(distance);
  statistics->SetInputData(vtkStatisticsAlgorithm::INPUT_DATA, observations);
  for (int i = 0; i < observations->GetNumberOfColumns(); ++i)
    statistics->SetColumnStatus(observations->GetColumnName(i), 1);
  statistics->RequestSelectedColumns();
  statistics->SetAssessOption(true);
  statistics->SetDefaultNumberOfClusters(clusters);
  statistics->Update();
  return statistics->GetOutput(vtkStatisticsAlgorithm::OUTPUT_DATA);
}

/// Runs per cluster. The counts of the clustering itself are those before the last assignment.
std::vector<double> cardinalities(vtkIntArray* membership, vtkIdType clusters)
{
  std::vector<double> counts(static_cast<std::size_t>(clusters), 0.0);
  for (vtkIdType run = 0; run < membership->GetNumberOfTuples(); ++run)
    counts[static_cast<std::size_t>(membership->GetValue(run))] += 1.0;
  return counts;
}

vtkSmartPointer<vtkTable> meanCurves(vtkTable* assessed, vtkIntArray* membership, int clusters)
{
  const vtkIdType runs = membership->GetNumberOfTuples();
  const vtkIdType count = std::min<vtkIdType>(clusters, std::max(runs, longestEmptyList));
  const int positions = static_cast<int>(assessed->GetNumberOfColumns()) - 2;
  const std::vector<double> members = cardinalities(membership, count);
  auto curves = vtkSmartPointer<vtkTable>::New();
  for (vtkIdType cluster = 0; cluster < count; ++cluster)
    curves->AddColumn(makeColumn(std::to_string(cluster),
                                 std::vector<double>(static_cast<std::size_t>(positions), 0.0)));
  for (vtkIdType run = 0; run < runs; ++run)
  {
    const int cluster = membership->GetValue(run);
    double* curve = doubleColumn(curves, cluster)->GetPointer(0);
    for (int position = 0; position < positions; ++position)
      curve[position] += doubleColumn(assessed, position)->GetValue(run) /
                         members[static_cast<std::size_t>(cluster)];
  }
  return curves;
}

void drawCurves(PlotState& state, vtkTable* curves)
{
  if (!state.chartXY)
    return;
  const int runs = static_cast<int>(state.clusterMembership->GetNumberOfTuples());
  for (int run = 0; run < runs; ++run)
  {
    const auto cluster = static_cast<std::size_t>(state.clusterMembership->GetValue(run));
    vtkPlot* plot = state.chartXY->AddPlot(vtkChart::LINE);
    dressPaletteLine(plot, cluster, fullBrightness, curveAlpha);
    feedPlot(plot, curves, runs, run);
    makeUnselectable(plot);
  }
}

void reportNoMembership()
{
  std::cerr << "void PlotContainer::clusterTimeSeries(int, int): Could not cast clusterMembership "
               "to vtkIntArray."
            << std::endl;
}

} // namespace

void clusterTimeSeries(PlotState& state, int clusters, int mode)
{
  state.clusterMembership = nullptr;
  const Observations observed = observe(state, mode);
  vtkSmartPointer<vtkTable> assessed;
  if (clusters > 0 && observed.byColumn)
  {
    assessed = assess(observed.byRow, clusters);
    const int last = static_cast<int>(assessed->GetNumberOfColumns()) - 1;
    state.clusterMembership = vtkIntArray::SafeDownCast(columnAt(assessed, last));
  }
  if (!state.clusterMembership)
  {
    reportNoMembership();
    return;
  }
  state.decorationTable = meanCurves(assessed, state.clusterMembership, clusters);
  const auto time = copiedTime(state, observed.byColumn->GetNumberOfRows());
  state.decorationTable->AddColumn(time);
  observed.byColumn->AddColumn(time);
  std::cout << state.clusterMembership->GetNumberOfTuples() << std::endl;
  std::cout << observed.byColumn->GetNumberOfColumns() << "  "
            << observed.byColumn->GetNumberOfRows() << std::endl;
  drawCurves(state, observed.byColumn);
}

void appendClusterSelections(const PlotState& state, const std::string& prefix,
                             std::vector<ParameterSelection*>& selections)
{
  vtkIntArray* membership = state.clusterMembership;
  if (!membership || membership->GetNumberOfTuples() == 0)
    return;
  double range[2];
  membership->GetRange(range, 0);
  for (int cluster = 0; cluster <= static_cast<int>(range[1]); ++cluster)
  {
    auto* selection = new ParameterSelection();
    selection->sourceName = state.metaData->sourceName;
    selection->sourceId = state.metaData->sourceId;
    selection->label = prefix + " " + std::to_string(cluster);
    selections.push_back(selection);
  }
  for (vtkIdType run = 0; run < membership->GetNumberOfTuples(); ++run)
  {
    const auto cluster = static_cast<std::size_t>(membership->GetValue(run));
    if (cluster < selections.size() && selections[cluster])
      selections[cluster]->runs.insert(static_cast<int>(run));
  }
}

} // namespace Talmesh::plot

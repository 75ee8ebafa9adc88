#include "plot/Clustering.h"

#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "external/vtkKMeansPearson.h"
#include "plot/ColumnList.h"
#include "plot/Decorations.h"
#include "plot/PlotFeed.h"
#include "plot/PlotState.h"
#include "plot/RunTables.h"
#include "plot/SpectralFeatures.h"
#include "plot/TableColumns.h"
#include "vtk/vtkShapeKMeansStatistics.h"

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
struct ComparedRuns
{
  RunMatrix runs;
  vtkSmartPointer<vtkTable> byColumn; ///< one column per run; null without a run
};

ComparedRuns comparedRuns(const PlotState& state, int mode)
{
  ComparedRuns compared;
  compared.runs = runsOf(state);
  if (compared.runs.runs == 0)
    return compared;
  compared.byColumn = columnsOfRuns(compared.runs);
  if (mode == phaseMode || mode == magnitudeMode)
  {
    const SpectralFeature feature =
        mode == phaseMode ? SpectralFeature::phase : SpectralFeature::magnitude;
    compared.byColumn = spectralFeatures(compared.byColumn, feature);
    compared.runs = runsOfColumns(compared.byColumn);
  }
  return compared;
}

/// One row per run. A column per position would take a time that grows with its square.
vtkSmartPointer<vtkTable> observationTable(const RunMatrix& runs)
{
  vtkNew<vtkDoubleArray> column;
  column->SetName("Run");
  column->SetNumberOfComponents(runs.positions);
  // The caller's, for as long as the table.
  const int keep = 1;
  column->SetArray(runs.values->GetPointer(0), runs.runs * runs.positions, keep);
  auto table = vtkSmartPointer<vtkTable>::New();
  table->AddColumn(column);
  return table;
}

/// The cluster of every run; null where the assessment has none.
vtkSmartPointer<vtkIntArray> closestClusters(const RunMatrix& runs, int clusters)
{
  const auto observations = observationTable(runs);
  vtkNew<vtkShapeKMeansStatistics> statistics;
  vtkNew<vtkKMeansPearson> distance;
  statistics->SetDistanceFunctor(distance);
  statistics->SetInputData(vtkStatisticsAlgorithm::INPUT_DATA, observations);
  statistics->SetColumnStatus(observations->GetColumnName(0), 1);
  statistics->RequestSelectedColumns();
  statistics->SetAssessOption(true);
  statistics->SetDefaultNumberOfClusters(clusters);
  statistics->Update();
  vtkTable* assessed = statistics->GetOutput(vtkStatisticsAlgorithm::OUTPUT_DATA);
  const int last = static_cast<int>(assessed->GetNumberOfColumns()) - 1;
  return vtkIntArray::SafeDownCast(columnAt(assessed, last));
}

/// Runs per cluster. The counts of the clustering itself are those before the last assignment.
std::vector<double> cardinalities(vtkIntArray* membership, vtkIdType clusters)
{
  std::vector<double> counts(static_cast<std::size_t>(clusters), 0.0);
  for (vtkIdType run = 0; run < membership->GetNumberOfTuples(); ++run)
    counts[static_cast<std::size_t>(membership->GetValue(run))] += 1.0;
  return counts;
}

vtkSmartPointer<vtkTable> meanCurves(const RunMatrix& runs, vtkIntArray* membership, int clusters)
{
  const vtkIdType count = std::min<vtkIdType>(clusters, std::max(runs.runs, longestEmptyList));
  const std::vector<double> members = cardinalities(membership, count);
  ColumnList curves;
  std::vector<double*> sums;
  for (vtkIdType cluster = 0; cluster < count; ++cluster)
  {
    auto curve = vtkSmartPointer<vtkDoubleArray>::New();
    curve->SetNumberOfValues(runs.positions);
    curve->Fill(0.0);
    sums.push_back(curve->GetPointer(0));
    curves.add(std::to_string(cluster), curve);
  }
  for (vtkIdType run = 0; run < runs.runs; ++run)
  {
    const auto cluster = static_cast<std::size_t>(membership->GetValue(run));
    const double* values = runs.run(run);
    for (int position = 0; position < runs.positions; ++position)
      sums[cluster][position] += values[position] / members[cluster];
  }
  return curves.makeTable();
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

void reportSizes(vtkIntArray* membership, vtkTable* curves)
{
  std::cout << membership->GetNumberOfTuples() << std::endl;
  std::cout << curves->GetNumberOfColumns() << "  " << curves->GetNumberOfRows() << std::endl;
}

} // namespace

void clusterTimeSeries(PlotState& state, int clusters, int mode)
{
  state.clusterMembership = nullptr;
  const ComparedRuns compared = comparedRuns(state, mode);
  if (clusters > 0 && compared.byColumn)
    state.clusterMembership = closestClusters(compared.runs, clusters);
  if (!state.clusterMembership)
  {
    reportNoMembership();
    return;
  }
  state.decorationTable = meanCurves(compared.runs, state.clusterMembership, clusters);
  const auto time = copiedTime(state, compared.runs.positions);
  state.decorationTable->AddColumn(time);
  compared.byColumn->AddColumn(time);
  if (state.options.showsDiagnostics)
    reportSizes(state.clusterMembership, compared.byColumn);
  drawCurves(state, compared.byColumn);
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

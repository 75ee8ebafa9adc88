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

#include <vtkAlgorithm.h>
#include <vtkCommand.h>
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

/// Brings the runs into both layouts, or what of them is compared in their place.
void findCompared(ClusteredRuns& clustered)
{
  if (clustered.runs.runs == 0)
    return;
  clustered.curves = columnsOfRuns(clustered.runs);
  if (clustered.mode != phaseMode && clustered.mode != magnitudeMode)
    return;
  const SpectralFeature feature =
      clustered.mode == phaseMode ? SpectralFeature::phase : SpectralFeature::magnitude;
  clustered.curves = spectralFeatures(clustered.curves, feature);
  clustered.runs = runsOfColumns(clustered.curves);
}

/// Tells somebody how far an algorithm is, who may give it up.
struct ProgressTeller
{
  const std::function<bool(double)>& goOn;
  bool givenUp = false;

  void tell(vtkObject* caller, unsigned long, void*)
  {
    auto* algorithm = vtkAlgorithm::SafeDownCast(caller);
    givenUp = givenUp || (goOn && !goOn(algorithm->GetProgress()));
    if (givenUp)
      algorithm->SetAbortExecute(1);
  }
};

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

/// The cluster of every run; null where the assessment has none, and when it is given up.
vtkSmartPointer<vtkIntArray> closestClusters(const RunMatrix& runs, int clusters,
                                             const std::function<bool(double)>& goOn)
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
  ProgressTeller teller{goOn};
  statistics->AddObserver(vtkCommand::ProgressEvent, &teller, &ProgressTeller::tell);
  statistics->Update();
  if (teller.givenUp)
    return nullptr;
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

ClusteredRuns runsToCluster(const PlotState& state, int clusters, int mode)
{
  ClusteredRuns clustered;
  clustered.clusters = clusters;
  clustered.mode = mode;
  clustered.runs = runsOf(state);
  clustered.time = copiedTime(state, clustered.runs.positions);
  return clustered;
}

bool computeClusters(ClusteredRuns& clustered, const std::function<bool(double)>& goOn)
{
  findCompared(clustered);
  if (clustered.clusters < 1 || !clustered.curves)
    return true;
  if (goOn && !goOn(0.0))
    return false;
  clustered.membership = closestClusters(clustered.runs, clustered.clusters, goOn);
  if (goOn && !goOn(1.0))
    return false;
  if (!clustered.membership)
    return true;
  clustered.means = meanCurves(clustered.runs, clustered.membership, clustered.clusters);
  clustered.means->AddColumn(clustered.time);
  clustered.curves->AddColumn(clustered.time);
  return true;
}

bool takeClusters(PlotState& state, const ClusteredRuns& clustered)
{
  state.clusterMembership = clustered.membership;
  if (!clustered.membership)
  {
    reportNoMembership();
    return false;
  }
  state.decorationTable = clustered.means;
  if (state.options.showsDiagnostics)
    reportSizes(clustered.membership, clustered.curves);
  return true;
}

void clusterTimeSeries(PlotState& state, int clusters, int mode)
{
  state.clusterMembership = nullptr;
  ClusteredRuns clustered = runsToCluster(state, clusters, mode);
  computeClusters(clustered);
  if (takeClusters(state, clustered))
    drawCurves(state, clustered.curves);
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

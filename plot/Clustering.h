#ifndef Clustering_h
#define Clustering_h

#include "plot/RunTables.h"

#include <vtkDoubleArray.h>
#include <vtkIntArray.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <functional>
#include <string>
#include <vector>

struct ParameterSelection;

namespace Talmesh::plot
{

struct PlotState;

/// Sorts the runs into clusters by the shape of the first y column: k-means with the distance of
/// vtkKMeansPearson, the first runs of different shape as first centres. `mode` 2 compares
/// phase spectra, 3 magnitude spectra, any other value the time series. Equal data give equal
/// clusters.
///
/// `clusterMembership` gets the 0-based cluster of every whole run. `decorationTable` gets the
/// clusters' mean curves of what was compared, one row per position within a run: columns "0", "1",
/// ... and last "Time". A cluster without runs is 0 throughout. No more than 4096 curves are
/// listed, or one per run if that is more: the others are empty, and a mistyped number of clusters
/// must not exhaust the memory. The compared curves are added to the XY chart, when there is one,
/// in the colours of their clusters. Two lines on standard output tell the number of runs and the
/// size of the table of curves, unless the options keep remarks to themselves.
///
/// With fewer than one cluster or without a whole run there is no membership afterwards, and
/// standard error says so.
void clusterTimeSeries(PlotState& state, int clusters, int mode);

/// The numbers of a clustering, from the runs to what a container keeps of it.
struct ClusteredRuns
{
  int clusters = 0;
  int mode = 0;
  RunMatrix runs;
  /// A value per position within a run.
  vtkSmartPointer<vtkDoubleArray> time;

  /// What is compared, one column per run, and "Time"; null without a run.
  vtkSmartPointer<vtkTable> curves;
  /// Null where there is none.
  vtkSmartPointer<vtkIntArray> membership;
  vtkSmartPointer<vtkTable> means;
};

/// What is to be clustered. The values of the runs are those of the table, shared.
ClusteredRuns runsToCluster(const PlotState& state, int clusters, int mode);

/// Fills in the results, and touches nothing but the runs.
/// @param goOn told the part that is done, from 0 to 1; false gives the work up
/// @return whether it came to its end
bool computeClusters(ClusteredRuns& clustered, const std::function<bool(double)>& goOn = {});

/// Lets the state have membership and mean curves, as of clusterTimeSeries(). Draws no curves.
/// @return whether there are any
bool takeClusters(PlotState& state, const ClusteredRuns& clustered);

/// Appends one new selection, the caller's, per cluster up to the highest in use, labelled `prefix`
/// + " " + number, and puts run t into entry clusterMembership[t] of `selections`, counted from the
/// start of the list, where there is such an entry. Nothing happens without a membership.
void appendClusterSelections(const PlotState& state, const std::string& prefix,
                             std::vector<ParameterSelection*>& selections);

} // namespace Talmesh::plot

#endif

#ifndef RunClustering_h
#define RunClustering_h

#include "../export/TalmeshPlotExport.h"

#include <functional>
#include <memory>

class PlotContainer;

namespace Talmesh
{

/// PlotContainer::clusterTimeSeries() in three steps, of which the long one may run in a thread of
/// its own: it touches neither the container nor its table.
class TALMESHPLOT_EXPORT RunClustering
{
public:
  /// Copies what the container would cluster now.
  RunClustering(const PlotContainer& container, int clusters, int mode);
  ~RunClustering();
  RunClustering(const RunClustering&) = delete;
  RunClustering& operator=(const RunClustering&) = delete;

  /// Finds the clusters.
  /// @param goOn told the part that is done, from 0 to 1; false gives the work up
  /// @return whether it came to its end
  bool compute(const std::function<bool(double)>& goOn = {});
  /// Lets a container with the same runs have the clusters, as if it had found them. Draws nothing.
  void handOver(PlotContainer& container) const;

private:
  struct Parts;
  std::unique_ptr<Parts> parts;
};

} // namespace Talmesh

#endif

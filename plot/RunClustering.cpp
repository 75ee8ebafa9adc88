#include "plot/RunClustering.h"

#include "plot/Clustering.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"

namespace Talmesh
{

struct RunClustering::Parts
{
  plot::ClusteredRuns clustered;
};

RunClustering::RunClustering(const PlotContainer& container, int clusters, int mode)
    : parts(std::make_unique<Parts>())
{
  plot::ClusteredRuns& clustered = parts->clustered;
  clustered = plot::runsToCluster(stateOf(container), clusters, mode);
  if (!clustered.runs.values)
    return;
  const auto copy = vtkSmartPointer<vtkDoubleArray>::New();
  copy->DeepCopy(clustered.runs.values);
  clustered.runs.values = copy;
}

RunClustering::~RunClustering() = default;

bool RunClustering::compute(const std::function<bool(double)>& goOn)
{
  return plot::computeClusters(parts->clustered, goOn);
}

void RunClustering::handOver(PlotContainer& container) const
{
  plot::takeClusters(stateOf(container), parts->clustered);
}

} // namespace Talmesh

#ifndef ShapeClusters_h
#define ShapeClusters_h

#include <cstddef>
#include <functional>
#include <vector>

/// k-means clusters of observations by the shape of their courses (`stats/RunShape.h`).
namespace Talmesh::stats
{
/// Observations one after another, `positions` values each.
struct Observations
{
  const double* values = nullptr;
  std::size_t count = 0;
  std::size_t positions = 0;

  const double* row(std::size_t observation) const { return values + observation * positions; }
};

/// When the centres count as settled.
struct ClusterLimits
{
  /// An assignment that changes a smaller part of the observations than this is the last one.
  double tolerance = 0.01;
  int iterations = 50;
};

struct ClusterCentres
{
  std::size_t clusters = 0;
  /// Mean of the members' values, cluster by cluster; 0 throughout for a cluster without members.
  /// A member with a value that is not finite counts as zeros: that keeps the shape of the mean.
  std::vector<double> values;
  /// Members, and the sum of their distances to the centre before, of the last assignment.
  std::vector<std::size_t> members;
  std::vector<double> errors;
  int iterations = 0;
};

/// The closest centre of every observation, the first of several, and the distance to it.
struct ClosestCentres
{
  std::vector<int> cluster;
  std::vector<double> distance;
};

/// Lloyd's iteration with the distance of shapes.
///
/// The first centres are the first `clusters` observations that differ in shape, by more than 1e-12
/// in distance: two alike would leave a cluster empty. With fewer such observations there are fewer
/// clusters. One that is not finite is no centre unless all are such. Equal input gives equal
/// clusters on any number of threads.
/// @param observations at least one
/// @param clusters at least 1
/// @param goOn told before each iteration but the first how many of those allowed are done, from 0
/// to 1; when it says false, the centres are those found so far
ClusterCentres findClusters(const Observations& observations, std::size_t clusters,
                            const ClusterLimits& limits,
                            const std::function<bool(double)>& goOn = {});

/// @param centres as findClusters() gives them, `observations.positions` values for each cluster
ClosestCentres closestCentres(const Observations& observations, const std::vector<double>& centres);
} // namespace Talmesh::stats

#endif

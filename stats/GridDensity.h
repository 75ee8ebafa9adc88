#ifndef GridDensity_h
#define GridDensity_h

#include <vector>

namespace Talmesh::stats
{
/// Writes the Gaussian kernel density estimate of `sources` at each of `targets` into `density`, as
/// `KernelDensity` defines it, to a relative error below 1e-13 where the estimate is above 1e-15.
///
/// The targets are evenly spaced, ascending and no further from each other than half a bandwidth.
/// @return false, with nothing written, for other targets and for sources or a bandwidth that are
/// not finite
bool estimateOnGrid(const std::vector<double>& sources, const std::vector<double>& targets,
                    double bandwidth, std::vector<double>& density);
} // namespace Talmesh::stats

#endif

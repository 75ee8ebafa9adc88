#ifndef NearestRuns_h
#define NearestRuns_h

#include <cstddef>
#include <vector>

namespace Talmesh::app
{

/// The runs that are most alike to one, the nearest first, and of those at the same distance the
/// one that comes first. The distance of two runs is the root mean square, over the features that
/// both have, of their differences in standard deviations of the feature; runs that have none in
/// common are nobody's neighbours. A feature that is the same for all runs tells none apart.
/// @param features values of each, per run; NaN for what a run does not have
std::vector<std::size_t> nearestRuns(const std::vector<std::vector<double>>& features,
                                     std::size_t run, std::size_t count);

} // namespace Talmesh::app

#endif

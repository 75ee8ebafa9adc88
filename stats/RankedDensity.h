#ifndef RankedDensity_h
#define RankedDensity_h

#include "stats/RankedParameter.h"

#include <cstddef>
#include <vector>

/// Density of one parameter, estimated after mapping its support to the unit interval and
/// reflecting the values at its bounds, so that no weight leaks beyond them.
namespace Talmesh::stats
{
/// Values needed for a kernel estimate; fewer give a 0/1 pattern instead.
constexpr std::size_t smallestKernelSample = 11;

/// The values on the scale of the estimate, where [lower, lower + range] is [start, start + 1 /
/// blocks].
struct ReflectedReferences
{
  /// Number of reflection blocks: 3 (both bounds), or 2 (lower bound only) for an infinite upper
  /// bound.
  std::size_t blocks = 3;
  /// Grid coordinate of the lower bound, 1/3 or 0.5.
  double start = 0.0;
  /// References per block: every q-th value with q = max(1, floor(count / 400)), so at most 799.
  std::size_t count = 0;
  /// `blocks` blocks of `count` points: the values reflected at the lower bound (descending
  /// values), the values themselves, and for 3 blocks the values reflected at the upper bound
  /// (descending).
  std::vector<double> points;
  /// Mean of all values, not only of the references, on this scale; NaN without values.
  double mean = 0.0;
};

/// The references of ascending values under a support that is not degenerate.
ReflectedReferences reflectedReferences(const std::vector<double>& sorted,
                                        const ParameterSupport& support);

/// Fills `densities` and `locations`, both of length `densityLocations`, for ascending values. A
/// degenerate support gives 1 within half a step of the smallest value and 0 elsewhere;
/// fewer than `smallestKernelSample` references give a 0/1 pattern of the values' places.
void estimateDensity(const std::vector<double>& sorted, const ParameterSupport& support,
                     const KernelDensity& kernelDensity, DoubleBuffer& densities,
                     DoubleBuffer& locations);
} // namespace Talmesh::stats

#endif

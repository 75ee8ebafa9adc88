#ifndef LinkedRuns_h
#define LinkedRuns_h

#include "stats/ParameterSets.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace Talmesh::stats
{
/// Runs that hang together by sharing values, as those of a base sample do in a Saltelli design of
/// which runs are missing, or of a radial design: the group of each run, numbered in the order of
/// their first runs.
///
/// Two runs are linked where they share a value; groups are what is linked, also through others.
/// There are none, as on a grid, by chance, or where a parameter has few values, unless all
/// parameters that vary have mostly different ones, most runs are in groups of three and more, no
/// group has more than a quarter of them, and all that holds without any one parameter, too. No
/// missing values. O(k^2 N log N).
/// @throws as runsIn() does
std::optional<std::vector<std::uint32_t>> linkedRuns(const ParameterColumns& columns);
} // namespace Talmesh::stats

#endif

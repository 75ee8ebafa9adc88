#ifndef DescribedGroups_h
#define DescribedGroups_h

#include "stats/ParameterComparison.h"
#include "stats/TieBlocks.h"

#include <vector>

namespace Talmesh::stats
{
/// The row of a parameter in two groups of runs: everything but the interval of D and the test.
/// @param values of the blocks
ParameterComparison describedGroups(const TieBlocks& blocks, const std::vector<double>& values);

/// The same of a parameter whose values are names without an order.
ParameterComparison describedLevels(const TieBlocks& blocks, const std::vector<double>& values);
} // namespace Talmesh::stats

#endif

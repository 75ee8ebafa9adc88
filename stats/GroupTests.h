#ifndef GroupTests_h
#define GroupTests_h

#include "stats/ParameterComparison.h"
#include "stats/TieBlocks.h"

#include <vector>

/// Rows of the table of one parameter in two groups of runs.
namespace Talmesh::stats
{
/// Everything but the interval of D and the test. @param values of the blocks
ParameterComparison describedGroups(const TieBlocks& blocks, const std::vector<double>& values);

/// Adds the test of independent runs: p, its logarithm, and the method.
void testIndependentRuns(ComparedBy comparedBy, const TieBlocks& blocks, ParameterComparison& row);
} // namespace Talmesh::stats

#endif

#ifndef ComparisonInput_h
#define ComparisonInput_h

#include "stats/ParameterComparison.h"

#include <vector>

namespace Talmesh::stats
{
/// @throws std::invalid_argument for columns, selections and runs left out of different lengths;
///   std::length_error as runsIn() does
void checkComparedRuns(const ParameterColumns& columns, const std::vector<char>& selected,
                       const std::vector<char>& leftOut);
} // namespace Talmesh::stats

#endif

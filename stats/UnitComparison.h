#ifndef UnitComparison_h
#define UnitComparison_h

#include "stats/ExchangeUnits.h"
#include "stats/RunComparison.h"

#include <vector>

namespace Talmesh::stats
{
/// As compareRuns(), of runs whose independent units are known: a part of a study, in which they
/// cannot always be recognised.
/// @param columns not empty; all of the same length as `selected` and what the plan leaves out
RunComparison compareRunsIn(const ExchangeUnits& units, const ParameterColumns& columns,
                            const std::vector<char>& selected, const ComparisonPlan& plan);
} // namespace Talmesh::stats

#endif

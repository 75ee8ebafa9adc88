#ifndef ComparedSides_h
#define ComparedSides_h

#include "app/comparison/ComparisonResults.h"
#include "plot/DistributionGroup.h"

#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// What there is to compare in a container.
/// @param words the condition by which its runs are selected; empty where nobody knows
ComparedStudy comparedStudy(PlotContainer& container, const std::string& words);

/// The runs of which charts draw how parameters are distributed, so that they show what the numbers
/// speak of: all of them, then the selected runs and the others that the comparison counts, as far
/// as there are any. A parameter that changes within a run has the values of all its points.
/// @param study what was compared, of the container as it is
std::vector<DistributionGroup> drawnGroups(PlotContainer& container, const ComparedStudy& study,
                                           const Comparison& comparison);

/// Whether they have the same values, missing ones too, and colours.
bool areSame(const std::vector<DistributionGroup>& ones,
             const std::vector<DistributionGroup>& others);

} // namespace Talmesh::app

#endif

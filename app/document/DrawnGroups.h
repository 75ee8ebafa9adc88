#ifndef DrawnGroups_h
#define DrawnGroups_h

#include "app/comparison/ComparisonResults.h"
#include "app/document/ComparedSides.h"
#include "plot/DistributionGroup.h"

#include <array>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// Runs whose values charts draw in a colour.
struct DrawnRunGroup
{
  /// An entry per run.
  std::vector<bool> runs;
  std::array<unsigned char, 3> color;
};

/// All runs in black, then the selected ones and the others that the comparison counts, as far as
/// there are any: the runs of which charts draw how parameters are distributed, so that they show
/// what the numbers speak of.
/// @param study what was compared
std::vector<DrawnRunGroup> drawnRunGroups(const ComparedStudy& study, const Comparison& comparison,
                                          const ComparedSides& sides);

/// The values of these runs. A parameter that changes within a run has the values of all its
/// points; a category has none, see LevelBars.h.
/// @param study of the container as it is
std::vector<DistributionGroup> drawnGroups(PlotContainer& container, const ComparedStudy& study,
                                           const std::vector<DrawnRunGroup>& groups);

/// Whether they have the same values, missing ones too, and colours.
bool areSame(const std::vector<DistributionGroup>& ones,
             const std::vector<DistributionGroup>& others);

} // namespace Talmesh::app

#endif

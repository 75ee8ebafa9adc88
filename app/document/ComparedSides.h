#ifndef ComparedSides_h
#define ComparedSides_h

#include "app/comparison/ComparisonResults.h"
#include "app/document/KeptSelections.h"
#include "app/document/PlotWishes.h"
#include "app/session/SessionSelections.h"
#include "plot/DistributionGroup.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// A group of runs that is compared.
struct ComparedSide
{
  /// Of a kept selection; empty for the present one.
  std::string name;
  /// For each run of the table whether it is one of them.
  std::vector<bool> runs;
  /// The condition that they meet; empty where nobody knows.
  std::string words;
  /// In which charts draw it.
  std::array<unsigned char, 3> color = colorOfSelectedRuns;
  /// What else was asked for on the way there.
  std::vector<std::string> conditions{};
};

/// The two groups that the user wants to compare.
struct ComparedSides
{
  ComparedSide selected;
  /// None for all other runs.
  std::optional<ComparedSide> others;

  /// In which charts draw the second group: gray beside a kept selection, whose colour may be that
  /// of the others of the present one.
  std::array<unsigned char, 3> colorOfOthers() const;
};

/// What a choice says of a container, whose kept selections are at hand. A name that none of these
/// has stands for the present selection, and for the others.
/// @param words the condition by which runs are selected; empty where nobody knows
ComparedSides comparedSides(PlotContainer& container, const ComparisonChoice& choice,
                            const std::vector<KeptSelection>& kept, const std::string& words);

/// Writes what the command line says of a comparison into a container's choice. Runs that are named
/// by a condition become a kept selection of that name.
/// @return what is wrong with the condition, in one line; nothing is changed then. Empty on success
std::string chooseSides(PlotContainer& container, const PlotWishes& wishes, KeptSelections& kept);

/// What there is to compare in a container. Runs of both groups are in neither.
/// @param byWords whether it counts that the runs of both groups are selected by words
ComparedStudy comparedStudy(PlotContainer& container, const ComparedSides& sides, bool byWords);

} // namespace Talmesh::app

#endif

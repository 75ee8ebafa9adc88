#ifndef ComparisonChoice_h
#define ComparisonChoice_h

#include "stats/ParameterComparison.h"
#include "stats/RunComparison.h"

#include <array>
#include <cstdint>
#include <string>

class PlotContainer;

namespace Talmesh::app
{

/// In which charts draw the runs that are not in a kept selection.
constexpr std::array<unsigned char, 3> colorOfRest = {128, 128, 128};

constexpr std::uint64_t largestSeed = 999'999'999;

/// What the user chooses of a comparison of selected runs with the others. Texts are UTF-8.
struct ComparisonChoice
{
  /// The largest adjusted p and the smallest D that count as a difference, each 0 to 1.
  double pThreshold = 0.05;
  double ksThreshold = 0.0;
  /// Densities instead of empirical distribution functions.
  bool density = false;
  /// One scale for all densities.
  bool commonDensityScale = false;
  bool logParameterAxes = false;
  /// The bands between the quartiles and between the extremes of the runs, with their median.
  bool bands = false;
  /// What the test compares, and for what its p is adjusted.
  stats::ComparedBy comparedBy = stats::ComparedBy::distribution;
  stats::Adjustment adjustment = stats::Adjustment::benjaminiHochberg;
  /// Tests one half of the runs, drawn at random, for what differs in the other.
  bool halves = false;
  /// Of all that is drawn at random: halves and permutations. 1 to `largestSeed`.
  std::uint64_t seed = 1;
  /// What the user knows of the design of the parameter sets.
  stats::KnownDesign design{};
  /// The kept selection that is compared, by name; empty for the present selection.
  std::string compared;
  /// The kept selection that it is compared with, by name; empty for all other runs.
  std::string comparedWith;
};

/// What a container's settings say. Those that the library does not know of are the viewer's own
/// properties of the container, and those of the default without any.
ComparisonChoice comparisonChoiceOf(const PlotContainer& container);

/// Writes the choice into a container's settings. Does not draw.
void writeComparisonChoice(PlotContainer& container, const ComparisonChoice& choice);

/// Brings the quartiles of the runs up to the columns that the settings name, if the bands that
/// are drawn from them are shown and something has changed. Does not draw.
void refreshQuartiles(PlotContainer& container);

} // namespace Talmesh::app

#endif

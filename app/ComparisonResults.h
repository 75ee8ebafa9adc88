#ifndef ComparisonResults_h
#define ComparisonResults_h

#include <cstddef>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// How one parameter of the selected runs differs from that of the other runs.
struct ComparedParameter
{
  /// Without its kind.
  std::string name;
  /// Largest distance of the two empirical distribution functions, 0 to 1.
  double statistic = 0.0;
  /// Probability of such a distance between samples of one distribution.
  double pValue = 1.0;
  /// The same, adjusted after Benjamini and Hochberg for the number of parameters tested.
  double adjustedPValue = 1.0;
  /// Values that were compared, of the selected and of the other runs.
  std::size_t selected = 0;
  std::size_t others = 0;
  /// Whether both thresholds of the settings are met. It goes by the p-value as it is, as the
  /// order of the charts does.
  bool significant = false;
};

/// What a container says of its selection.
struct Comparison
{
  enum class State
  {
    compared,
    noParameters,
    nothingSelected,
    /// Rows are selected, but no run at every selected time.
    noRunSelected,
    noOthers
  };

  State state = State::noParameters;
  /// In the order of the parameters; empty unless something was compared.
  std::vector<ComparedParameter> parameters;
};

/// The comparison that the container made when its selection last changed.
Comparison comparisonOf(const PlotContainer& container);

/// Forgets the tests of an earlier selection when the present one leaves nothing to compare.
/// Without it the charts would show the former p-values at the next drawing. Draws nothing.
void dropOutdatedTests(PlotContainer& container);

} // namespace Talmesh::app

#endif

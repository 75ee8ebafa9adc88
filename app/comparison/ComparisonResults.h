#ifndef ComparisonResults_h
#define ComparisonResults_h

#include <cstddef>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// What keeps a parameter from being tested. The samples are lists of distinct values, all as long
/// as the longest one, so they are those of the runs only if every run has a value of its own.
enum class TestObstacle
{
  none,
  /// Runs of one group share a value.
  repeatedValues,
  /// A run has no number.
  missingValues,
  /// A run has several values.
  changingValues,
  /// Another parameter has more values than there are runs, and so fills up this one's.
  otherParameter
};

/// How one parameter of the selected runs differs from that of the other runs.
struct ComparedParameter
{
  /// Without its kind.
  std::string name;
  /// Largest distance of the two empirical distribution functions, 0 to 1; NaN if not tested.
  double statistic = 0.0;
  /// Probability of such a distance between samples of one distribution; NaN if not tested.
  double pValue = 1.0;
  /// The same, adjusted after Benjamini and Hochberg for the number of parameters tested.
  double adjustedPValue = 1.0;
  /// Numbers of the selected and of the other runs.
  std::size_t selected = 0;
  std::size_t others = 0;
  /// Whether both thresholds of the settings are met. It goes by the p-value as it is, as the
  /// order of the charts does.
  bool significant = false;
  TestObstacle obstacle = TestObstacle::none;
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

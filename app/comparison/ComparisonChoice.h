#ifndef ComparisonChoice_h
#define ComparisonChoice_h

class PlotContainer;

namespace Talmesh::app
{

/// What the user chooses of a comparison of selected runs with the others.
struct ComparisonChoice
{
  /// The largest p-value and the smallest statistic that count as a difference, each 0 to 1.
  double pThreshold = 0.05;
  double ksThreshold = 0.0;
  /// Densities instead of empirical distribution functions.
  bool density = false;
  /// One scale for all densities.
  bool commonDensityScale = false;
  bool logParameterAxes = false;
  /// The bands between the quartiles and between the extremes of the runs, with their median.
  bool bands = false;
};

/// What a container's settings say.
ComparisonChoice comparisonChoiceOf(const PlotContainer& container);

/// Writes the choice into a container's settings. Does not draw.
void writeComparisonChoice(PlotContainer& container, const ComparisonChoice& choice);

/// Brings the quartiles of the runs up to the columns that the settings name, if the bands that
/// are drawn from them are shown and something has changed. Does not draw.
void refreshQuartiles(PlotContainer& container);

} // namespace Talmesh::app

#endif

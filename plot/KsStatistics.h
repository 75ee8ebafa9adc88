#ifndef KsStatistics_h
#define KsStatistics_h

#include <cstddef>

/// Result of the two-sample Kolmogorov-Smirnov test of one parameter.
struct KsStatistics
{
  double pValue;    ///< probability, in [0, 1], of a distance at least `statistic` by chance
  double statistic; ///< largest distance of the two empirical distribution functions, in [0, 1]
};

/// The values of one parameter in one group of runs, as they were tested: every value once, filled
/// up to the length of the longest parameter.
struct TestedSample
{
  bool ranked = false;    ///< otherwise there was no such column, and the rest says nothing
  std::size_t runs = 0;   ///< in the group
  std::size_t values = 0; ///< different ones; a missing one is none
  /// Some run has no number. Only known where there are fewer values than runs.
  bool lacksValues = false;
  bool filledUp = false;
};

/// Both samples of one parameter.
struct TestedSamples
{
  TestedSample selected;
  TestedSample others;
};

#endif

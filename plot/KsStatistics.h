#ifndef KsStatistics_h
#define KsStatistics_h

#include <cstddef>
#include <string>

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

/// What a client has found out about one parameter of the selected runs by a test of its own.
struct ParameterTest
{
  /// In [0, 1], adjusted if the thresholds are to act on that; NaN without a test: the parameter
  /// then does not count as different.
  double pValue;
  double statistic;  ///< in [0, 1], as of `KsStatistics`
  std::string title; ///< of the parameter's chart, UTF-8
};

#endif

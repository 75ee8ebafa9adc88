#ifndef KsStatistics_h
#define KsStatistics_h

/// Result of the two-sample Kolmogorov-Smirnov test of one parameter.
struct KsStatistics
{
  double pValue;    ///< probability, in [0, 1], of a distance at least `statistic` by chance
  double statistic; ///< largest distance of the two empirical distribution functions, in [0, 1]
};

#endif

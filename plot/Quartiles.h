#ifndef Quartiles_h
#define Quartiles_h

namespace Talmesh::plot
{

struct PlotState;

/// Replaces `quartileTable` by the five-number summary of the first y column over all whole runs.
/// A stride below 1 leaves the old one in place.
///
/// One row per position within a run. Columns: 0 the position's name, 1 minimum, 2 lower quartile,
/// 3 "Median", 4 upper quartile, 5 maximum, then "Range" (minimum, maximum) and "QRange" (lower,
/// upper quartile) with two components each, and "Time". All but the first are doubles. Without a
/// whole run all nine columns are there with no rows.
///
/// With n values, the p-quantile is the mean of the k-th and k+1-th smallest when n p is a whole
/// number k, the ceil(n p)-th otherwise (type 2 of Hyndman and Fan, Sample quantiles in statistical
/// packages, 1996). NaN is left out of it; a position with nothing else gets NaN.
///
/// "Time" uses the memory of the first x column, and keeps that column alive, so that values
/// written into the column later show in it. A column that is not a double column of one component
/// or is too short is copied instead.
void generateQuartiles(PlotState& state);

/// As above, unless the table is that of the present first x and y column and stride. A column
/// counts as changed when VTK was told so.
void refreshQuartiles(PlotState& state);

} // namespace Talmesh::plot

#endif

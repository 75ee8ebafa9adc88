#ifndef RankedParameter_h
#define RankedParameter_h

#include "stats/DoubleBuffer.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

/// Empirical distribution and boundary-corrected density of sampled parameter values.
namespace Talmesh::stats
{
/// Number of locations at which every density is given.
constexpr std::size_t densityLocations = 200;

/// Value of a row of a column.
using ColumnValue = std::function<double(std::size_t)>;

/// Values of the rows 0, stride, 2 stride, ... below `rows`, ascending; duplicates are kept, NaN is
/// no value. A stride below 1 counts as 1.
std::vector<double> thinnedValues(std::size_t rows, int stride, const ColumnValue& valueAt);

/// Values of all rows, ascending, each once; NaN is no value.
std::vector<double> distinctValues(std::size_t rows, const ColumnValue& valueAt);

/// The same of values that lie in memory one after another.
std::vector<double> distinctValues(const double* values, std::size_t count);

/// Support of a parameter's density. `upper` may be infinite while `range` is finite.
struct ParameterSupport
{
  double lower = 0.0;
  double upper = 0.0;
  double range = 0.0;
  /// The range was 0 and has been widened to 0.95 lower .. 1.05 upper. The range of a negative
  /// constant thereby becomes negative, that of a zero constant stays 0.
  bool degenerate = false;
};

/// Support of ascending values. Without `bounds` it is the extent of the values; with
/// them the upper end is widened to the largest value, the lower end never moves. An infinite upper
/// end gives a range of 1.1 times the largest value minus the lower end. Extents ignore NaN; a list
/// without numbers has the extent NaN.
ParameterSupport parameterSupport(const std::vector<double>& sorted,
                                  const std::optional<std::pair<double, double>>& bounds);

/// Called from several threads at once. Writes into `density` the Gaussian kernel density estimate
/// of `sources` with the given bandwidth at each of `targets`: the sum over the sources of exp(-(t
/// - s)^2 / (2 h^2)), divided by (number of sources) h sqrt(2 pi). All vectors have their final
/// size.
using KernelDensity = std::function<void(std::vector<double>& sources, std::vector<double>& targets,
                                         double bandwidth, std::vector<double>& density)>;

/// The derived columns of one parameter.
struct RankedParameter
{
  /// Length of the parameter's own list of values, before it was filled up.
  std::size_t valueCount = 0;
  /// Cumulative fractions and ascending values, `RankedParameters::positions` entries each.
  DoubleBuffer ranks;
  DoubleBuffer sortedValues;
  /// Density in units of 1 / parameter, or a 0/1 pattern where there are too few values for a
  /// kernel estimate, and the parameter values where it is given; `densityLocations` entries each.
  DoubleBuffer densities;
  DoubleBuffer locations;
};

/// The derived columns of several parameters.
struct RankedParameters
{
  /// Length of the longest list; shorter lists are filled with their last value, empty ones with
  /// NaN. The kernel estimate of a shorter list repeats all its values evenly instead.
  std::size_t positions = 0;
  /// The numbers of lists and bounds differed, so that the extents of the values were used.
  bool boundsIgnored = false;
  /// One entry per list, in the order of the lists; absent where the list is.
  std::vector<std::optional<RankedParameter>> parameters;
};

/// Ranks and densities of parameters, given the ascending values of each and a (lower,
/// upper) pair for each. An absent list stands for a parameter that cannot be read: it is skipped
/// but keeps its pair of bounds.
RankedParameters rankParameters(std::vector<std::optional<std::vector<double>>> lists,
                                const std::vector<std::pair<double, double>>& bounds,
                                const KernelDensity& kernelDensity);
} // namespace Talmesh::stats

#endif

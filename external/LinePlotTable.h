#ifndef LinePlotTable_h
#define LinePlotTable_h

#include "../external/TypedConcentrationName.h"

#include <cstddef>
#include <utility>
#include <vector>

/// Many runs (trajectories) of the same items at the same number of points. Shared between client
/// and plots through boost::shared_ptr; plots read and rescale the value arrays in place.
struct LinePlotTable
{
  LinePlotTable() = default;
  LinePlotTable(const LinePlotTable&) = delete;
  LinePlotTable& operator=(const LinePlotTable&) = delete;
  ~LinePlotTable()
  {
    for (double* array : values)
      delete[] array;
  }

  /// The typed name of each stored quantity.
  std::vector<Talmesh::TypedConcentrationName> items;

  /// One array per item, in the order of items: numberOfTrajectories * pointsPerTrajectory values,
  /// trajectory after trajectory. Each is allocated with new double[] and owned by this table;
  /// null pointers are allowed, the same pointer twice is not.
  std::vector<double*> values;

  /// Number of runs.
  std::size_t numberOfTrajectories = 0;

  /// Points of one trajectory: the stride of the plotted table.
  std::size_t pointsPerTrajectory = 0;

  /// (lower, upper) bound of each item of kind Talmesh::Parameter, in the order of those items.
  /// Equal bounds mark a constant parameter; the upper bound may be infinite.
  std::vector<std::pair<double, double>> parameterRanges;
};

#endif

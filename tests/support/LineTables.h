#ifndef LineTables_h
#define LineTables_h

#include "external/LinePlotTable.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <utility>
#include <vector>

/// The value that lineTableOf() stores for item `item` in row `row`.
inline double lineValue(std::size_t item, std::size_t row)
{
  return 100.0 * static_cast<double>(item) + static_cast<double>(row);
}

/// A line-plot table of the given items. Parameters get the given ranges in their order.
inline boost::shared_ptr<LinePlotTable>
lineTableOf(const std::vector<Talmesh::TypedConcentrationName>& items,
            const std::vector<std::pair<double, double>>& ranges = {}, std::size_t trajectories = 2,
            std::size_t points = 3)
{
  auto table = boost::make_shared<LinePlotTable>();
  table->items = items;
  table->parameterRanges = ranges;
  table->numberOfTrajectories = trajectories;
  table->pointsPerTrajectory = points;
  for (std::size_t item = 0; item < items.size(); ++item)
  {
    table->values.push_back(new double[trajectories * points]);
    for (std::size_t row = 0; row < trajectories * points; ++row)
      table->values.back()[row] = lineValue(item, row);
  }
  return table;
}

#endif

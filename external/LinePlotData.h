#ifndef LinePlotData_h
#define LinePlotData_h

#include "../external/TypedConcentrationName.h"

#include <boost/functional/hash.hpp>
#include <boost/unordered_map.hpp>

#include <string>
#include <vector>

/// One set of time series over common sample times. It owns none of the vectors it points to; the
/// caller keeps them alive while the record is in use.
struct LinePlotData
{
  using Series = boost::unordered_map<Talmesh::TypedConcentrationName, std::vector<double>*>;

  /// One series per item, each as long as xValues.
  Series series;
  /// Name of the x column and bottom-axis title.
  std::string xName;
  /// The sample times, one per table row.
  std::vector<double>* xValues = nullptr;
  /// Left-axis title.
  std::string yName;
};

#endif

#ifndef ParameterSelection_h
#define ParameterSelection_h

#include <set>
#include <string>

/// A set of runs chosen by the user or by a computation.
struct ParameterSelection
{
  /// Run indices as they stand in the table's run-index column.
  std::set<int> runs;
  /// PlotMetaData::sourceName of the plot that the runs were chosen in.
  std::string sourceName;
  /// PlotMetaData::sourceId of that plot.
  int sourceId = 0;
  /// Text shown to the user, for instance "Cluster 0".
  std::string label;
};

#endif

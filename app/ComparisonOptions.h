#ifndef ComparisonOptions_h
#define ComparisonOptions_h

#include "app/document/PlotWishes.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

/// An option of the command line that says how selected runs are compared with the others.
struct ComparisonOption
{
  const char* name;
  /// @return what is wrong with the value, in one line; empty if nothing is
  std::string (*read)(const std::string& value, PlotWishes& wishes);
};

/// In the order in which they are read.
const std::vector<ComparisonOption>& comparisonOptions();

/// A line or more for each.
std::string comparisonHelp();

} // namespace Talmesh::app

#endif

#ifndef FilterBinding_h
#define FilterBinding_h

#include "app/runs/FilterSyntax.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

class FilteredRuns;

/// What a function of filters computes.
enum class FilterFunction
{
  Min,
  Max,
  Mean,
  First,
  Final,
  At,
  Peaks,
  Period,
  Through,
  Inside,
  Crosses,
  Lasso,
  Dot,
  DotLasso,
  Runs,
  Abs,
  Sqrt,
  Exp,
  Ln,
  Log10
};

/// A piece of a filter whose names have been looked up.
struct BoundTerm
{
  /// As of `FilterNode`; a name is the value of `column` for the run.
  FilterNode::Kind kind = FilterNode::Kind::Number;
  double number = 0;
  /// Of a call.
  FilterFunction function = FilterFunction::Min;
  /// The item that a call is about, and the one below it, -1 for time.
  int column = -1;
  int over = -1;
  bool logX = false;
  bool logY = false;
  /// The run's own number.
  bool isRunNumber = false;
  std::string marks;
  /// Of a call its numbers.
  std::vector<BoundTerm> children;
  /// In place of the numbers of `runs` that need no computing.
  std::vector<double> sorted;
};

/// Looks up what the names of a filter mean.
/// @return what is wrong with it; `condition` is then undefined
FilterFault bindFilter(const FilterNode& filter, const FilteredRuns& runs, BoundTerm& condition);

} // namespace Talmesh::app

#endif

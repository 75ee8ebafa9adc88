#ifndef RunSeriesName_h
#define RunSeriesName_h

#include <optional>
#include <string>
#include <string_view>

namespace Talmesh::app
{

/// A name that numbers a run, as columns have it that hold one run each: run_12, X.run3, 7.
struct RunSeriesName
{
  /// What is measured, "X" of "X.run3"; empty when the name says nothing but the run.
  std::string item;
  /// The number of the run.
  long long run = 0;
  /// Whether the name has a word for runs, or is a number alone.
  bool isClear = false;
};

/// Reads such a name; none of a name without a number at its end or behind a word for runs.
std::optional<RunSeriesName> readRunSeriesName(std::string_view name);

} // namespace Talmesh::app

#endif

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
  /// Whether a point, blank or the like stands in front of the number: TetR.12, but not x12.
  bool isApart = false;
};

/// A name that says which value a parameter has in the run of a column: k=0.5.
struct ParameterSeriesName
{
  std::string parameter;
  double value = 0.0;
};

/// Reads such a name; none of a name without a sign of equality in front of a number.
std::optional<ParameterSeriesName> readParameterSeriesName(std::string_view name);

/// Reads such a name; none of a name without a number at its end or behind a word for runs.
std::optional<RunSeriesName> readRunSeriesName(std::string_view name);

} // namespace Talmesh::app

#endif

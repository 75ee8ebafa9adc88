#ifndef ImportRequest_h
#define ImportRequest_h

#include <optional>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// What becomes of runs whose times differ: the union of all times, where each run has gaps, or
/// that union with straight lines across the gaps inside each run.
enum class UnequalRuns
{
  Union,
  Interpolate
};

/// What the user has said of a table. Everything may be left open, and is found out then. Names are
/// those of columns, in UTF-8.
struct ImportRequest
{
  /// The name of a layout (Layouts.h); empty to recognise it.
  std::string layout;
  std::string time;
  /// Columns that name the run of a row together.
  std::vector<std::string> run;
  std::string item;
  std::string value;
  /// Columns that are measured, also those that are the same all through each run.
  std::vector<std::string> measured;
  std::vector<std::string> parameters;
  /// Columns of text, or of few values, that become categories.
  std::vector<std::string> conditions;
  /// Columns that tell how exact others are, which is not shown.
  std::vector<std::string> errors;
  std::vector<std::string> ignored;
  /// A blank stands for any number of blanks and tabs.
  std::optional<char> separator;
  /// A point or a comma.
  std::optional<char> decimalMark;
  std::optional<UnequalRuns> unequal;
  /// Of a file with several tables: the sheet, array, group or member; empty for the first one.
  std::string sheet;
  /// What each of several files is: "runs" or "items"; empty to find out.
  std::string files;
  /// The path of the table of parameters that belongs to several files; empty without one.
  std::string parameterTable;
  /// How that is joined: "name", or "order" of its rows; empty for the former.
  std::string join;
};

} // namespace Talmesh::app

#endif

#ifndef ColumnRoles_h
#define ColumnRoles_h

#include "external/TypedConcentrationName.h"

#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// What the header of one column says.
struct ColumnHeader
{
  /// The kind; UndefinedType for a plain header.
  DataType kind = UndefinedType;
  /// The name without the kind.
  std::string name;
  /// Whether the header carries its kind ("Parameter: k1", ": Time [s]").
  bool typed = false;
  /// Whether the file gives the column no name.
  bool unnamed = false;
};

/// The headers of a table and the columns that order its rows.
struct ColumnRoles
{
  std::vector<ColumnHeader> headers;
  /// Index of the time column, -1 without one.
  int timeColumn = -1;
  /// Index of the column that names the run of each row, the first one if several do so together;
  /// -1 without one.
  int runColumn = -1;
  /// The columns that name the run together, as the user says; else empty.
  std::vector<int> askedRuns;
  /// Columns that say what is measured in a row, and the value; -1 without them.
  int itemColumn = -1;
  int valueColumn = -1;
  /// All columns with a name of runs, the one that goes first in front.
  std::vector<int> runCandidates;
  bool anyTyped = false;

  /// Whether the rows are runs over time at all, rather than a table without an order.
  bool describeRuns() const { return anyTyped || timeColumn >= 0 || runColumn >= 0; }
};

/// Splits a header into kind and name: a header that starts with the word of a kind and ": " is
/// typed, ": " alone being the word of time and values.
ColumnHeader readHeader(std::string_view text);

/// A column's name without its kind: "k1" for "Parameter: k1".
std::string shownName(const std::string& columnName);

/// The name behind the "#" that marks a line of comment, as numpy.savetxt puts it before the first
/// header; else the name as it is. A "#" that touches the name is part of it, unless the rest is a
/// name of time or runs.
std::string_view withoutCommentMark(std::string_view name);

/// Whether a plain name is one that people give a time column: time, Time, t, "Time [s]",
/// "time (min)", time_s, t/h, "Time / s", timepoint, simulation_time, Zeit. A capital T alone is a
/// temperature, "T [s]" is not.
bool isTimeName(std::string_view name);

/// A name of time that labelsTime() knows: the name itself, else with its leading word
/// written "Time" ("t [s]" gives "Time [s]"), else in parentheses behind that ("Time (Zeit)").
std::string plottedTimeName(const std::string& name);

/// Whether a plain name is one that people give a column of run names: run, run_id, "Run Index",
/// trajectory, replicate, sim, simulation_id, subject.
bool isRunName(std::string_view name);

/// Gives every item a label of its own, because a table holds one column of each name: of items
/// with the same label the later ones get " (2)", " (3)" ... after their name.
void makeLabelsUnique(const std::vector<TypedConcentrationName*>& items);

/// Reads all headers. Of typed time columns the one named as people name a time goes first, then
/// one with "Time" in its name, then values and periods; else the first plain time column is it.
/// For runs the first typed column, else the first plain one. Columns without a name are called
/// "Column 3" by their position; of plain columns with the same name, and of typed ones with the
/// same label, the later ones get " (2)", " (3)" ... after their name.
ColumnRoles assignRoles(const std::vector<std::string>& headers);

} // namespace Talmesh::app

#endif

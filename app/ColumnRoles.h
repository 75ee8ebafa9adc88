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
};

/// The headers of a table and the columns that order its rows.
struct ColumnRoles
{
  std::vector<ColumnHeader> headers;
  /// Index of the time column, -1 without one.
  int timeColumn = -1;
  /// Index of the column that names the run of each row, -1 without one.
  int runColumn = -1;
  bool anyTyped = false;

  /// Whether the rows are runs over time at all, rather than a table without an order.
  bool describeRuns() const { return anyTyped || timeColumn >= 0 || runColumn >= 0; }
};

/// Splits a header into kind and name: a header that starts with the word of a kind and ": " is
/// typed, ": " alone being the word of time and values.
ColumnHeader readHeader(std::string_view text);

/// Whether a plain name is one that people give a time column: time, Time, t, "Time [s]",
/// "time (min)", time_s, t/h, timepoint.
bool isTimeName(std::string_view name);

/// Whether a plain name is one that people give a column of run names: run, run_id, "Run Index",
/// trajectory, replicate, sim, simulation_id, subject.
bool isRunName(std::string_view name);

/// Reads all headers. The first typed time column is the time column, else the first plain one;
/// the same for runs. Columns without a name are called "Column 3" by their position; of columns
/// with the same label the later ones get " (2)", " (3)" ... after their name, because a table
/// holds one column of each name.
ColumnRoles assignRoles(const std::vector<std::string>& headers);

} // namespace Talmesh::app

#endif

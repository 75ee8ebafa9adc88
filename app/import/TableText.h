#ifndef TableText_h
#define TableText_h

#include "app/import/ColumnRoles.h"
#include "app/import/ColumnValues.h"
#include "app/import/ImportProgress.h"
#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"
#include "app/import/LineNumbers.h"
#include "app/import/Result.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// More columns are refused.
inline constexpr std::size_t mostColumns = 20000;

/// What becomes of a column.
enum class ColumnUse
{
  /// What its values say: a parameter if they are constant within each run and differ between runs.
  Open,
  Item,
  Parameter,
  /// A category even if its texts are numbers.
  Condition,
  /// One of several columns that name the run.
  RunName,
  Ignored
};

/// A table in columns, without regard to runs.
struct TableText
{
  ColumnRoles roles;
  std::vector<ColumnValues> columns;
  /// One for each column.
  std::vector<ColumnUse> uses;
  std::size_t rows = 0;
  /// The line of each row in the file; empty for tables that have no lines.
  LineNumbers lines;
  /// The run of each row, into `runNames`; empty where the time tells the runs.
  std::vector<int> runOfRow;
  std::vector<std::string> runNames;
  /// Columns whose numbers stand for texts.
  std::vector<std::size_t> levelColumns;
  /// Whether rows are points of runs at all.
  bool hasRuns = true;
  /// Whether every row is a run of its own.
  bool rowsAreRuns = false;
  /// Whether the kind of the file says that its rows are runs, the first column their parameter.
  bool isScan = false;
  /// Whether cells are missing because nothing was measured there, and not because the file says
  /// so.
  bool hasGaps = false;
  /// Whether the values were measured, so that nothing is known between them.
  bool isMeasured = false;

  /// The line of a row for messages, or else its number from 1.
  std::size_t lineOf(std::size_t row) const { return lines.empty() ? row + 1 : lines[row]; }
};

/// A table of named columns of equal length.
TableText tableOfColumns(const std::vector<std::string>& headers,
                         std::vector<ColumnValues> columns);

/// Told how many bytes of a text, from its first one on, will not be looked at again.
using TextPassed = std::function<void(std::size_t)>;

/// Reads headers and cells of a delimited text. Every row must have as many fields as there are
/// headers; empty fields beyond them and, in a table of several columns, blank rows, as
/// spreadsheets leave them, are ignored. So is a last row that the end of the file cuts short.
/// Columns that by their names are those of runs or items may hold texts only
/// (ColumnValues::completeValues()).
/// @param report gets reasons and warnings
Result<TableText> readTableText(std::string_view bytes, const ImportRequest& request,
                                ImportReport& report, const ImportProgress& progress = {},
                                const TextPassed& passed = {});

} // namespace Talmesh::app

#endif

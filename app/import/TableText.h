#ifndef TableText_h
#define TableText_h

#include "app/import/ColumnRoles.h"
#include "app/import/ImportProgress.h"
#include "app/import/Result.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Talmesh::app
{

/// More columns are refused.
inline constexpr std::size_t mostColumns = 20000;

/// A cell that a message may have to name.
struct NotedCell
{
  /// The line, counted from 1; 0 for none.
  std::size_t line = 0;
  std::string text;
};

/// The values of one column as read.
struct ColumnValues
{
  std::vector<double> values;
  std::size_t numbers = 0;
  std::size_t texts = 0;
  NotedCell firstText;
  NotedCell firstFraction;
  NotedCell firstDecimalPoint;
  NotedCell firstDecimalComma;
};

/// A delimited text read into columns, without regard to runs.
struct TableText
{
  ColumnRoles roles;
  /// The values of all columns but that of the runs, which has none.
  std::vector<ColumnValues> columns;
  std::size_t rows = 0;
  std::vector<std::size_t> lines;
  /// The run of each row, into `runNames`; empty without a run column.
  std::vector<int> runOfRow;
  std::vector<std::string> runNames;
  /// Whether rows are points of runs at all.
  bool hasRuns = true;
};

/// Told how many bytes of a text, from its first one on, will not be looked at again.
using TextPassed = std::function<void(std::size_t)>;

/// Reads headers and cells. Every row must have as many fields as there are headers; empty fields
/// beyond them and, in a table of several columns, blank rows, as spreadsheets leave them, are
/// ignored. A column with a name of runs whose cells are numbers, not all of them whole, does not
/// name runs, and the next one with such a name does.
Result<TableText> readTableText(std::string_view bytes, const ImportProgress& progress,
                                const TextPassed& passed = {});

} // namespace Talmesh::app

#endif

#ifndef TableText_h
#define TableText_h

#include "app/ColumnRoles.h"

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

/// The values of one column as read.
struct ColumnValues
{
  std::vector<double> values;
  std::size_t numbers = 0;
  std::size_t texts = 0;
  /// The first text among the cells and its line.
  std::string firstText;
  std::size_t firstTextLine = 0;
};

/// A delimited text read into columns, without regard to runs.
struct TableText
{
  ColumnRoles roles;
  std::vector<ColumnValues> columns;
  std::size_t rows = 0;
  std::vector<std::size_t> lines;
  /// The run of each row, into `runNames`; empty without a run column.
  std::vector<int> runOfRow;
  std::vector<std::string> runNames;
  std::string error;
  bool cancelled = false;
};

/// Reads headers and cells. Every row must have as many fields as there are headers; empty fields
/// beyond them, as spreadsheets leave them, are ignored.
TableText readTableText(std::string_view bytes, const std::function<bool(double)>& progress);

/// A text from a file as it can stand inside a message of one line: quoted, without line breaks
/// and control characters, cut to some forty bytes.
std::string quotedForMessage(std::string_view text);

} // namespace Talmesh::app

#endif

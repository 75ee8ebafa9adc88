#ifndef FirstRows_h
#define FirstRows_h

#include "app/import/ColumnRoles.h"
#include "app/import/ImportRequest.h"
#include "app/import/NamedColumn.h"
#include "app/import/Result.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// The first rows of a table as they are read, before a layout makes runs of them. Texts are UTF-8.
struct FirstRows
{
  static constexpr std::size_t most = 100;
  /// No user looks through more of them.
  static constexpr std::size_t mostColumns = 500;

  /// The columns by their names, also those beyond what is shown.
  ColumnRoles roles;
  /// What stands in the rows' cells, of at most so many columns.
  std::vector<std::vector<std::string>> cells;
  /// The line on which each row starts; empty where there are no lines.
  std::vector<std::size_t> lines;
  /// What parts the fields; none in what is no text.
  char separator = 0;

  bool isText() const { return separator != 0; }
  std::size_t columns() const;
};

/// Reads them from the start of a text, of which nothing else is looked at.
Result<FirstRows> firstRowsOf(std::string_view text, const ImportRequest& request);

/// Those of a file that holds columns.
FirstRows firstRowsOf(const std::vector<NamedColumn>& columns);

/// By what tables are told to be alike: the names of their columns and what parts the fields.
std::string headerKeyOf(const FirstRows& rows);

} // namespace Talmesh::app

#endif

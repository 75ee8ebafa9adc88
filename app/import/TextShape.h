#ifndef TextShape_h
#define TextShape_h

#include "app/import/ImportRequest.h"
#include "app/import/Result.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// Where and how a text holds a table.
struct TextShape
{
  char separator = ',';
  /// The mark of lines of comment; empty without them.
  std::string_view comment;
  /// Whether a comma may be the decimal mark.
  bool decimalCommas = false;
  /// The names of the columns, which may stand in a comment, with their units.
  std::vector<std::string> headers;
  /// The line of the names.
  std::size_t headerLine = 1;
  /// Whether the header lacks the name of the first column, which holds names of rows then; that
  /// name is in `headers`, empty.
  bool hasRowNames = false;
  /// Where the first row starts.
  std::size_t dataBegin = 0;
  std::size_t dataLine = 1;
  /// A line for each guess.
  std::vector<std::string> reasons;
  /// What is not read of the lines above the rows.
  std::vector<std::string> warnings;
};

/// Looks at the head of a text and at a hundred places of it.
/// @param text without a byte-order mark
Result<TextShape> sniffText(std::string_view text, const ImportRequest& request);

} // namespace Talmesh::app

#endif

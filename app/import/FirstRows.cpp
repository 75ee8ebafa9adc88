#include "app/import/FirstRows.h"

#include "app/import/DelimitedText.h"
#include "app/import/LongestLine.h"
#include "app/import/TextShape.h"
#include "app/import/Utf16Text.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace Talmesh::app
{

namespace
{

/// Enough to tell numbers apart; what is shown is not read again.
std::string shownNumber(double value)
{
  if (std::isnan(value))
    return {};
  char text[32];
  std::snprintf(text, sizeof text, "%.10g", value);
  return text;
}

std::string cellOf(const NamedColumn& column, std::size_t row)
{
  return column.isText() ? column.words[static_cast<std::size_t>(column.wordOfRow[row])]
                         : shownNumber(column.values[row]);
}

void readCells(std::string_view text, const TextShape& shape, FirstRows& rows)
{
  DelimitedText records(text, shape.separator, shape.comment);
  records.skipTo(shape.dataBegin, shape.dataLine);
  std::vector<std::string_view> fields;
  while (rows.cells.size() < FirstRows::most && records.next(fields))
  {
    if (rows.roles.headers.size() > 1 && isBlankRecord(fields))
      continue;
    std::vector<std::string> cells;
    for (std::size_t i = 0; i < std::min(fields.size(), FirstRows::mostColumns); ++i)
      cells.push_back(toUtf8(withoutOuterBlanks(fields[i])));
    rows.cells.push_back(std::move(cells));
    rows.lines.push_back(records.line());
  }
}

} // namespace

std::size_t FirstRows::columns() const
{
  return std::min(roles.headers.size(), mostColumns);
}

Result<FirstRows> firstRowsOf(std::string_view bytes, const ImportRequest& request)
{
  if (isUtf16(bytes))
    return firstRowsOf(utf8FromUtf16(bytes), request);
  const std::string_view text = withoutByteOrderMark(bytes);
  // What is refused as a whole has no rows that could be shown.
  if (text.find('\0') != std::string_view::npos || hasEndlessLine(text))
    return FirstRows();
  const Result<TextShape> shape = sniffText(text, request);
  if (!shape.hasValue())
    return Result<FirstRows>::without(shape);
  FirstRows rows;
  std::vector<std::string> names;
  for (const std::string& name : shape.value().headers)
    names.push_back(toUtf8(name));
  while (names.size() > 1 && withoutOuterBlanks(names.back()).empty())
    names.pop_back();
  rows.roles = assignRoles(names);
  rows.separator = shape.value().separator;
  readCells(text, shape.value(), rows);
  return rows;
}

FirstRows firstRowsOf(const std::vector<NamedColumn>& columns)
{
  FirstRows rows;
  std::vector<std::string> names;
  std::size_t shown = columns.empty() ? 0 : FirstRows::most;
  for (const NamedColumn& column : columns)
  {
    names.push_back(column.name);
    shown = std::min(shown, column.rows());
  }
  rows.roles = assignRoles(names);
  rows.cells.resize(shown);
  for (std::size_t row = 0; row < shown; ++row)
    for (std::size_t i = 0; i < rows.columns(); ++i)
      rows.cells[row].push_back(cellOf(columns[i], row));
  return rows;
}

std::string headerKeyOf(const FirstRows& rows)
{
  std::string key(1, rows.separator);
  for (const ColumnHeader& header : rows.roles.headers)
    key += '\n' + std::to_string(header.kind) + ' ' + header.name;
  return key;
}

} // namespace Talmesh::app

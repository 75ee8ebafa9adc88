#include "app/import/TableText.h"

#include "app/import/DelimitedText.h"
#include "app/import/LongestLine.h"
#include "app/import/RoleChoice.h"
#include "app/import/TextShape.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf16Text.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// A text of UTF-16 is in memory twice.
constexpr std::size_t longestUtf16 = std::size_t{256} << 20U;
constexpr std::size_t rowsBetweenReports = 2000;
/// The first rows may be longer than those behind them.
constexpr double reservedShare = 1.1;

std::string unreadable(std::string_view bytes)
{
  if (bytes.empty())
    return translated("TableText", "the file is empty");
  if (isUtf16(bytes))
    return bytes.size() > longestUtf16
               ? translated("TableText", "the text is UTF-16; save it as UTF-8")
               : std::string();
  if (bytes.find('\0') != std::string_view::npos)
    return translated("TableText", "not a table: the file holds binary data");
  if (hasEndlessLine(bytes))
    return translated("TableText", "not a table: its first line does not end; tables have a line "
                                   "for each row");
  return {};
}

/// The cell of the earliest line that `noted` tells of any column; null without one.
const NotedCell* earliest(const std::vector<ColumnValues>& columns, NotedCell ColumnValues::*noted)
{
  const NotedCell* first = nullptr;
  for (const ColumnValues& column : columns)
  {
    const NotedCell& cell = column.*noted;
    // A name with a point is no number.
    if (!column.keepsTexts && cell.line > 0 && (!first || cell.line < first->line))
      first = &cell;
  }
  return first;
}

/// Whether all commas in numbers stand where they could part thousands.
bool mayAllBeThousands(const std::vector<ColumnValues>& columns)
{
  return std::all_of(columns.begin(), columns.end(),
                     [](const ColumnValues& column) { return column.commas == column.thousands; });
}

/// Decimal points beside decimal commas, or commas that may part thousands.
std::string ambiguousCell(const std::vector<ColumnValues>& columns, const ImportRequest& request,
                          ImportReport& report)
{
  const NotedCell* point = earliest(columns, &ColumnValues::firstDecimalPoint);
  const NotedCell* comma = earliest(columns, &ColumnValues::firstDecimalComma);
  if (comma && !point && !request.decimalMark && mayAllBeThousands(columns))
  {
    report.candidates = {
        {"--decimal ,", {}, 0.5, translated("TableText", "the comma is the decimal mark")},
        {"--decimal .", {}, 0.5, translated("TableText", "the comma parts thousands")}};
    return withValues(translated("TableText",
                                 "line %1: %2 could have a decimal comma (--decimal ,) or a comma "
                                 "between thousands (write the table without them)"),
                      {std::to_string(comma->line), quotedForMessage(comma->text)});
  }
  if (point || comma)
    report.settled.decimalMark = comma ? ',' : '.';
  if (!point || !comma)
    return {};
  const NotedCell& later = point->line < comma->line ? *comma : *point;
  return withValues(
      translated("TableText",
                 "line %1: %2 is ambiguous: the table has both decimal points and decimal commas"),
      {std::to_string(later.line), quotedForMessage(later.text)});
}

/// A line with another number of fields than the header has.
std::string otherFields(const std::string& line, std::size_t count, std::size_t wanted,
                        std::size_t headerLine)
{
  const std::string header = headerLine == 1
                                 ? translated("TableText", "the first line")
                                 : withValues(translated("TableText", "the header in line %1"),
                                              {std::to_string(headerLine)});
  if (count == 1)
    return withValues(translated("TableText", "line %1 has 1 field, %3 has %2"),
                      {line, std::to_string(wanted), header});
  return withValues(translated("TableText", "line %1 has %2 fields, %4 has %3"),
                    {line, std::to_string(count), std::to_string(wanted), header});
}

class TableTextReader
{
public:
  TableTextReader(std::string_view text_, const ImportRequest& request_, ImportReport& report_,
                  const ImportProgress& progress_, const TextPassed& passed_)
      : text(text_)
      , request(request_)
      , report(report_)
      , records({}, ',')
      , progress(progress_)
      , passed(passed_)
  {
  }

  Result<TableText> read()
  {
    readHeaders();
    if (error.empty())
      readRows();
    if (cancelled)
      return Result<TableText>::cancelled();
    if (error.empty())
      error = ambiguousCell(table.columns, request, report);
    completeQuantities(table);
    return error.empty() ? Result<TableText>(std::move(table)) : Result<TableText>::failed(error);
  }

private:
  std::string line() const { return std::to_string(records.line()); }

  void readHeaders()
  {
    Result<TextShape> sniffed = sniffText(text, request);
    if (!sniffed.hasValue())
    {
      error = sniffed.error();
      return;
    }
    shape = std::move(sniffed.value());
    report.reasons.insert(report.reasons.end(), shape.reasons.begin(), shape.reasons.end());
    report.warnings.insert(report.warnings.end(), shape.warnings.begin(), shape.warnings.end());
    report.settled.separator = shape.separator;
    std::vector<std::string>& names = shape.headers;
    while (names.size() > 1 && withoutOuterBlanks(names.back()).empty())
      names.pop_back();
    if (names.size() > mostColumns)
    {
      error =
          withValues(translated("TableText", "the table has %1 columns; at most %2 can be read"),
                     {std::to_string(names.size()), std::to_string(mostColumns)});
      return;
    }
    std::vector<std::string> headers;
    std::transform(names.begin(), names.end(), std::back_inserter(headers), toUtf8);
    table.roles = assignRoles(headers);
    table.columns.resize(headers.size());
    table.uses.resize(headers.size());
    const bool guessed = request.run.empty() && request.conditions.empty() && request.item.empty();
    for (const int column : columnsOfNames(table.roles, request))
      table.columns[static_cast<std::size_t>(column)].keepTexts(guessed);
    records = DelimitedText(text, shape.separator, shape.comment);
    records.skipTo(shape.dataBegin, shape.dataLine);
  }

  void readRows()
  {
    while (error.empty() && records.next(fields))
    {
      if (records.endedInsideQuotes())
        tellOpenQuotes();
      else if (table.columns.size() > 1 && isBlankRecord(fields))
        continue;
      else if (repeatsHeader())
        repeatedHeaders.push_back(records.line());
      else if (rowFits())
        readRow();
      if (table.rows == rowsBetweenReports)
        reserveRows();
      if (table.rows % rowsBetweenReports == 0 && !tellProgress())
        return;
    }
    if (!repeatedHeaders.empty())
      report.warnings.push_back(withValues(
          translated("TableText", "Line %1 repeats the header and is left out (%2 in all)."),
          {std::to_string(repeatedHeaders.front()), std::to_string(repeatedHeaders.size())}));
    if (error.empty() && table.rows == 0)
      error = translated("TableText", "the table has no rows below its headers");
  }

  bool repeatsHeader() const
  {
    return !shape.headers.front().empty() &&
           std::equal(fields.begin(), fields.end(), shape.headers.begin(), shape.headers.end());
  }

  /// Columns that grow as they fill hold up to three times what they need. Memory that is asked for
  /// in vain is never touched.
  void reserveRows()
  {
    const double part = static_cast<double>(records.position()) / static_cast<double>(text.size());
    const auto rows = static_cast<std::size_t>(reservedShare * double(table.rows) / part);
    for (ColumnValues& column : table.columns)
      column.reserve(rows);
  }

  bool tellProgress()
  {
    if (passed)
      passed(records.position());
    cancelled = progress && !progress(double(records.position()) / double(text.size()));
    return !cancelled;
  }

  bool rowFits()
  {
    while (fields.size() > table.columns.size() && withoutOuterBlanks(fields.back()).empty())
      fields.pop_back();
    if (fields.size() == table.columns.size())
      return true;
    if (isCut())
      return false;
    error = otherFields(line(), fields.size(), table.columns.size(), shape.headerLine);
    return false;
  }

  /// A program that was ended while it wrote leaves a last line without its end.
  bool isCut()
  {
    const bool cut = records.position() == text.size() && table.rows > 0 && text.back() != '\n' &&
                     text.back() != '\r' && fields.size() < table.columns.size();
    if (cut)
      report.warnings.push_back(withValues(
          translated("TableText", "Line %1, the last one, is cut short and is not read."),
          {line()}));
    return cut;
  }

  void tellOpenQuotes()
  {
    // A quote that opens in the last line is cut with it; any other takes lines in.
    if (records.followingLine() != records.line() || !isCut())
      error =
          withValues(translated("TableText", "line %1: a quoted field is not closed"), {line()});
  }

  void readRow()
  {
    for (std::size_t column = 0; column < fields.size(); ++column)
      table.columns[column].read(fields[column], shape.decimalCommas, records.line());
    table.lines.push_back(records.line());
    ++table.rows;
  }

  std::string_view text;
  const ImportRequest& request;
  ImportReport& report;
  TextShape shape;
  DelimitedText records;
  const ImportProgress& progress;
  const TextPassed& passed;
  std::vector<std::string_view> fields;
  TableText table;
  std::vector<std::size_t> repeatedHeaders;
  /// Why there is none, in one line.
  std::string error;
  bool cancelled = false;
};

} // namespace

TableText tableOfColumns(const std::vector<std::string>& headers, std::vector<ColumnValues> columns)
{
  TableText table;
  table.roles = assignRoles(headers);
  table.rows = columns.empty() ? 0 : columns.front().values.size();
  table.columns = std::move(columns);
  table.uses.resize(table.columns.size());
  return table;
}

Result<TableText> readTableText(std::string_view bytes, const ImportRequest& request,
                                ImportReport& report, const ImportProgress& progress,
                                const TextPassed& passed)
{
  if (const std::string refused = unreadable(bytes); !refused.empty())
    return Result<TableText>::failed(refused);
  if (isUtf16(bytes))
  {
    report.reasons.push_back(translated("TableText", "the text is UTF-16"));
    return readTableText(utf8FromUtf16(bytes), request, report, progress);
  }
  return TableTextReader(withoutByteOrderMark(bytes), request, report, progress, passed).read();
}

} // namespace Talmesh::app

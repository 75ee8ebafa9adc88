#include "app/import/TableText.h"

#include "app/import/DelimitedText.h"
#include "app/import/NumberText.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t rowsBetweenReports = 2000;
/// The first rows may be longer than those behind them.
constexpr double reservedShare = 1.1;
constexpr std::size_t longestNote = 80;

std::string unreadable(std::string_view bytes)
{
  if (bytes.empty())
    return translated("TableText", "the file is empty");
  const std::string_view start = bytes.substr(0, 2);
  if (start == "\xFF\xFE" || start == "\xFE\xFF")
    return translated("TableText", "the text is UTF-16; save it as UTF-8");
  if (bytes.find('\0') != std::string_view::npos)
    return translated("TableText", "not a table: the file holds binary data");
  return {};
}

/// A column that may name the runs.
struct RunNames
{
  std::vector<int> runOfRow;
  std::vector<std::string> names;
  std::unordered_map<std::string, int> numbers;
  /// The first line without a name; 0 when there is none.
  std::size_t unnamedLine = 0;

  void add(std::string_view field, std::size_t line)
  {
    const std::string name = toUtf8(withoutOuterBlanks(field));
    if (name.empty() && unnamedLine == 0)
      unnamedLine = line;
    const auto [entry, added] = numbers.emplace(name, static_cast<int>(names.size()));
    if (added)
      names.push_back(name);
    runOfRow.push_back(entry->second);
  }
};

void note(NotedCell& cell, bool wanted, std::string_view field, std::size_t line)
{
  if (wanted && cell.line == 0)
    cell = {line, std::string(field.substr(0, longestNote))};
}

/// The cell of the earliest line that `noted` tells of any column; null without one.
const NotedCell* earliest(const std::vector<ColumnValues>& columns, NotedCell ColumnValues::*noted)
{
  const NotedCell* first = nullptr;
  for (const ColumnValues& column : columns)
  {
    const NotedCell& cell = column.*noted;
    if (cell.line > 0 && (!first || cell.line < first->line))
      first = &cell;
  }
  return first;
}

std::string ambiguousCell(const std::vector<ColumnValues>& columns)
{
  const NotedCell* point = earliest(columns, &ColumnValues::firstDecimalPoint);
  const NotedCell* comma = earliest(columns, &ColumnValues::firstDecimalComma);
  if (!point || !comma)
    return {};
  const NotedCell& later = point->line < comma->line ? *comma : *point;
  return withValues(
      translated("TableText",
                 "line %1: %2 is ambiguous: the table has both decimal points and decimal commas"),
      {std::to_string(later.line), quotedForMessage(later.text)});
}

class TableTextReader
{
public:
  TableTextReader(std::string_view text_, const ImportProgress& progress_,
                  const TextPassed& passed_)
      : text(text_)
      , delimiter(detectDelimiter(text_))
      , records(text_, delimiter)
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
      chooseRunColumn();
    if (error.empty())
      error = ambiguousCell(table.columns);
    return error.empty() ? Result<TableText>(std::move(table)) : Result<TableText>::failed(error);
  }

private:
  std::string line() const { return std::to_string(records.line()); }

  void readHeaders()
  {
    // Above the headers a line of nothing but blanks is blank in every table.
    bool found = records.next(fields);
    while (found && isBlankRecord(fields) && (fields.size() > 1 || !fields.front().empty()))
      found = records.next(fields);
    if (!found)
      error = translated("TableText", "the file is empty");
    else if (records.endedInsideQuotes())
      error = withValues(translated("TableText", "line %1: a quoted name is not closed"), {line()});
    else
      dropTrailingEmptyFields(1);
    if (error.empty() && fields.size() > mostColumns)
      error =
          withValues(translated("TableText", "the table has %1 columns; at most %2 can be read"),
                     {std::to_string(fields.size()), std::to_string(mostColumns)});
    if (!error.empty())
      return;
    const bool numbersOnly =
        std::all_of(fields.begin(), fields.end(),
                    [this](std::string_view field)
                    { return readNumber(field, commas()).kind == NumberText::Kind::Number; });
    if (numbersOnly)
    {
      error = translated("TableText", "the first line holds numbers, not the names of the columns");
      return;
    }
    std::vector<std::string> headers;
    for (const std::string_view field : fields)
      headers.push_back(toUtf8(field));
    table.roles = assignRoles(headers);
    candidates.resize(table.roles.runCandidates.size());
    table.columns.resize(headers.size());
  }

  void readRows()
  {
    while (error.empty() && records.next(fields))
    {
      if (records.endedInsideQuotes())
        error =
            withValues(translated("TableText", "line %1: a quoted field is not closed"), {line()});
      else if (table.columns.size() > 1 && isBlankRecord(fields))
        continue;
      else if (rowFits())
        readRow();
      if (table.rows == rowsBetweenReports)
        reserveRows();
      if (table.rows % rowsBetweenReports == 0 && !report())
        return;
    }
    if (error.empty() && table.rows == 0)
      error = translated("TableText", "the table has no rows below its headers");
  }

  /// Columns that grow as they fill hold up to three times what they need. Memory that is asked for
  /// in vain is never touched.
  void reserveRows()
  {
    const double part = static_cast<double>(records.position()) / static_cast<double>(text.size());
    const auto rows =
        static_cast<std::size_t>(reservedShare * static_cast<double>(table.rows) / part);
    for (ColumnValues& column : table.columns)
      column.values.reserve(rows);
    for (RunNames& candidate : candidates)
      candidate.runOfRow.reserve(rows);
    table.lines.reserve(rows);
  }

  bool report()
  {
    if (passed)
      passed(records.position());
    cancelled = progress && !progress(static_cast<double>(records.position()) /
                                      static_cast<double>(text.size()));
    return !cancelled;
  }

  bool rowFits()
  {
    dropTrailingEmptyFields(table.columns.size());
    if (fields.size() == table.columns.size())
      return true;
    error =
        fields.size() == 1
            ? withValues(translated("TableText", "line %1 has 1 field, the first line has %2"),
                         {line(), std::to_string(table.columns.size())})
            : withValues(
                  translated("TableText", "line %1 has %2 fields, the first line has %3"),
                  {line(), std::to_string(fields.size()), std::to_string(table.columns.size())});
    return false;
  }

  void dropTrailingEmptyFields(std::size_t kept)
  {
    while (fields.size() > kept && withoutOuterBlanks(fields.back()).empty())
      fields.pop_back();
  }

  void readRow()
  {
    for (std::size_t column = 0; column < fields.size(); ++column)
      readCell(table.columns[column], fields[column]);
    for (std::size_t i = 0; i < candidates.size(); ++i)
      candidates[i].add(fields[table.roles.runCandidates[i]], records.line());
    table.lines.push_back(records.line());
    ++table.rows;
  }

  void readCell(ColumnValues& column, std::string_view field)
  {
    const NumberText number = readNumber(field, commas());
    const bool isNumber = number.kind == NumberText::Kind::Number;
    const bool isText = number.kind == NumberText::Kind::Text;
    column.values.push_back(number.value);
    column.numbers += isNumber ? 1 : 0;
    column.texts += isText ? 1 : 0;
    note(column.firstText, isText, field, records.line());
    note(column.firstFraction, isNumber && number.value != std::floor(number.value), field,
         records.line());
    note(column.firstDecimalPoint, number.decimalPoint, field, records.line());
    note(column.firstDecimalComma, number.decimalComma, field, records.line());
  }

  void chooseRunColumn()
  {
    table.roles.runColumn = -1;
    for (std::size_t i = 0; i < candidates.size() && table.roles.runColumn < 0; ++i)
    {
      const int column = table.roles.runCandidates[i];
      if (table.columns[column].texts > 0 || table.columns[column].firstFraction.line == 0)
        takeRuns(column, candidates[i]);
    }
  }

  void takeRuns(int column, RunNames& names)
  {
    if (names.unnamedLine > 0)
      error = withValues(
          translated("TableText", "line %1: the run has no name in the column %2"),
          {std::to_string(names.unnamedLine), quotedForMessage(table.roles.headers[column].name)});
    table.roles.runColumn = column;
    table.columns[column] = ColumnValues();
    table.runOfRow = std::move(names.runOfRow);
    table.runNames = std::move(names.names);
  }

  bool commas() const { return delimiter != ','; }

  std::string_view text;
  char delimiter;
  DelimitedText records;
  const ImportProgress& progress;
  const TextPassed& passed;
  std::vector<std::string_view> fields;
  /// One for each of the roles' run candidates.
  std::vector<RunNames> candidates;
  TableText table;
  /// Why there is none, in one line.
  std::string error;
  bool cancelled = false;
};

} // namespace

Result<TableText> readTableText(std::string_view bytes, const ImportProgress& progress,
                                const TextPassed& passed)
{
  const std::string refused = unreadable(bytes);
  if (!refused.empty())
    return Result<TableText>::failed(refused);
  return TableTextReader(withoutByteOrderMark(bytes), progress, passed).read();
}

} // namespace Talmesh::app

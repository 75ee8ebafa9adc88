#include "app/TableText.h"

#include "app/AsciiText.h"
#include "app/DelimitedText.h"
#include "app/NumberText.h"
#include "app/TranslatedText.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

constexpr std::string_view blanks = " \t";
constexpr std::size_t rowsBetweenReports = 2000;

bool isContinuationByte(char c)
{
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// The length of the UTF-8 sequence at `at`, 0 when there is no valid one.
std::size_t sequenceLength(std::string_view text, std::size_t at)
{
  const auto lead = static_cast<unsigned char>(text[at]);
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 0 || at + length > text.size())
    return 0;
  for (std::size_t i = 1; i < length; ++i)
    if (!isContinuationByte(text[at + i]))
      return 0;
  return length;
}

bool isUtf8(std::string_view text)
{
  for (std::size_t at = 0; at < text.size();)
  {
    const std::size_t length = sequenceLength(text, at);
    if (length == 0)
      return false;
    at += length;
  }
  return true;
}

std::string toUtf8(std::string_view text)
{
  if (isUtf8(text))
    return std::string(text);
  std::string utf8;
  for (const char c : text)
  {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80)
      utf8 += c;
    else
    {
      utf8 += static_cast<char>(0xC0U | (byte >> 6U));
      utf8 += static_cast<char>(0x80U | (byte & 0x3FU));
    }
  }
  return utf8;
}

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

class TableTextReader
{
public:
  TableTextReader(std::string_view text_, const std::function<bool(double)>& progress_)
      : text(text_)
      , delimiter(detectDelimiter(text_))
      , records(text_, delimiter)
      , progress(progress_)
  {
  }

  TableText read()
  {
    readHeaders();
    if (table.error.empty())
      readRows();
    return std::move(table);
  }

private:
  std::string line() const { return std::to_string(records.line()); }

  void readHeaders()
  {
    if (!records.next(fields))
      table.error = translated("TableText", "the file is empty");
    else if (records.endedInsideQuotes())
      table.error =
          withValues(translated("TableText", "line %1: a quoted name is not closed"), {line()});
    else
      dropTrailingEmptyFields(1);
    if (table.error.empty() && fields.size() > mostColumns)
      table.error =
          withValues(translated("TableText", "the table has %1 columns; at most %2 can be read"),
                     {std::to_string(fields.size()), std::to_string(mostColumns)});
    if (!table.error.empty())
      return;
    const bool numbersOnly =
        std::all_of(fields.begin(), fields.end(),
                    [this](std::string_view field)
                    { return readNumber(field, commas()).kind == NumberText::Kind::Number; });
    if (numbersOnly)
    {
      table.error =
          translated("TableText", "the first line holds numbers, not the names of the columns");
      return;
    }
    std::vector<std::string> headers;
    for (const std::string_view field : fields)
      headers.push_back(toUtf8(field));
    table.roles = assignRoles(headers);
    table.columns.resize(headers.size());
  }

  void readRows()
  {
    while (table.error.empty() && records.next(fields))
    {
      if (records.endedInsideQuotes())
        table.error =
            withValues(translated("TableText", "line %1: a quoted field is not closed"), {line()});
      else if (rowFits())
        readRow();
      if (table.rows % rowsBetweenReports == 0 && !report())
        return;
    }
    if (table.error.empty() && table.rows == 0)
      table.error = translated("TableText", "the table has no rows below its headers");
  }

  bool report()
  {
    table.cancelled = progress && !progress(static_cast<double>(records.position()) /
                                            static_cast<double>(text.size()));
    return !table.cancelled;
  }

  bool rowFits()
  {
    dropTrailingEmptyFields(table.columns.size());
    if (fields.size() == table.columns.size())
      return true;
    table.error =
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
    while (fields.size() > kept && trimmed(fields.back(), blanks).empty())
      fields.pop_back();
  }

  void readRow()
  {
    for (std::size_t column = 0; column < fields.size() && table.error.empty(); ++column)
      if (static_cast<int>(column) == table.roles.runColumn)
        readRunName(fields[column]);
      else
        readCell(column, fields[column]);
    table.lines.push_back(records.line());
    ++table.rows;
  }

  void readRunName(std::string_view field)
  {
    const std::string name = toUtf8(trimmed(field, blanks));
    if (name.empty())
    {
      table.error =
          withValues(translated("TableText", "line %1: the run has no name in the column %2"),
                     {line(), quotedForMessage(table.roles.headers[table.roles.runColumn].name)});
      return;
    }
    const auto [entry, added] = runNumbers.emplace(name, static_cast<int>(table.runNames.size()));
    if (added)
      table.runNames.push_back(name);
    table.runOfRow.push_back(entry->second);
  }

  void readCell(std::size_t index, std::string_view field)
  {
    ColumnValues& column = table.columns[index];
    const NumberText number = readNumber(field, commas());
    column.values.push_back(number.value);
    points = points || number.decimalPoint;
    decimalCommas = decimalCommas || number.decimalComma;
    if (points && decimalCommas)
      table.error = withValues(
          translated(
              "TableText",
              "line %1: %2 is ambiguous: the table has both decimal points and decimal commas"),
          {line(), quotedForMessage(field)});
    if (number.kind == NumberText::Kind::Number)
      ++column.numbers;
    else if (number.kind == NumberText::Kind::Text && ++column.texts == 1)
    {
      column.firstText = std::string(field.substr(0, 80));
      column.firstTextLine = records.line();
    }
  }

  bool commas() const { return delimiter != ','; }

  std::string_view text;
  char delimiter;
  DelimitedText records;
  const std::function<bool(double)>& progress;
  std::vector<std::string_view> fields;
  std::unordered_map<std::string, int> runNumbers;
  bool points = false;
  bool decimalCommas = false;
  TableText table;
};

} // namespace

TableText readTableText(std::string_view bytes, const std::function<bool(double)>& progress)
{
  TableText table;
  table.error = unreadable(bytes);
  if (!table.error.empty())
    return table;
  return TableTextReader(withoutByteOrderMark(bytes), progress).read();
}

std::string quotedForMessage(std::string_view text)
{
  constexpr std::size_t longest = 40;
  std::string shown = toUtf8(text);
  if (shown.size() > longest)
  {
    std::size_t cut = longest;
    while (cut > 0 && isContinuationByte(shown[cut]))
      --cut;
    shown = shown.substr(0, cut) + "...";
  }
  for (char& c : shown)
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
      c = ' ';
  return '"' + shown + '"';
}

} // namespace Talmesh::app

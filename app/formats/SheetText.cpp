#include "app/formats/SheetText.h"

#include "app/formats/PartNames.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

constexpr char separator = '\t';

/// A field that reads as the cell does; a line stays a line.
std::string fieldOf(std::string text)
{
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r' || c == '\0'; }, ' ');
  if (text.find_first_of("\t\"") == std::string::npos)
    return text;
  std::string quoted = "\"";
  for (const char c : text)
    quoted += c == '"' ? "\"\"" : std::string(1, c);
  return quoted + '"';
}

} // namespace

void SheetText::fill(std::size_t count, char with)
{
  filling += std::min(count, mostFilling + 1);
  if (!isTooLarge())
    text.append(count, with);
}

void SheetText::add(std::size_t atRow, std::size_t atColumn, const std::string& cell, bool isNumber)
{
  if (cell.empty())
    return;
  if (atRow > row)
  {
    fill(atRow - row, '\n');
    row = atRow;
    column = 0;
    rowStart = text.size();
  }
  if (isTooLarge())
    return;
  rowsFilled += text.size() == rowStart ? 1 : 0;
  fill(atColumn > column ? atColumn - column : 0, separator);
  column = std::max(column, atColumn);
  text += fieldOf(cell);
  numbers += isNumber ? 1 : 0;
}

void SheetText::repeatRow(std::size_t times)
{
  const std::string line = text.substr(rowStart);
  filling += std::min(times, mostFilling) * (line.size() + 1);
  for (std::size_t i = 0; i < times && !isTooLarge(); ++i)
  {
    text += '\n';
    rowStart = text.size();
    text += line;
    ++row;
    ++rowsFilled;
  }
}

std::string SheetText::take()
{
  text += '\n';
  return std::move(text);
}

std::string noteOnSheets(const std::string& shown, const std::vector<std::string>& all)
{
  std::vector<std::string> others;
  std::copy_if(all.begin(), all.end(), std::back_inserter(others),
               [&](const std::string& name) { return name != shown; });
  if (others.empty())
    return {};
  return withValues(
      translated("SheetText", "The sheet %1 is shown; --sheet chooses another one: %2."),
      {quotedForMessage(shown), listOfParts(others)});
}

std::string noSheetIsTable(const std::vector<std::string>& all)
{
  return withValues(translated("SheetText", "none of its sheets (%1) is a table: a table has a row "
                                            "of names and rows of numbers below"),
                    {listOfParts(all)});
}

std::string sheetTooLarge()
{
  return translated("SheetText",
                    "the sheet is mostly blank cells; copy the table into a sheet of its own");
}

std::string damagedWorkbook()
{
  return translated("SheetText", "the workbook is damaged; save it again, or as CSV");
}

} // namespace Talmesh::app

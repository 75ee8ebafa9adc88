#include "app/import/ColumnValues.h"

#include "app/import/AsciiText.h"
#include "app/import/DateText.h"
#include "app/import/MissingValue.h"
#include "app/import/NumberText.h"
#include "app/import/UnitText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t longestNote = 80;

bool isDigit(char c)
{
  return c >= '0' && c <= '9';
}

/// Whether a number with a comma could have one between its thousands: one to three digits, not a 0
/// in front, and three behind the comma.
bool mayBeThousands(std::string_view field)
{
  std::string_view text = withoutOuterBlanks(field);
  if (!text.empty() && (text.front() == '-' || text.front() == '+'))
    text.remove_prefix(1);
  const std::size_t comma = text.find(',');
  constexpr std::size_t group = 3;
  return comma != std::string_view::npos && comma > 0 && comma <= group && text.front() != '0' &&
         text.size() == comma + 1 + group &&
         std::all_of(text.begin(), text.end(), [](char c) { return c == ',' || isDigit(c); });
}

/// Takes a cell that is no number and not missing.
/// @return the value that stands for it
double readText(ColumnValues& column, std::string_view field, std::size_t line)
{
  if (isCensored(field))
  {
    ++column.censored;
    column.firstCensored.note(field, line);
    return missing;
  }
  const std::optional<DateText> date = readDate(field);
  if (!date)
  {
    ++column.texts;
    column.firstText.note(field, line);
    return missing;
  }
  ++column.dates;
  column.bareDates += date->hasTime ? 0 : 1;
  column.bareTimes += date->hasDate ? 0 : 1;
  return date->seconds;
}

std::string shortestText(double value)
{
  constexpr std::size_t longest = 32;
  char text[longest];
  const auto written = std::to_chars(text, text + longest, value);
  return {text, written.ptr};
}

/// Words that stand for nothing among numbers, and for something among texts: no drug, no gene.
bool isNoneWord(std::string_view field)
{
  constexpr std::string_view none = "none";
  const std::string_view text = withoutOuterBlanks(field);
  return text == "-" || std::equal(text.begin(), text.end(), none.begin(), none.end(),
                                   [](char a, char b) { return toLower(a) == b; });
}

void keepText(ColumnValues& column, std::string_view field, bool isText)
{
  if (isText)
    column.levels.add(field);
  else
    column.levels.addNone();
  if (column.levels.names().size() > ColumnValues::mostLevels)
  {
    column.hasTooManyTexts = true;
    column.levels.clear();
  }
}

} // namespace

void NotedCell::note(std::string_view field, std::size_t at)
{
  if (line == 0)
    *this = {at, std::string(field.substr(0, longestNote))};
}

void ColumnValues::read(std::string_view field, bool mayHaveCommas, std::size_t line)
{
  const NumberText number = readNumber(field, mayHaveCommas);
  double value = number.value;
  const bool isText = number.kind == NumberText::Kind::Text;
  const bool isWord =
      isText || (number.kind == NumberText::Kind::Missing && !field.empty() && isNoneWord(field));
  if (number.kind == NumberText::Kind::Number)
  {
    ++numbers;
    if (firstFraction.line == 0 && value != std::floor(value))
      firstFraction.note(field, line);
    if (number.decimalPoint)
      firstDecimalPoint.note(field, line);
    if (number.decimalComma)
    {
      firstDecimalComma.note(field, line);
      ++commas;
      thousands += mayBeThousands(field) ? 1 : 0;
    }
  }
  else if (isText)
    value = readText(*this, field, line);
  if (keepsTexts)
  {
    if (withoutOuterBlanks(field).empty())
      firstEmpty.note("-", line);
    keepName(field, value);
    return;
  }
  if (isWord && levels.rows().empty() && !hasTooManyTexts)
    levels.startAt(values.size());
  if (!hasTooManyTexts && (isWord || !levels.isEmpty()))
    keepText(*this, field, isWord);
  values.push_back(value);
}

void ColumnValues::keepName(std::string_view field, double value)
{
  levels.add(field);
  if (levels.names().size() > valueOfLevel.size())
    valueOfLevel.push_back(value);
  if (!mayBeQuantity || texts > 0 || firstFraction.line == 0 || levels.names().size() <= mostLevels)
    return;
  completeValues();
  keepsTexts = false;
  levels.clear();
  std::vector<double>().swap(valueOfLevel);
}

double ColumnValues::valueAt(std::size_t row) const
{
  if (!values.empty())
    return values[row];
  const int level = levels.rows()[row];
  return level == TextLevels::none || static_cast<std::size_t>(level) >= valueOfLevel.size()
             ? missing
             : valueOfLevel[static_cast<std::size_t>(level)];
}

void ColumnValues::completeValues()
{
  if (!values.empty())
    return;
  std::vector<double> complete;
  complete.reserve(rows());
  for (std::size_t row = 0; row < rows(); ++row)
    complete.push_back(valueAt(row));
  values = std::move(complete);
}

void ColumnValues::reserve(std::size_t rows)
{
  if (!keepsTexts)
    values.reserve(rows);
  if (!levels.isEmpty())
    levels.reserve(rows);
}

void ColumnValues::completeTexts()
{
  if (levels.rows().empty())
    levels.startAt(values.size());
  // Where there are no values, every cell has its text.
  for (std::size_t row = 0; row < values.size(); ++row)
    if (levels.rows()[row] == TextLevels::none && !std::isnan(values[row]))
      levels.set(row, shortestText(values[row]));
}

ColumnValues columnOfNumbers(std::vector<double> values)
{
  ColumnValues column;
  for (std::size_t row = 0; row < values.size(); ++row)
  {
    const bool isNumber = !std::isnan(values[row]);
    column.numbers += isNumber ? 1 : 0;
    if (isNumber && values[row] != std::floor(values[row]))
      column.firstFraction.note("fraction", row + 1);
  }
  column.values = std::move(values);
  return column;
}

ColumnValues gatheredColumn(const ColumnValues& column, const std::vector<std::size_t>& rows)
{
  ColumnValues gathered;
  gathered.numbers = column.numbers;
  gathered.texts = column.texts;
  gathered.dates = column.dates;
  gathered.keepsTexts = column.keepsTexts;
  gathered.hasTooManyTexts = column.hasTooManyTexts;
  gathered.firstText = column.firstText;
  gathered.values.reserve(rows.size());
  for (const std::size_t row : rows)
  {
    gathered.values.push_back(column.valueAt(row));
    if (column.levels.rows().empty())
      continue;
    const int level = column.levels.rows()[row];
    if (level == TextLevels::none)
      gathered.levels.addNone();
    else
      gathered.levels.add(column.levels.names()[static_cast<std::size_t>(level)]);
  }
  return gathered;
}

ColumnValues columnOfTexts(const std::vector<std::string>& texts)
{
  ColumnValues column;
  column.keepsTexts = true;
  column.reserve(texts.size());
  for (std::size_t row = 0; row < texts.size(); ++row)
    column.read(texts[row], false, row + 1);
  column.completeValues();
  return column;
}

} // namespace Talmesh::app

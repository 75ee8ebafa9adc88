#include "app/import/HeadRecords.h"

#include "app/import/DateText.h"
#include "app/import/NumberText.h"
#include "app/import/UnitText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace Talmesh::app
{

HeadRecords::HeadRecords(const std::vector<SampledRecord>& head_,
                         const std::vector<SampledRecord>& places_, bool decimalCommas_)
    : head(head_)
    , places(places_)
    , decimalCommas(decimalCommas_)
{
}

bool HeadRecords::isNumber(const std::string& field) const
{
  return readNumber(field, decimalCommas).kind == NumberText::Kind::Number;
}

bool HeadRecords::isMissing(const std::string& field) const
{
  return readNumber(field, decimalCommas).kind == NumberText::Kind::Missing;
}

std::size_t HeadRecords::nextRecord(std::size_t at) const
{
  do
    ++at;
  while (at < head.size() && head[at].isComment);
  return at;
}

bool HeadRecords::rowsAreOneLonger(std::size_t header) const
{
  const auto isLonger = [&](const SampledRecord& record)
  { return record.fields.size() == head[header].fields.size() + 1; };
  bool filled = false;
  std::size_t rows = 0;
  for (std::size_t i = nextRecord(header); i < head.size(); i = nextRecord(i), ++rows)
  {
    const bool last = nextRecord(i) >= head.size() && places.empty();
    if (!isLonger(head[i]) && !(last && rows > 0))
      return false;
    filled = filled || !withoutOuterBlanks(head[i].fields.back()).empty();
  }
  const std::size_t below = nextRecord(header);
  const bool numbersBelow =
      below < head.size() &&
      std::any_of(head[below].fields.begin(), head[below].fields.end(),
                  [this](const std::string& field) { return isNumber(field); });
  const bool allNames = std::none_of(head[header].fields.begin(), head[header].fields.end(),
                                     [this](const std::string& field) { return isNumber(field); });
  return rows > 0 && filled && numbersBelow && allNames &&
         std::all_of(places.begin(), places.end(), isLonger);
}

bool HeadRecords::columnHasNumbers(std::size_t column, std::size_t behind) const
{
  const auto hasNumber = [&](const SampledRecord& record)
  { return !record.isComment && column < record.fields.size() && isNumber(record.fields[column]); };
  return std::any_of(head.begin() + static_cast<std::ptrdiff_t>(std::min(behind, head.size())),
                     head.end(), hasNumber) ||
         std::any_of(places.begin(), places.end(), hasNumber);
}

bool HeadRecords::isLowerHeader(std::size_t at, std::size_t header) const
{
  if (at >= head.size() || head[at].fields.size() != head[header].fields.size())
    return false;
  bool words = false;
  bool onlyUnits = true;
  bool amongTexts = false;
  for (std::size_t column = 0; column < head[at].fields.size(); ++column)
  {
    const std::string& field = head[at].fields[column];
    if (isNumber(field) || isCensored(field) || isDateText(field))
      return false;
    if (isMissing(field))
      continue;
    const bool overNumbers = columnHasNumbers(column, at + 1);
    words = words || overNumbers;
    amongTexts = amongTexts || !overNumbers;
    onlyUnits = onlyUnits && isUnit(field);
  }
  // A first row may have texts, too, where those below it have numbers.
  return words && (onlyUnits || !amongTexts);
}

std::vector<std::string> withoutEmptyEnd(std::vector<std::string> fields)
{
  while (fields.size() > 1 && withoutOuterBlanks(fields.back()).empty())
    fields.pop_back();
  return fields;
}

bool isBracketLine(const SampledRecord& record)
{
  if (record.isComment || withoutEmptyEnd(record.fields).size() != 1)
    return false;
  const std::string_view word = withoutOuterBlanks(record.fields.front());
  return word == "[" || word == "]" ||
         (word.size() > 2 && word.front() == '[' && word.back() == ']');
}

} // namespace Talmesh::app

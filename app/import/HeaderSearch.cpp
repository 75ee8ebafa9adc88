#include "app/import/HeaderSearch.h"

#include "app/import/HeadRecords.h"
#include "app/import/TableText.h"
#include "app/import/TranslatedText.h"
#include "app/import/UnitText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

using Fields = std::vector<std::string>;

class HeaderSearch
{
public:
  HeaderSearch(const std::vector<SampledRecord>& head_, const std::vector<SampledRecord>& places_,
               std::size_t usual_, TextShape& shape_)
      : head(head_)
      , records(head_, places_, shape_.decimalCommas)
      , usual(usual_)
      , shape(shape_)
  {
  }

  std::string find();

private:
  bool isRow(const SampledRecord& record) const
  {
    return !record.isComment && record.fields.size() >= usual;
  }

  std::size_t afterBrackets() const;
  std::size_t firstOfTable(std::size_t from) const;
  int headerInComment(std::size_t before) const;
  void take(std::size_t at);
  void takeComment(int at, std::size_t firstRow);
  void beginRowsAt(std::size_t record);
  void joinLower(const Fields& lower);
  void tellWhatIsAbove(std::size_t header);

  const std::vector<SampledRecord>& head;
  HeadRecords records;
  std::size_t usual;
  TextShape& shape;
};

/// Behind the last section whose name stands in brackets above the table.
std::size_t HeaderSearch::afterBrackets() const
{
  std::size_t behind = 0;
  for (std::size_t i = 0; usual > 1 && i < head.size(); ++i)
    if (isBracketLine(head[i]))
      behind = i + 1;
  const bool tableFollows =
      std::any_of(head.begin() + static_cast<std::ptrdiff_t>(behind), head.end(),
                  [this](const SampledRecord& record) { return isRow(record); });
  return tableFollows ? behind : 0;
}

/// The first record that has as many fields as the rows have, or one less. A line of several texts
/// right above numbers is the header, however many it has, so that what is wrong can be told.
std::size_t HeaderSearch::firstOfTable(std::size_t from) const
{
  std::size_t previous = head.size();
  for (std::size_t i = from; i < head.size(); ++i)
  {
    const SampledRecord& record = head[i];
    if (record.isComment)
      continue;
    const std::size_t fields = record.fields.size();
    const std::size_t filled = withoutEmptyEnd(record.fields).size();
    const bool fits = fields == usual || filled == usual ||
                      (usual > 2 && fields + 1 == usual && records.rowsAreOneLonger(i)) ||
                      (usual == 2 && fields == 1 && i == from && records.rowsAreOneLonger(i));
    if (fits)
    {
      const bool numbersOnly =
          std::all_of(record.fields.begin(), record.fields.end(),
                      [this](const std::string& field) { return records.isNumber(field); });
      const bool namesAbove =
          numbersOnly && previous < head.size() && head[previous].fields.size() > 1;
      return namesAbove ? previous : i;
    }
    previous = i;
  }
  return previous < head.size() ? previous : from;
}

/// The last comment above the rows that names as many columns as they have; -1 without one.
int HeaderSearch::headerInComment(std::size_t before) const
{
  for (std::size_t i = std::min(before, head.size()); i-- > 0;)
  {
    if (!head[i].isComment)
      continue;
    const Fields& names = head[i].fields;
    const bool fits =
        names.size() == head[before].fields.size() &&
        std::none_of(names.begin(), names.end(),
                     [this](const std::string& name) { return records.isNumber(name); });
    if (fits)
      return static_cast<int>(i);
  }
  return -1;
}

void HeaderSearch::beginRowsAt(std::size_t record)
{
  if (record < head.size())
  {
    shape.dataBegin = head[record].begin;
    shape.dataLine = head[record].line;
    return;
  }
  // The lines of the last record are not known, but nothing follows it.
  shape.dataBegin = head.back().end;
  shape.dataLine = head.back().line + 1;
}

/// Puts units into brackets behind the names, and second names behind the first ones.
void HeaderSearch::joinLower(const Fields& lower)
{
  const bool units =
      std::all_of(lower.begin(), lower.end(),
                  [](const std::string& field) { return field.empty() || isUnit(field); });
  std::string group;
  for (std::size_t i = 0; i < shape.headers.size() && i < lower.size(); ++i)
  {
    const std::string word(withoutOuterBlanks(lower[i]));
    std::string& name = shape.headers[i];
    if (units)
    {
      name = withUnit(name, word);
      continue;
    }
    // Spreadsheets write a name over several columns into the first one.
    if (!name.empty())
      group = name;
    name = group.empty() || word.empty() ? group + word : group + ' ' + word;
    if (word.empty())
      group.clear();
  }
  shape.reasons.push_back(
      units ? translated("HeaderSearch", "the line below the names holds units")
            : translated("HeaderSearch", "two lines hold the names of the columns"));
}

void HeaderSearch::take(std::size_t at)
{
  shape.headers = head[at].fields;
  shape.headerLine = head[at].line;
  const std::size_t below = records.nextRecord(at);
  std::size_t firstRow = below;
  if (records.isLowerHeader(below, at))
  {
    joinLower(head[below].fields);
    firstRow = records.nextRecord(below);
  }
  else if (usual > 1 && records.rowsAreOneLonger(at))
  {
    shape.headers.insert(shape.headers.begin(), std::string());
    shape.hasRowNames = true;
    shape.reasons.push_back(translated(
        "HeaderSearch", "the header is one name short, so the first column names the rows"));
  }
  if (firstRow < head.size())
    beginRowsAt(firstRow);
  else
  {
    shape.dataBegin = head[firstRow - 1 < head.size() ? firstRow - 1 : at].end;
    shape.dataLine = shape.headerLine + 1;
  }
}

void HeaderSearch::takeComment(int at, std::size_t firstRow)
{
  const auto isUnits = [](const SampledRecord& record)
  { return std::all_of(record.fields.begin(), record.fields.end(), isUnit); };
  const auto& comment = head[static_cast<std::size_t>(at)];
  const bool above = at > 0 && head[static_cast<std::size_t>(at) - 1].isComment &&
                     head[static_cast<std::size_t>(at) - 1].fields.size() == comment.fields.size();
  const bool units = above && isUnits(comment);
  const SampledRecord& names = units ? head[static_cast<std::size_t>(at) - 1] : comment;
  shape.headers = names.fields;
  shape.headerLine = names.line;
  // What touches its mark may be called so.
  if (!names.isApart && !shape.headers.empty())
    shape.headers.front() =
        std::string(withoutCommentMark(std::string(shape.comment) + shape.headers.front()));
  shape.reasons.push_back(translated("HeaderSearch", "a comment above the rows names the columns"));
  if (units)
    joinLower(comment.fields);
  beginRowsAt(firstRow);
}

void HeaderSearch::tellWhatIsAbove(std::size_t header)
{
  std::size_t first = 0;
  std::size_t last = 0;
  for (std::size_t i = 0; i < header; ++i)
    if (!head[i].isComment)
    {
      first = first == 0 ? head[i].line : first;
      last = head[i].line;
    }
  if (last == 0)
    return;
  shape.warnings.push_back(
      first == last
          ? withValues(
                translated("HeaderSearch", "Line %1 stands above the table and is not read."),
                {std::to_string(first)})
          : withValues(translated("HeaderSearch",
                                  "The lines %1 to %2 stand above the table and are not read."),
                       {std::to_string(first), std::to_string(last)}));
}

std::string HeaderSearch::find()
{
  const bool any = std::any_of(head.begin(), head.end(),
                               [](const SampledRecord& record) { return !record.isComment; });
  if (!any)
    return head.empty() ? translated("TableText", "the file is empty")
                        : translated("TableText", "the table has no rows below its headers");
  std::size_t first = firstOfTable(afterBrackets());
  if (first < head.size() && head[first].isComment)
    first = records.nextRecord(first);
  if (head[first].isOpen)
    return withValues(translated("TableText", "line %1: a quoted name is not closed"),
                      {std::to_string(head[first].line)});
  const Fields& fields = head[first].fields;
  const bool anyNumber =
      std::any_of(fields.begin(), fields.end(),
                  [this](const std::string& field) { return records.isNumber(field); });
  const int comment = anyNumber ? headerInComment(first) : -1;
  const bool numbersOnly =
      std::all_of(fields.begin(), fields.end(),
                  [this](const std::string& field) { return records.isNumber(field); });
  tellWhatIsAbove(first);
  if (comment >= 0)
    takeComment(comment, first);
  else if (numbersOnly)
    return translated("TableText", "the first line holds numbers, not the names of the columns; "
                                   "write a line of names above it, as many as there are columns");
  else
    take(first);
  return {};
}

} // namespace

std::string findHeader(const std::vector<SampledRecord>& head,
                       const std::vector<SampledRecord>& places, std::size_t usual,
                       TextShape& shape)
{
  return HeaderSearch(head, places, usual, shape).find();
}

} // namespace Talmesh::app

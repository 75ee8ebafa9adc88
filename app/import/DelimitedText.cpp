#include "app/import/DelimitedText.h"

#include "app/import/NumberText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// So many records tell the delimiter; more would only cost time.
constexpr std::size_t sampledRecords = 20;

bool isLineEnd(char c)
{
  return c == '\n' || c == '\r';
}

struct DelimiterFit
{
  bool even = true;
  std::size_t fields = 0;
  /// What the cells below the headers hold.
  std::size_t numbers = 0;
  std::size_t texts = 0;
};

void countCells(DelimiterFit& fit, const std::vector<std::string_view>& fields, char delimiter)
{
  for (const std::string_view field : fields)
  {
    const NumberText::Kind kind = readNumber(field, delimiter != ',').kind;
    fit.numbers += kind == NumberText::Kind::Number ? 1 : 0;
    fit.texts += kind == NumberText::Kind::Text ? 1 : 0;
  }
}

DelimiterFit fitOf(std::string_view text, char delimiter)
{
  DelimitedText reader(text, delimiter);
  std::vector<std::string_view> fields;
  DelimiterFit fit;
  for (std::size_t record = 0; record < sampledRecords && reader.next(fields); ++record)
  {
    if (isBlankRecord(fields))
      continue;
    if (fit.fields == 0)
      fit.fields = fields.size();
    else
    {
      fit.even = fit.even && fields.size() == fit.fields;
      countCells(fit, fields, delimiter);
    }
  }
  return fit;
}

bool fitsBetter(const DelimiterFit& fit, const DelimiterFit& other)
{
  if (fit.even != other.even)
    return fit.even;
  const std::size_t share = fit.numbers * (other.numbers + other.texts);
  const std::size_t otherShare = other.numbers * (fit.numbers + fit.texts);
  if (fit.even && share != otherShare)
    return share > otherShare;
  return fit.fields > other.fields;
}

} // namespace

DelimitedText::DelimitedText(std::string_view text_, char delimiter_)
    : text(text_)
    , delimiter(delimiter_)
{
}

bool DelimitedText::atLineEnd() const
{
  return cursor == text.size() || isLineEnd(text[cursor]);
}

void DelimitedText::skipLineEnd()
{
  if (cursor == text.size())
    return;
  const bool carriageReturn = text[cursor] == '\r';
  ++cursor;
  if (carriageReturn && cursor < text.size() && text[cursor] == '\n')
    ++cursor;
  ++currentLine;
}

void DelimitedText::skipEmptyLines()
{
  while (cursor < text.size() && isLineEnd(text[cursor]))
    skipLineEnd();
}

bool DelimitedText::isBlank(char c) const
{
  return (c == ' ' || c == '\t') && c != delimiter;
}

std::size_t DelimitedText::afterBlanks(std::size_t from) const
{
  while (from < text.size() && isBlank(text[from]))
    ++from;
  return from;
}

std::string_view DelimitedText::plainField()
{
  const std::size_t begin = cursor;
  while (!atLineEnd() && text[cursor] != delimiter)
    ++cursor;
  return text.substr(begin, cursor - begin);
}

bool DelimitedText::closesField(std::size_t quote) const
{
  const std::size_t after = afterBlanks(quote + 1);
  return after == text.size() || text[after] == delimiter || isLineEnd(text[after]);
}

std::string_view DelimitedText::quotedField()
{
  ++cursor;
  const std::size_t begin = cursor;
  std::size_t copied = begin;
  std::string* copy = nullptr;
  for (; cursor < text.size(); ++cursor)
  {
    const char c = text[cursor];
    if (c == '"' && closesField(cursor))
    {
      const std::string_view tail = text.substr(copied, cursor - copied);
      cursor = afterBlanks(cursor + 1);
      return copy ? std::string_view(copy->append(tail)) : tail;
    }
    if (c == '"' && text[cursor + 1] == '"')
    {
      if (!copy)
        copy = &unescaped.emplace_back();
      copy->append(text.substr(copied, cursor + 1 - copied));
      ++cursor;
      copied = cursor + 1;
    }
    else if (c == '\n' || (c == '\r' && !(cursor + 1 < text.size() && text[cursor + 1] == '\n')))
      ++currentLine;
  }
  openQuotes = true;
  return text.substr(std::min(begin, text.size()));
}

bool DelimitedText::next(std::vector<std::string_view>& fields)
{
  fields.clear();
  unescaped.clear();
  openQuotes = false;
  skipEmptyLines();
  recordLine = currentLine;
  if (cursor == text.size())
    return false;
  for (;;)
  {
    const std::size_t quote = afterBlanks(cursor);
    const bool quoted = quote < text.size() && text[quote] == '"';
    if (quoted)
      cursor = quote;
    fields.push_back(quoted ? quotedField() : plainField());
    if (atLineEnd())
      break;
    ++cursor;
  }
  skipLineEnd();
  return true;
}

bool isBlankRecord(const std::vector<std::string_view>& fields)
{
  return std::all_of(fields.begin(), fields.end(),
                     [](std::string_view field) { return withoutOuterBlanks(field).empty(); });
}

char detectDelimiter(std::string_view text)
{
  char best = ';';
  DelimiterFit bestFit;
  bestFit.even = false;
  for (const char candidate : {'\t', ';', ','})
  {
    const DelimiterFit fit = fitOf(text, candidate);
    if (fit.fields < 2)
      continue;
    if (fitsBetter(fit, bestFit))
    {
      best = candidate;
      bestFit = fit;
    }
  }
  return best;
}

std::string_view withoutByteOrderMark(std::string_view text)
{
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  return text.substr(0, mark.size()) == mark ? text.substr(mark.size()) : text;
}

} // namespace Talmesh::app

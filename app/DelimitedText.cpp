#include "app/DelimitedText.h"

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
};

DelimiterFit fitOf(std::string_view text, char delimiter)
{
  DelimitedText reader(text, delimiter);
  std::vector<std::string_view> fields;
  DelimiterFit fit;
  for (std::size_t record = 0; record < sampledRecords && reader.next(fields); ++record)
  {
    if (record == 0)
      fit.fields = fields.size();
    else if (fields.size() != fit.fields)
      fit.even = false;
  }
  return fit;
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

std::string_view DelimitedText::plainField()
{
  const std::size_t begin = cursor;
  while (!atLineEnd() && text[cursor] != delimiter)
    ++cursor;
  return text.substr(begin, cursor - begin);
}

bool DelimitedText::closesField(std::size_t quote) const
{
  const std::size_t after = quote + 1;
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
      ++cursor;
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
    const bool quoted = !atLineEnd() && text[cursor] == '"';
    fields.push_back(quoted ? quotedField() : plainField());
    if (atLineEnd())
      break;
    ++cursor;
  }
  skipLineEnd();
  return true;
}

char detectDelimiter(std::string_view text)
{
  char best = ';';
  DelimiterFit bestFit{false, 1};
  for (const char candidate : {'\t', ';', ','})
  {
    const DelimiterFit fit = fitOf(text, candidate);
    if (fit.fields < 2)
      continue;
    const bool better = fit.even != bestFit.even ? fit.even : fit.fields > bestFit.fields;
    if (better)
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

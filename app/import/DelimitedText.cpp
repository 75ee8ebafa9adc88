#include "app/import/DelimitedText.h"

#include "app/import/Utf8Text.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

bool isLineEnd(char c)
{
  return c == '\n' || c == '\r';
}

} // namespace

DelimitedText::DelimitedText(std::string_view text_, char delimiter_, std::string_view comment_)
    : text(text_)
    , delimiter(delimiter_)
    , comment(comment_)
{
}

void DelimitedText::skipTo(std::size_t position, std::size_t line)
{
  cursor = position;
  currentLine = line;
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

/// @return whether there was a line of comment
bool DelimitedText::skipComment()
{
  if (comment.empty())
    return false;
  std::size_t words = cursor;
  while (words < text.size() && (text[words] == ' ' || text[words] == '\t'))
    ++words;
  if (text.substr(words, comment.size()) != comment)
    return false;
  cursor = words;
  while (!atLineEnd())
    ++cursor;
  skipLineEnd();
  return true;
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
  const std::size_t after = delimiter == ' ' ? quote + 1 : afterBlanks(quote + 1);
  if (delimiter == ' ' && after < text.size() && text[after] == '\t')
    return true;
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
  do
    skipEmptyLines();
  while (skipComment());
  recordLine = currentLine;
  if (cursor == text.size())
    return false;
  if (delimiter == ' ')
    readWords(fields);
  else
    readFields(fields);
  skipLineEnd();
  return true;
}

void DelimitedText::readFields(std::vector<std::string_view>& fields)
{
  for (;;)
  {
    const std::size_t quote = afterBlanks(cursor);
    const bool quoted = quote < text.size() && text[quote] == '"';
    if (quoted)
      cursor = quote;
    fields.push_back(quoted ? quotedField() : plainField());
    if (atLineEnd())
      return;
    ++cursor;
  }
}

void DelimitedText::readWords(std::vector<std::string_view>& fields)
{
  const auto isGap = [](char c) { return c == ' ' || c == '\t'; };
  const auto skipGap = [&]
  {
    while (cursor < text.size() && isGap(text[cursor]))
      ++cursor;
  };
  for (skipGap(); !atLineEnd(); skipGap())
  {
    if (text[cursor] == '"')
    {
      fields.push_back(quotedField());
      continue;
    }
    const std::size_t begin = cursor;
    while (!atLineEnd() && !isGap(text[cursor]))
      ++cursor;
    fields.push_back(text.substr(begin, cursor - begin));
  }
  // A line of blanks has one blank field, as under any other delimiter.
  if (fields.empty())
    fields.emplace_back();
}

bool isBlankRecord(const std::vector<std::string_view>& fields)
{
  return std::all_of(fields.begin(), fields.end(),
                     [](std::string_view field) { return withoutOuterBlanks(field).empty(); });
}

std::string_view withoutByteOrderMark(std::string_view text)
{
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  return text.substr(0, mark.size()) == mark ? text.substr(mark.size()) : text;
}

} // namespace Talmesh::app

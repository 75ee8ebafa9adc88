#include "app/import/TextShape.h"

#include "app/import/AsciiText.h"
#include "app/import/DelimitedText.h"
#include "app/import/HeaderSearch.h"
#include "app/import/SeparatorVote.h"
#include "app/import/TextSample.h"
#include "app/import/Utf8Text.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// The separator that a first line "sep=;" names, as spreadsheets read it; 0 without such a line.
/// @param behind gets where the next line starts
char namedSeparator(std::string_view text, std::size_t& behind)
{
  constexpr std::string_view word = "sep=";
  constexpr std::size_t longest = 16;
  const std::size_t end = text.find_first_of("\r\n");
  if (end == std::string_view::npos || end > longest)
    return 0;
  const std::string_view line = trimmed(text.substr(0, end), "\" ");
  if (line.substr(0, word.size()) != word)
    return 0;
  behind = text.find_first_not_of("\r\n", end);
  if (behind == std::string_view::npos)
    behind = text.size();
  const std::string_view named = line.substr(word.size());
  if (named.empty())
    return text.substr(0, end).find('\t') == std::string_view::npos ? ' ' : '\t';
  return named.front() == '\\' ? '\t' : named.front();
}

bool commasMayBeDecimal(const TextShape& shape, const ImportRequest& request)
{
  // Where a comma parts the fields it is inside a number only in quotes, and if the user says so.
  return request.decimalMark ? *request.decimalMark == ',' : shape.separator != ',';
}

/// A name in quotes without anything in them is one.
bool isBlankLine(const SampledRecord& record)
{
  return (record.fields.size() > 1 || !record.fields.front().empty()) &&
         std::all_of(record.fields.begin(), record.fields.end(),
                     [](const std::string& field) { return withoutOuterBlanks(field).empty(); });
}

} // namespace

Result<TextShape> sniffText(std::string_view text, const ImportRequest& request)
{
  TextShape shape;
  std::size_t skipped = 0;
  const char named = namedSeparator(text, skipped);
  const std::string_view table = text.substr(skipped);
  shape.comment = commentMarkOf(table);
  const char asked = request.separator.value_or(named);
  const SeparatorVote vote =
      asked != 0 ? votesFor(table, shape.comment, asked) : voteOnSeparator(table, shape.comment);
  shape.separator = vote.separator;
  shape.reasons.push_back(vote.reason);
  shape.decimalCommas = commasMayBeDecimal(shape, request);

  std::vector<SampledRecord> head = headOf(table, shape.separator, shape.comment);
  head.erase(std::remove_if(head.begin(), head.end(),
                            [&](const SampledRecord& record)
                            { return !record.isComment && isBlankLine(record); }),
             head.end());
  const std::string error =
      findHeader(head, placesOf(table, shape.separator, shape.comment), vote.fields, shape);
  if (!error.empty())
    return Result<TextShape>::failed(error);
  if (skipped > 0)
  {
    shape.dataBegin += skipped;
    ++shape.headerLine;
    ++shape.dataLine;
  }
  return shape;
}

} // namespace Talmesh::app

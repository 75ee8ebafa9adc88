#include "app/import/TextSample.h"

#include "app/import/AsciiText.h"
#include "app/import/DelimitedText.h"
#include "app/import/TableText.h"

#include <algorithm>
#include <array>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t headBytes = std::size_t{256} << 10;
/// A table of many columns has long lines.
constexpr std::size_t longestHead = std::size_t{16} << 20;
constexpr std::size_t fewestHeadLines = 4;
constexpr std::size_t mostHeadRecords = 200;
constexpr std::size_t places = 100;
constexpr std::size_t placeBytes = std::size_t{64} << 10;

std::size_t lineEnd(std::string_view text, std::size_t from)
{
  return std::min(text.find_first_of("\r\n", from), text.size());
}

std::size_t nextLine(std::string_view text, std::size_t from)
{
  const std::size_t end = lineEnd(text, from);
  const bool pair = end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n';
  return std::min(end + (pair ? 2 : 1), text.size());
}

bool startsWith(std::string_view text, std::string_view start)
{
  return !start.empty() && text.substr(0, start.size()) == start;
}

/// Cuts a record at the most columns that a table may have, and one, so that more are noticed.
std::vector<std::string> kept(const std::vector<std::string_view>& fields)
{
  const std::size_t most = std::min(fields.size(), mostColumns + 1);
  return {fields.begin(), fields.begin() + static_cast<std::ptrdiff_t>(most)};
}

/// What a line of comment says, as if it were one of the table.
void readComment(SampledRecord& record, std::string_view line, char separator, std::size_t mark)
{
  std::string_view words = line.substr(mark);
  record.isComment = true;
  record.isApart = words.empty() || words.front() == ' ' || words.front() == '\t';
  // Rows of marks underline nothing that is read.
  while (!words.empty() && words.front() == line.front())
    words.remove_prefix(1);
  DelimitedText reader(words, separator);
  std::vector<std::string_view> fields;
  if (reader.next(fields) && !reader.endedInsideQuotes())
    record.fields = kept(fields);
}

class HeadReader
{
public:
  HeadReader(std::string_view head_, char separator_, std::string_view mark_)
      : head(head_)
      , separator(separator_)
      , mark(mark_)
  {
  }

  bool next(SampledRecord& record)
  {
    while (at < head.size() && lineEnd(head, at) == at)
      step(nextLine(head, at));
    if (at == head.size())
      return false;
    record = {};
    record.line = line;
    record.begin = at;
    const std::size_t words = std::min(head.find_first_not_of(" \t", at), head.size());
    if (startsWith(head.substr(words), mark))
    {
      readComment(record, head.substr(words, lineEnd(head, words) - words), separator, mark.size());
      step(nextLine(head, at));
    }
    else if (!readRecord(record))
      return false;
    record.end = at;
    return true;
  }

private:
  bool readRecord(SampledRecord& record)
  {
    DelimitedText reader(head.substr(at), separator);
    std::vector<std::string_view> fields;
    reader.next(fields);
    record.fields = kept(fields);
    record.isOpen = reader.endedInsideQuotes();
    line += reader.followingLine() - 1;
    at += reader.position();
    return true;
  }

  void step(std::size_t to)
  {
    at = to;
    ++line;
  }

  std::string_view head;
  char separator;
  std::string_view mark;
  std::size_t at = 0;
  std::size_t line = 1;
};

} // namespace

std::string_view headText(std::string_view text)
{
  if (text.size() <= headBytes)
    return text;
  std::size_t end = 0;
  for (std::size_t lines = 0; end < text.size() && end < longestHead; ++lines)
  {
    const std::size_t next = nextLine(text, end);
    if (lines >= fewestHeadLines && next > headBytes)
      break;
    end = next;
  }
  return text.substr(0, std::min(end, longestHead));
}

std::vector<SampledRecord> headOf(std::string_view text, char separator, std::string_view mark)
{
  HeadReader reader(headText(text), separator, mark);
  std::vector<SampledRecord> records;
  SampledRecord record;
  while (records.size() < mostHeadRecords && reader.next(record))
    records.push_back(std::move(record));
  return records;
}

std::vector<SampledRecord> placesOf(std::string_view text, char separator, std::string_view mark)
{
  std::vector<SampledRecord> records;
  const std::size_t first = headText(text).size();
  if (first == text.size())
    return records;
  for (std::size_t place = 0; place < places; ++place)
  {
    const std::size_t from = first + (text.size() - first) / places * place;
    std::string_view part = text.substr(from, placeBytes);
    part.remove_prefix(nextLine(part, 0));
    // The line that the end of the part cuts tells nothing.
    part = part.substr(0, part.find_last_of("\r\n") + 1);
    HeadReader reader(part, separator, mark);
    SampledRecord record;
    if (!reader.next(record) || record.isComment)
      continue;
    record.line = 0;
    records.push_back(std::move(record));
  }
  return records;
}

std::string_view commentMarkOf(std::string_view text)
{
  constexpr std::array<std::string_view, 3> marks = {"#", "%", "//"};
  const std::string_view head = headText(text);
  std::array<std::size_t, marks.size()> marked = {};
  std::size_t lines = 0;
  for (std::size_t at = 0; at < head.size(); at = nextLine(head, at))
  {
    const std::string_view line = trimmed(head.substr(at, lineEnd(head, at) - at), " \t");
    lines += line.empty() ? 0 : 1;
    for (std::size_t i = 0; i < marks.size(); ++i)
      marked[i] += startsWith(line, marks[i]) ? 1 : 0;
  }
  const auto most = std::max_element(marked.begin(), marked.end());
  const std::size_t others = lines - *most;
  // Rows may be called #1, #2, ... below a header.
  const bool comments = *most > 0 && (others > 1 || (others == 1 && *most == 1));
  return comments ? marks[static_cast<std::size_t>(most - marked.begin())] : std::string_view();
}

} // namespace Talmesh::app

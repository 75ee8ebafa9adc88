#include "app/import/SeparatorVote.h"

#include "app/import/DateText.h"
#include "app/import/DelimitedText.h"
#include "app/import/NumberText.h"
#include "app/import/TextSample.h"
#include "app/import/TranslatedText.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <vector>

namespace Talmesh::app
{

namespace
{

/// In the order in which they go first.
constexpr char candidates[] = {'\t', ';', ',', '|', ' ', ':'};
constexpr std::size_t mostRecords = 200;

/// What the records of one number of fields hold, but for the first of them, which may be the
/// header.
struct Votes
{
  std::size_t records = 0;
  std::size_t numbers = 0;
  std::size_t texts = 0;

  double share() const
  {
    const std::size_t cells = numbers + texts;
    return cells == 0 ? 0.0 : static_cast<double>(numbers) / static_cast<double>(cells);
  }
};

struct Ballot
{
  std::map<std::size_t, Votes> byFields;
  std::size_t records = 0;

  void count(const std::vector<std::string_view>& fields, char separator)
  {
    if (isBlankRecord(fields))
      return;
    ++records;
    Votes& votes = byFields[fields.size()];
    if (++votes.records == 1)
      return;
    for (const std::string_view field : fields)
    {
      const NumberText::Kind kind = readNumber(field, separator != ',').kind;
      const bool number =
          kind == NumberText::Kind::Number || (kind == NumberText::Kind::Text && isDateText(field));
      votes.numbers += number ? 1 : 0;
      votes.texts += kind == NumberText::Kind::Text && !number ? 1 : 0;
    }
  }

  /// Lets a number of fields that one record has alone not count.
  void dropSingles()
  {
    for (auto entry = byFields.begin(); entry != byFields.end();)
      entry = entry->second.records == 1 ? byFields.erase(entry) : std::next(entry);
  }

  /// The number of fields that most records have, of equals the larger one.
  const std::pair<const std::size_t, Votes>* usual() const
  {
    const std::pair<const std::size_t, Votes>* most = nullptr;
    for (const auto& entry : byFields)
      if (!most || entry.second.records >= most->second.records)
        most = &entry;
    return most;
  }
};

Ballot ballotOf(std::string_view text, std::string_view comment, char separator)
{
  Ballot ballot;
  const std::string_view head = headText(text);
  DelimitedText reader(head, separator, comment);
  std::vector<std::string_view> fields;
  while (ballot.records < mostRecords && reader.next(fields))
    // A quote that the end of the head leaves open tells nothing.
    if (!reader.endedInsideQuotes() || head.size() == text.size())
      ballot.count(fields, separator);
  for (const SampledRecord& record : placesOf(text, separator, comment))
  {
    fields.assign(record.fields.begin(), record.fields.end());
    ballot.count(fields, separator);
  }
  return ballot;
}

bool isBetter(const std::pair<const std::size_t, Votes>& a,
              const std::pair<const std::size_t, Votes>& b)
{
  if (a.second.records != b.second.records)
    return a.second.records > b.second.records;
  if (a.second.share() != b.second.share())
    return a.second.share() > b.second.share();
  return a.first > b.first;
}

SeparatorVote voteOf(const std::pair<const std::size_t, Votes>& usual, char separator)
{
  SeparatorVote vote;
  vote.separator = separator;
  vote.fields = usual.first;
  vote.reason =
      withValues(translated("SeparatorVote", "%1 part %2 fields in %3 of the lines looked at"),
                 {separatorName(separator), std::to_string(usual.first),
                  std::to_string(usual.second.records)});
  return vote;
}

/// Whether every line but the first is one number, which may have a decimal comma. A comma in the
/// first line, too, parts names.
bool isOneColumnOfNumbers(const Ballot& ballot, std::string_view text, std::string_view comment)
{
  DelimitedText reader(headText(text), ',', comment);
  std::vector<std::string_view> first;
  bool any = reader.next(first);
  while (any && isBlankRecord(first))
    any = reader.next(first);
  if (any && first.size() > 1)
    return false;
  const auto* usual = ballot.usual();
  return usual && usual->first == 1 && usual->second.records == ballot.records &&
         usual->second.numbers > 0 && usual->second.texts == 0;
}

} // namespace

SeparatorVote voteOnSeparator(std::string_view text, std::string_view comment)
{
  SeparatorVote oneColumn;
  oneColumn.reason = translated("SeparatorVote", "nothing parts the lines: one column");
  if (isOneColumnOfNumbers(ballotOf(text, comment, ';'), text, comment))
    return oneColumn;
  Ballot best;
  SeparatorVote vote = oneColumn;
  for (const char candidate : candidates)
  {
    Ballot ballot = ballotOf(text, comment, candidate);
    // Lines that stay whole do not vote on where they are parted.
    ballot.byFields.erase(1);
    // Blanks, colons and bars stand in single lines of prose, too.
    if (candidate == ' ' || candidate == ':' || candidate == '|')
      ballot.dropSingles();
    if (!ballot.usual() || (best.usual() && !isBetter(*ballot.usual(), *best.usual())))
      continue;
    best = std::move(ballot);
    vote = voteOf(*best.usual(), candidate);
  }
  return vote;
}

SeparatorVote votesFor(std::string_view text, std::string_view comment, char separator)
{
  const Ballot ballot = ballotOf(text, comment, separator);
  SeparatorVote vote;
  vote.separator = separator;
  if (ballot.usual())
    vote.fields = ballot.usual()->first;
  vote.reason = withValues(translated("SeparatorVote", "%1 part the fields, as was asked for"),
                           {separatorName(separator)});
  return vote;
}

std::string separatorName(char separator)
{
  switch (separator)
  {
  case '\t':
    return translated("SeparatorVote", "tabs");
  case ';':
    return translated("SeparatorVote", "semicolons");
  case ',':
    return translated("SeparatorVote", "commas");
  case '|':
    return translated("SeparatorVote", "bars");
  case ' ':
    return translated("SeparatorVote", "blanks");
  case ':':
    return translated("SeparatorVote", "colons");
  default:
    return std::string(1, separator);
  }
}

} // namespace Talmesh::app

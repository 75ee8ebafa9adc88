#include "app/import/ColumnRoles.h"

#include "app/import/AsciiText.h"
#include "app/import/Utf8Text.h"
#include "external/ColumnNames.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace Talmesh::app
{

namespace
{

constexpr std::string_view blanks = " \t\r\n";

/// The text without blanks and line ends around it.
std::string_view bare(std::string_view text)
{
  return withoutOuterBlanks(trimmed(text, blanks));
}

std::string lowerCase(std::string_view text)
{
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), toLower);
  return lower;
}

template <std::size_t N>
bool isOneOf(std::string_view text, const std::array<std::string_view, N>& words)
{
  return std::find(words.begin(), words.end(), text) != words.end();
}

bool isTimeUnit(std::string_view text)
{
  constexpr std::array<std::string_view, 24> units = {
      "s",    "sec",   "secs", "second", "seconds", "ms",   "us",    "ns",
      "m",    "min",   "mins", "minute", "minutes", "h",    "hr",    "hrs",
      "hour", "hours", "d",    "day",    "days",    "week", "weeks", "years"};
  return isOneOf(text, units);
}

/// A name cut into what stands before brackets or parentheses at its end, and what stands in them.
struct BracketedName
{
  std::string_view name;
  std::string_view inside;
};

BracketedName bracketedName(std::string_view name)
{
  if (name.empty() || (name.back() != ']' && name.back() != ')'))
    return {name, {}};
  const std::size_t open = name.find_last_of(name.back() == ']' ? '[' : '(');
  if (open == std::string_view::npos)
    return {name, {}};
  const std::string_view inside = name.substr(open + 1, name.size() - open - 2);
  return {bare(name.substr(0, open)), bare(inside)};
}

/// Cuts a unit of time behind the last "_", "/", ".", "," or blank.
std::string_view withoutTimeUnit(std::string_view name)
{
  const std::size_t cut = name.find_last_of("_/., ");
  if (cut == std::string_view::npos || !isTimeUnit(bare(name.substr(cut + 1))))
    return name;
  return trimmed(name.substr(0, cut), " \t\r\n/,");
}

std::string withoutSeparators(std::string_view name)
{
  std::string joined(name);
  joined.erase(std::remove_if(joined.begin(), joined.end(),
                              [](char c) { return c == '_' || c == '-' || c == ' ' || c == '.'; }),
               joined.end());
  return joined;
}

/// The length of the word time or t that a name starts with, 0 without one.
std::size_t leadingTimeWord(const std::string& name)
{
  const std::string lower = lowerCase(name);
  for (const std::string_view word : {"time", "t"})
    if (lower.compare(0, word.size(), word) == 0 &&
        lower.find_first_of("abcdefghijklmnopqrstuvwxyz", word.size()) != word.size())
      return word.size();
  return 0;
}

constexpr std::array<std::string_view, 14> timeWords = {
    "time",           "t",    "times",     "timepoint", "timepoints", "elapsedtime", "simtime",
    "simulationtime", "zeit", "zeitpunkt", "temps",     "tiempo",     "tijd",        "timestamp"};

/// A name of time that needs no unit, or has it in brackets.
bool isWholeTimeName(std::string_view name)
{
  const std::string lower = lowerCase(bare(name));
  return isTimeName(name) && isOneOf(withoutSeparators(bracketedName(lower).name), timeWords);
}

/// The place of a typed column among those that could be the time, the smallest being the time. The
/// plots put "Time [s]" on the x axis before any other.
int rankOfTime(const ColumnHeader& header)
{
  constexpr int none = 4;
  if (!header.typed || header.kind != TimeOrValue)
    return none;
  if (header.name == timeItemName)
    return 0;
  if (isTimeName(header.name))
    return 1;
  if (header.name.find("Time") != std::string::npos)
    return 2;
  return labelsTime(header.name) ? 3 : none;
}

int timeColumnAmong(const std::vector<ColumnHeader>& headers)
{
  const auto typed = std::min_element(headers.begin(), headers.end(),
                                      [](const ColumnHeader& a, const ColumnHeader& b)
                                      { return rankOfTime(a) < rankOfTime(b); });
  const bool none = typed == headers.end() || rankOfTime(*typed) == rankOfTime(ColumnHeader());
  auto plain = std::find_if(headers.begin(), headers.end(),
                            [](const ColumnHeader& header)
                            { return !header.typed && isWholeTimeName(header.name); });
  // What a unit makes of other names may be a parameter: t_min.
  if (plain == headers.end())
    plain = std::find_if(headers.begin(), headers.end(),
                         [](const ColumnHeader& header)
                         { return !header.typed && isTimeName(header.name); });
  const auto found = none ? plain : typed;
  return found == headers.end() ? -1 : static_cast<int>(found - headers.begin());
}

std::vector<int> runCandidatesAmong(const std::vector<ColumnHeader>& headers)
{
  std::vector<int> candidates;
  for (const bool typed : {true, false})
    for (std::size_t i = 0; i < headers.size(); ++i)
    {
      const ColumnHeader& header = headers[i];
      const bool mayBe = header.typed == typed && (!typed || header.kind == TimeOrValue);
      if (mayBe && isRunName(header.name))
        candidates.push_back(static_cast<int>(i));
    }
  return candidates;
}

/// Plain headers have no kind yet: they are told apart from typed ones by one that does not exist.
void makeNamesUnique(std::vector<ColumnHeader>& headers)
{
  constexpr auto noKind = static_cast<DataType>(-1);
  std::vector<TypedConcentrationName> items;
  for (const ColumnHeader& header : headers)
    items.emplace_back(header.typed ? header.kind : noKind, header.name);
  std::vector<TypedConcentrationName*> all;
  for (TypedConcentrationName& item : items)
    all.push_back(&item);
  makeLabelsUnique(all);
  for (std::size_t i = 0; i < headers.size(); ++i)
    headers[i].name = items[i].second;
}

} // namespace

ColumnHeader readHeader(std::string_view text)
{
  const std::string_view header = bare(text);
  for (int value = Complex; value <= UndefinedType; ++value)
  {
    const auto kind = static_cast<DataType>(value);
    const std::string start = dataTypeLabel(kind) + ": ";
    if (header.size() > start.size() && header.substr(0, start.size()) == start)
      return {kind, std::string(header.substr(start.size())), true};
  }
  return {UndefinedType, std::string(header), false};
}

std::string_view withoutCommentMark(std::string_view name)
{
  const std::string_view marked = bare(name);
  if (marked.substr(0, 1) != "#")
    return name;
  const std::string_view rest = bare(marked.substr(1));
  const bool apart = !rest.empty() && rest.data() != marked.data() + 1;
  return apart || isTimeName(rest) || isRunName(rest) ? rest : name;
}

bool isTimeName(std::string_view name)
{
  const std::string_view given = bare(name);
  const std::string lower = lowerCase(given);
  const BracketedName cut = bracketedName(lower);
  // A capital T is a temperature unless its unit says otherwise.
  if (given.substr(0, 1) == "T" && leadingTimeWord(lower) == 1)
    return cut.name == "t" && isTimeUnit(cut.inside);
  return isOneOf(withoutSeparators(cut.name), timeWords) ||
         isOneOf(withoutSeparators(withoutTimeUnit(cut.name)), timeWords);
}

std::string plottedTimeName(const std::string& name)
{
  if (labelsTime(name))
    return name;
  const std::size_t word = leadingTimeWord(name);
  return word > 0 ? "Time" + name.substr(word) : "Time (" + name + ")";
}

bool isRunName(std::string_view name)
{
  constexpr std::array<std::string_view, 23> words = {"run",         "runs",
                                                      "trajectory",  "traj",
                                                      "replicate",   "rep",
                                                      "sim",         "simulation",
                                                      "realization", "realisation",
                                                      "subject",     "lauf",
                                                      "durchlauf",   "versuch",
                                                      "replikat",    "trajektorie",
                                                      "proband",     "essai",
                                                      "replica",     "corrida",
                                                      "simulacion",  "simulaci\xC3\xB3n",
                                                      "patient"};
  constexpr std::array<std::string_view, 8> endings = {"",       "id", "index", "idx",
                                                       "number", "nr", "no",    "#"};
  const std::string joined = withoutSeparators(lowerCase(bare(name)));
  for (const std::string_view word : words)
    if (joined.size() >= word.size() && joined.compare(0, word.size(), word) == 0 &&
        isOneOf(std::string_view(joined).substr(word.size()), endings))
      return true;
  return false;
}

void makeLabelsUnique(const std::vector<TypedConcentrationName*>& items)
{
  std::set<TypedConcentrationName> taken;
  for (const TypedConcentrationName* item : items)
    taken.insert(*item);
  std::map<TypedConcentrationName, int> seen;
  for (TypedConcentrationName* item : items)
  {
    int& count = seen[*item];
    if (++count == 1)
      continue;
    TypedConcentrationName renamed(item->first, item->second + " (" + std::to_string(count) + ")");
    while (!taken.insert(renamed).second)
      renamed.second = item->second + " (" + std::to_string(++count) + ")";
    *item = renamed;
  }
}

ColumnRoles assignRoles(const std::vector<std::string>& headers)
{
  ColumnRoles roles;
  for (const std::string& text : headers)
  {
    ColumnHeader header = readHeader(roles.headers.empty() ? withoutCommentMark(text) : text);
    header.unnamed = header.name.empty();
    if (header.unnamed)
      header.name = "Column " + std::to_string(roles.headers.size() + 1);
    roles.anyTyped = roles.anyTyped || header.typed;
    roles.headers.push_back(std::move(header));
  }
  roles.timeColumn = timeColumnAmong(roles.headers);
  roles.runCandidates = runCandidatesAmong(roles.headers);
  roles.runColumn = roles.runCandidates.empty() ? -1 : roles.runCandidates.front();
  makeNamesUnique(roles.headers);
  return roles;
}

std::string shownName(const std::string& columnName)
{
  return readHeader(columnName).name;
}

} // namespace Talmesh::app

#include "app/ColumnRoles.h"

#include "app/AsciiText.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace Talmesh::app
{

namespace
{

constexpr std::string_view blanks = " \t\r\n";

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

/// Cuts a unit in brackets or parentheses from the end of a name.
std::string_view withoutBracketedUnit(std::string_view name)
{
  if (name.empty() || (name.back() != ']' && name.back() != ')'))
    return name;
  const std::size_t open = name.find_last_of(name.back() == ']' ? '[' : '(');
  return open == std::string_view::npos ? name : trimmed(name.substr(0, open), blanks);
}

/// Cuts a unit of time behind the last "_", "/", "." or blank.
std::string_view withoutTimeUnit(std::string_view name)
{
  constexpr std::array<std::string_view, 24> units = {
      "s",    "sec",   "secs", "second", "seconds", "ms",   "us",    "ns",
      "m",    "min",   "mins", "minute", "minutes", "h",    "hr",    "hrs",
      "hour", "hours", "d",    "day",    "days",    "week", "weeks", "years"};
  const std::size_t cut = name.find_last_of("_/. ");
  if (cut == std::string_view::npos || !isOneOf(trimmed(name.substr(cut + 1), blanks), units))
    return name;
  return trimmed(name.substr(0, cut), blanks);
}

std::string withoutSeparators(std::string_view name)
{
  std::string joined(name);
  joined.erase(std::remove_if(joined.begin(), joined.end(),
                              [](char c) { return c == '_' || c == '-' || c == ' ' || c == '.'; }),
               joined.end());
  return joined;
}

/// The x columns that the plots know by parts of their name, beside the names of time.
bool isTypedTimeName(const std::string& name)
{
  return isTimeName(name) || name.find("Time") != std::string::npos ||
         name.find("Value") != std::string::npos || name.find("Period") != std::string::npos;
}

bool namesTime(const ColumnHeader& header)
{
  if (header.typed)
    return header.kind == TimeOrValue && isTypedTimeName(header.name);
  return isTimeName(header.name);
}

bool namesRuns(const ColumnHeader& header)
{
  return (!header.typed || header.kind == TimeOrValue) && isRunName(header.name);
}

template <typename Predicate>
int firstColumn(const std::vector<ColumnHeader>& headers, Predicate wanted)
{
  for (const bool typed : {true, false})
  {
    const auto found = std::find_if(headers.begin(), headers.end(),
                                    [&](const ColumnHeader& header)
                                    { return header.typed == typed && wanted(header); });
    if (found != headers.end())
      return static_cast<int>(found - headers.begin());
  }
  return -1;
}

void makeUnique(std::vector<ColumnHeader>& headers)
{
  std::set<TypedConcentrationName> taken;
  for (const ColumnHeader& header : headers)
    taken.emplace(header.kind, header.name);
  std::map<TypedConcentrationName, int> seen;
  for (ColumnHeader& header : headers)
  {
    int& count = seen[{header.kind, header.name}];
    if (++count == 1)
      continue;
    std::string name = header.name + " (" + std::to_string(count) + ")";
    while (!taken.emplace(header.kind, name).second)
      name = header.name + " (" + std::to_string(++count) + ")";
    header.name = name;
  }
}

} // namespace

ColumnHeader readHeader(std::string_view text)
{
  const std::string_view header = trimmed(text, blanks);
  for (int value = Complex; value <= UndefinedType; ++value)
  {
    const auto kind = static_cast<DataType>(value);
    const std::string start = dataTypeLabel(kind) + ": ";
    if (header.size() > start.size() && header.substr(0, start.size()) == start)
      return {kind, std::string(header.substr(start.size())), true};
  }
  return {UndefinedType, std::string(header), false};
}

bool isTimeName(std::string_view name)
{
  constexpr std::array<std::string_view, 6> words = {"time",      "t",          "times",
                                                     "timepoint", "timepoints", "elapsedtime"};
  // A capital T alone is a temperature.
  const std::string lower = lowerCase(trimmed(name, blanks));
  if (trimmed(name, blanks).substr(0, 1) == "T" && lower.compare(0, 2, "ti") != 0)
    return false;
  const std::string_view bare = withoutBracketedUnit(lower);
  return isOneOf(withoutSeparators(bare), words) ||
         isOneOf(withoutSeparators(withoutTimeUnit(bare)), words);
}

bool isRunName(std::string_view name)
{
  constexpr std::array<std::string_view, 11> words = {
      "run", "runs",       "trajectory",  "traj",        "replicate", "rep",
      "sim", "simulation", "realization", "realisation", "subject"};
  constexpr std::array<std::string_view, 7> endings = {"",       "id", "index", "idx",
                                                       "number", "nr", "no"};
  const std::string joined = withoutSeparators(lowerCase(trimmed(name, blanks)));
  for (const std::string_view word : words)
    if (joined.size() >= word.size() && joined.compare(0, word.size(), word) == 0 &&
        isOneOf(std::string_view(joined).substr(word.size()), endings))
      return true;
  return false;
}

ColumnRoles assignRoles(const std::vector<std::string>& headers)
{
  ColumnRoles roles;
  for (const std::string& text : headers)
  {
    ColumnHeader header = readHeader(text);
    if (header.name.empty())
      header.name = "Column " + std::to_string(roles.headers.size() + 1);
    roles.anyTyped = roles.anyTyped || header.typed;
    roles.headers.push_back(std::move(header));
  }
  roles.timeColumn = firstColumn(roles.headers, namesTime);
  roles.runColumn = firstColumn(roles.headers, namesRuns);
  makeUnique(roles.headers);
  return roles;
}

} // namespace Talmesh::app

#include "app/import/RunSeriesName.h"

#include "app/import/AsciiText.h"
#include "app/import/NumberText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace Talmesh::app
{

namespace
{

constexpr std::string_view joints = "_-.: /#";

bool isDigit(char c)
{
  return c >= '0' && c <= '9';
}

bool isLetter(char c)
{
  return toLower(c) >= 'a' && toLower(c) <= 'z';
}

/// The longest first, because some begin others.
constexpr std::array<std::string_view, 24> runWords = {
    "trajectory", "realization", "realisation", "simulation", "replicate", "patient",
    "subject",    "particle",    "sample",      "animal",     "mouse",     "trace",
    "trial",      "sweep",       "traj",        "cell",       "draw",      "path",
    "well",       "run",         "sim",         "rep",        "roi",       "lauf"};

/// The word for runs that a text ends with, at the start of the text or behind something that is
/// no letter; empty without one.
std::string_view runWordAtEnd(std::string_view text)
{
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), toLower);
  for (const std::string_view word : runWords)
  {
    if (lower.size() < word.size() ||
        lower.compare(lower.size() - word.size(), word.size(), word) != 0)
      continue;
    const std::size_t at = lower.size() - word.size();
    if (at == 0 || !isLetter(text[at - 1]))
      return text.substr(at);
  }
  return {};
}

bool readRun(std::string_view digits, long long& run)
{
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), run);
  return read.ec == std::errc() && read.ptr == digits.data() + digits.size();
}

/// "run3_X" and "run 3: X".
std::optional<RunSeriesName> readRunFirst(std::string_view name)
{
  const std::size_t digits = name.find_first_of("0123456789");
  if (digits == std::string_view::npos || digits == 0)
    return std::nullopt;
  const std::string_view word = trimmed(name.substr(0, digits), joints);
  const std::size_t end = std::min(name.find_first_not_of("0123456789", digits), name.size());
  const std::string_view item = trimmed(name.substr(end), joints);
  RunSeriesName series;
  if (item.empty() || joints.find(name[end]) == std::string_view::npos ||
      runWordAtEnd(word).size() != word.size() ||
      !readRun(name.substr(digits, end - digits), series.run))
    return std::nullopt;
  series.item = std::string(item);
  series.isClear = true;
  return series;
}

} // namespace

std::optional<RunSeriesName> readRunSeriesName(std::string_view given)
{
  const std::string_view name = withoutOuterBlanks(given);
  std::size_t digits = name.size();
  while (digits > 0 && isDigit(name[digits - 1]))
    --digits;
  RunSeriesName series;
  if (digits == name.size() || !readRun(name.substr(digits), series.run))
    return readRunFirst(name);
  const std::string_view front = trimmed(name.substr(0, digits), joints);
  const std::string_view word = runWordAtEnd(front);
  series.isClear = front.empty() || !word.empty();
  series.isApart = front.size() < digits;
  series.item = std::string(trimmed(front.substr(0, front.size() - word.size()), joints));
  // A number with a sign or a fraction in front is no number of a run.
  if (digits > 0 && (front.empty() || isDigit(front.back())))
    return std::nullopt;
  return series;
}

std::optional<ParameterSeriesName> readParameterSeriesName(std::string_view given)
{
  const std::size_t sign = given.rfind('=');
  if (sign == std::string_view::npos)
    return std::nullopt;
  const std::string_view parameter = withoutOuterBlanks(given.substr(0, sign));
  const NumberText number = readNumber(given.substr(sign + 1), true);
  if (parameter.empty() || number.kind != NumberText::Kind::Number)
    return std::nullopt;
  return ParameterSeriesName{std::string(parameter), number.value};
}

} // namespace Talmesh::app

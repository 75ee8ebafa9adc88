#include "app/import/UnitText.h"

#include "app/import/AsciiText.h"
#include "app/import/NumberText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <array>

namespace Talmesh::app
{

namespace
{

constexpr std::array<std::string_view, 62> units = {"s",
                                                    "sec",
                                                    "ms",
                                                    "us",
                                                    "ns",
                                                    "min",
                                                    "h",
                                                    "hr",
                                                    "hour",
                                                    "hours",
                                                    "d",
                                                    "day",
                                                    "days",
                                                    "week",
                                                    "weeks",
                                                    "year",
                                                    "years",
                                                    "seconds",
                                                    "g",
                                                    "mg",
                                                    "ug",
                                                    "ng",
                                                    "kg",
                                                    "l",
                                                    "ml",
                                                    "ul",
                                                    "m",
                                                    "mm",
                                                    "um",
                                                    "nm",
                                                    "cm",
                                                    "km",
                                                    "mol",
                                                    "mmol",
                                                    "umol",
                                                    "nmol",
                                                    "um/s",
                                                    "nm/s",
                                                    "mg/l",
                                                    "ng/ml",
                                                    "ug/ml",
                                                    "mol/l",
                                                    "mmol/l",
                                                    "umol/l",
                                                    "1/s",
                                                    "1/h",
                                                    "1/min",
                                                    "k",
                                                    "pa",
                                                    "v",
                                                    "mv",
                                                    "a",
                                                    "ma",
                                                    "hz",
                                                    "%",
                                                    "-",
                                                    "au",
                                                    "a.u.",
                                                    "counts",
                                                    "cells",
                                                    "molecules",
                                                    "\xC2\xB0"
                                                    "c"};

constexpr std::array<std::string_view, 8> limits = {"blq",  "bloq", "bql",  "lloq",
                                                    "uloq", "lod",  "blod", "bdl"};

std::string lowerCase(std::string_view text)
{
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), toLower);
  // The letter mu and the sign micro are written for u.
  for (const std::string_view mu : {"\xC2\xB5", "\xCE\xBC"})
    for (std::size_t at = 0; (at = lower.find(mu, at)) != std::string::npos;)
      lower.replace(at, mu.size(), "u");
  return lower;
}

template <std::size_t N>
bool isOneOf(std::string_view text, const std::array<std::string_view, N>& words)
{
  return std::find(words.begin(), words.end(), text) != words.end();
}

/// Blanks that no line breaks at, and narrow ones, written as others.
std::string withPlainBlanks(std::string_view text)
{
  std::string plain(text);
  for (const std::string_view blank : {"\xC2\xA0", "\xE2\x80\xAF", "\xE2\x80\x89"})
    for (std::size_t at = 0; (at = plain.find(blank, at)) != std::string::npos;)
      plain.replace(at, blank.size(), " ");
  return plain;
}

bool isInBrackets(std::string_view text)
{
  return text.size() > 1 && ((text.front() == '[' && text.back() == ']') ||
                             (text.front() == '(' && text.back() == ')'));
}

} // namespace

bool isUnit(std::string_view text)
{
  const std::string_view word = withoutOuterBlanks(text);
  return isInBrackets(word) || isOneOf(lowerCase(word), units);
}

std::string withUnit(const std::string& name, std::string_view unit)
{
  std::string_view word = withoutOuterBlanks(unit);
  if (isInBrackets(word))
    word = withoutOuterBlanks(word.substr(1, word.size() - 2));
  if (word.empty() || word == "-" || name.find('[') != std::string::npos)
    return name;
  return std::string(withoutOuterBlanks(name)) + " [" + std::string(word) + ']';
}

bool isCensored(std::string_view text)
{
  std::string_view word = withoutOuterBlanks(text);
  const bool compared = !word.empty() && (word.front() == '<' || word.front() == '>');
  if (compared)
  {
    word.remove_prefix(1);
    if (!word.empty() && word.front() == '=')
      word.remove_prefix(1);
    word = withoutOuterBlanks(word);
  }
  return isOneOf(lowerCase(word), limits) ||
         (compared && readNumber(word, true).kind == NumberText::Kind::Number);
}

bool isPercentage(std::string_view text)
{
  const std::string_view word = withoutOuterBlanks(text);
  return word.size() > 1 && word.back() == '%' &&
         readNumber(word.substr(0, word.size() - 1), true).kind == NumberText::Kind::Number;
}

bool looksLikeThousands(std::string_view text)
{
  constexpr std::size_t group = 3;
  const std::string plain = withPlainBlanks(text);
  std::string_view rest = trimmed(withoutOuterBlanks(plain), "+-");
  const auto digits = [&rest]
  {
    const std::size_t end = std::min(rest.find_first_not_of("0123456789"), rest.size());
    rest.remove_prefix(end);
    return end;
  };
  const std::size_t first = digits();
  if (first == 0 || first > group || rest.empty() ||
      std::string_view(",.' ").find(rest.front()) == std::string_view::npos)
    return false;
  const char mark = rest.front();
  while (!rest.empty() && rest.front() == mark)
  {
    rest.remove_prefix(1);
    if (digits() != group)
      return false;
  }
  if (rest.empty())
    return true;
  // A decimal mark of the other kind.
  if (rest.front() != '.' && rest.front() != ',')
    return false;
  rest.remove_prefix(1);
  digits();
  return rest.empty();
}

} // namespace Talmesh::app

#include "app/import/NumberText.h"

#include "app/import/AsciiText.h"
#include "app/import/MissingValue.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string>

namespace Talmesh::app
{

namespace
{

/// The longest text that a number of another notation than that of C++ is looked for in.
constexpr std::size_t longestNumber = 400;
constexpr std::string_view unicodeMinus = "\xE2\x88\x92";

bool isDigit(char c)
{
  return c >= '0' && c <= '9';
}

bool sameIgnoringCase(std::string_view text, std::string_view lowerCase)
{
  return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                    [](char a, char b) { return toLower(a) == b; });
}

bool isMissingWord(std::string_view text)
{
  constexpr std::array<std::string_view, 9> words = {"na",   "n/a",  "nan", "-nan", "null",
                                                     "none", "#n/a", "-",   "."};
  return std::any_of(words.begin(), words.end(),
                     [text](std::string_view word) { return sameIgnoringCase(text, word); });
}

/// The position of the D of an exponent as Fortran writes it, or none.
std::size_t fortranExponent(std::string_view text)
{
  const std::size_t d = text.find_first_of("dD");
  if (d == std::string_view::npos || d == 0 || d + 1 == text.size())
    return std::string_view::npos;
  const char before = text[d - 1];
  const char after = text[d + 1];
  const bool exponent = (isDigit(before) || before == '.' || before == ',') &&
                        (isDigit(after) || after == '-' || after == '+');
  return exponent ? d : std::string_view::npos;
}

/// Writes the minus of typesetters and the exponents of Fortran as C++ reads them.
/// @param changed keeps a text that is not the one given.
std::string_view asProgramsWrite(std::string_view text, std::string& changed)
{
  if (text.size() <= longestNumber && text.find(unicodeMinus) != std::string_view::npos)
  {
    changed = text;
    for (std::size_t at = 0; (at = changed.find(unicodeMinus, at)) != std::string::npos;)
      changed.replace(at, unicodeMinus.size(), 1, '-');
    text = changed;
  }
  const std::size_t d = fortranExponent(text);
  if (d == std::string_view::npos)
    return text;
  changed = std::string(text);
  changed[d] = 'e';
  return changed;
}

/// The power of ten that a number's exponent adds, held within what no text is long enough for.
long long exponentOf(std::string_view text)
{
  constexpr long long most = std::numeric_limits<long long>::max() / 2;
  const std::size_t e = text.find_first_of("eE");
  if (e == std::string_view::npos)
    return 0;
  std::string_view digits = text.substr(e + 1);
  const bool negative = digits.front() == '-';
  if (negative || digits.front() == '+')
    digits.remove_prefix(1);
  long long exponent = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
  if (read.ec == std::errc::result_out_of_range || exponent > most)
    exponent = most;
  return negative ? -exponent : exponent;
}

/// What a well-formed number outside the range of a double stands for: whether it is too large or
/// too small is told by the power of ten of its first digit that is not 0.
double outOfRange(std::string_view text)
{
  const bool negative = text.front() == '-';
  const std::string_view digits =
      text.substr(negative ? 1 : 0, text.find_first_of("eE") - negative);
  const std::size_t first = digits.find_first_of("123456789");
  const std::size_t point = std::min(digits.find('.'), digits.size());
  const long long place = static_cast<long long>(point) - static_cast<long long>(first);
  const bool large = first != std::string_view::npos && place + exponentOf(text) > 0;
  const double size = large ? std::numeric_limits<double>::infinity() : 0.0;
  return negative ? -size : size;
}

/// What older C libraries of Windows write for numbers that are none: 1.#QNAN, -1.#IND, 1.#INF.
bool parseMarked(std::string_view text, double& value)
{
  const bool negative = !text.empty() && text.front() == '-';
  text.remove_prefix(negative ? 1 : 0);
  constexpr std::string_view start = "1.#";
  if (text.substr(0, start.size()) != start)
    return false;
  text.remove_prefix(start.size());
  // Zeros behind it fill the digits that were asked for.
  while (!text.empty() && text.back() == '0')
    text.remove_suffix(1);
  const bool infinite = sameIgnoringCase(text, "inf");
  if (!infinite && !sameIgnoringCase(text, "qnan") && !sameIgnoringCase(text, "snan") &&
      !sameIgnoringCase(text, "nan") && !sameIgnoringCase(text, "ind"))
    return false;
  const double size = infinite ? std::numeric_limits<double>::infinity() : missing;
  value = negative ? -size : size;
  return true;
}

bool parse(std::string_view text, double& value)
{
  if (text.front() == '+')
  {
    text.remove_prefix(1);
    if (text.empty() || text.front() == '-')
      return false;
  }
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (end != text.data() + text.size() || error == std::errc::invalid_argument)
    return false;
  if (error == std::errc::result_out_of_range)
    value = outOfRange(text);
  return true;
}

NumberText readAsPrograms(std::string_view text, bool commas)
{
  NumberText number{NumberText::Kind::Missing, missing};
  if (text.empty() || isMissingWord(text))
    return number;
  number.kind = NumberText::Kind::Text;
  double value = missing;
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos)
  {
    if (parse(text, value))
      number = {NumberText::Kind::Number, value, text.find('.') != std::string_view::npos};
    else if (parseMarked(text, value))
      number = {std::isnan(value) ? NumberText::Kind::Missing : NumberText::Kind::Number, value};
  }
  else if (commas && text.size() <= longestNumber && text.find('.') == std::string_view::npos)
  {
    std::string point(text);
    point[comma] = '.';
    if (parse(point, value))
      number = {NumberText::Kind::Number, value, false, true};
  }
  return number;
}

} // namespace

NumberText readNumber(std::string_view cell, bool commas)
{
  const std::string_view text = withoutOuterBlanks(cell);
  const NumberText number = readAsPrograms(text, commas);
  if (number.kind != NumberText::Kind::Text)
    return number;
  std::string changed;
  const std::string_view rewritten = asProgramsWrite(text, changed);
  return rewritten == text ? number : readAsPrograms(rewritten, commas);
}

} // namespace Talmesh::app

#include "app/NumberText.h"

#include "app/AsciiText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string>

namespace Talmesh::app
{

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();
/// The longest text that a number with a decimal comma is looked for in.
constexpr std::size_t longestNumber = 400;

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

/// What a well-formed number outside the range of a double stands for.
double outOfRange(std::string_view text)
{
  const double sign = text.front() == '-' ? -1.0 : 1.0;
  const std::size_t exponent = text.find_first_of("eE");
  const bool negativeExponent =
      exponent != std::string_view::npos && exponent + 1 < text.size() && text[exponent + 1] == '-';
  const std::size_t leading = text.find_first_of("0123456789.");
  const bool fraction = exponent == std::string_view::npos && leading != std::string_view::npos &&
                        (text[leading] == '0' || text[leading] == '.');
  return negativeExponent || fraction ? sign * 0.0 : sign * std::numeric_limits<double>::infinity();
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

} // namespace

NumberText readNumber(std::string_view cell, bool commas)
{
  const std::string_view text = trimmed(cell, " \t\v\f");
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

} // namespace Talmesh::app

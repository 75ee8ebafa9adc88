#ifndef OptionValues_h
#define OptionValues_h

#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

/// How values of options are read.
namespace Talmesh::app
{

/// The parts of a text between commas, also empty ones.
inline std::vector<std::string> splitAtCommas(std::string_view text)
{
  std::vector<std::string> parts;
  for (;;)
  {
    const std::size_t comma = text.find(',');
    parts.emplace_back(text.substr(0, comma));
    if (comma == std::string_view::npos)
      return parts;
    text.remove_prefix(comma + 1);
  }
}

/// Reads a whole text as a number between two bounds.
template <typename Number>
bool readNumber(std::string_view text, Number smallest, Number largest, Number& number)
{
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && number >= smallest &&
         number <= largest;
}

/// Reads "WIDTHxHEIGHT".
template <typename Number>
bool readSize(std::string_view text, Number smallest, Number largest, Number& width, Number& height)
{
  const std::size_t cross = text.find('x');
  return cross != std::string_view::npos &&
         readNumber(text.substr(0, cross), smallest, largest, width) &&
         readNumber(text.substr(cross + 1), smallest, largest, height);
}

} // namespace Talmesh::app

#endif

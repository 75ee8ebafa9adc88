#ifndef AsciiText_h
#define AsciiText_h

#include <cstddef>
#include <string_view>

/// Text handled byte by byte, so that UTF-8 passes through and no locale has a say.
namespace Talmesh::app
{

/// `text` without the characters of `blanks` at either end.
inline std::string_view trimmed(std::string_view text, std::string_view blanks)
{
  const std::size_t begin = text.find_first_not_of(blanks);
  if (begin == std::string_view::npos)
    return {};
  return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

/// The small letter for A to Z; any other character as it is.
inline char toLower(char c)
{
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace Talmesh::app

#endif

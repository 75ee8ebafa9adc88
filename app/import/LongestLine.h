#ifndef LongestLine_h
#define LongestLine_h

#include <cstddef>
#include <string_view>

namespace Talmesh::app
{

/// A text whose first line is longer is no table: as many columns as are read, with names of
/// hundreds of letters each, take less.
inline constexpr std::size_t longestFirstLine = std::size_t{8} << 20U;

inline bool hasEndlessLine(std::string_view text)
{
  return text.size() >= longestFirstLine &&
         text.substr(0, longestFirstLine).find_first_of("\r\n") == std::string_view::npos;
}

} // namespace Talmesh::app

#endif

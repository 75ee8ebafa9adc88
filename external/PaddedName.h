#ifndef PaddedName_h
#define PaddedName_h

#include <cstddef>
#include <string>

namespace Talmesh
{
/// `position`, at least 0 and below `positions`, with as many zeros in front as make the names of
/// all positions equally long, so that the order of the names is that of the positions.
inline std::string paddedName(long long position, long long positions)
{
  const std::size_t width = std::to_string(positions - 1).size();
  const std::string digits = std::to_string(position);
  return std::string(width - digits.size(), '0') + digits;
}
} // namespace Talmesh

#endif

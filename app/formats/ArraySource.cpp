#include "app/formats/ArraySource.h"

#include <limits>

namespace Talmesh::app
{

std::size_t numberOfValues(const std::vector<std::size_t>& shape)
{
  constexpr std::size_t most = std::numeric_limits<std::size_t>::max();
  std::size_t count = 1;
  for (const std::size_t extent : shape)
  {
    if (extent != 0 && count > most / extent)
      return most;
    count *= extent;
  }
  return count;
}

std::string shapeText(const std::vector<std::size_t>& shape)
{
  std::string text;
  for (const std::size_t extent : shape)
    text += (text.empty() ? "" : " x ") + std::to_string(extent);
  return text.empty() ? "1" : text;
}

} // namespace Talmesh::app

#include "vtk/AxisNames.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace Talmesh
{

namespace
{

using Measure = std::function<float(const std::string&)>;

/// Pixels between neighbours, and beside the page's edges.
constexpr float gap = 6.0F;
constexpr const char* leftOut = "...";

/// Bytes that continue a character of UTF-8 begin with the bits 10.
bool continues(char byte)
{
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// A text without so many bytes of its middle, or a few more that belong to the same characters.
std::string withoutMiddle(const std::string& text, std::size_t bytes)
{
  std::size_t first = (text.size() - bytes) / 2;
  std::size_t last = first + bytes;
  while (first > 0 && continues(text[first]))
    --first;
  while (last < text.size() && continues(text[last]))
    ++last;
  return text.substr(0, first) + leftOut + text.substr(last);
}

std::string shortened(const std::string& text, float room, const Measure& widthOf)
{
  if (widthOf(text) <= room)
    return text;
  for (std::size_t bytes = 1; bytes < text.size(); ++bytes)
  {
    const std::string candidate = withoutMiddle(text, bytes);
    if (widthOf(candidate) <= room)
      return candidate;
  }
  return leftOut;
}

float distance(const std::vector<AxisName>& names)
{
  float least = std::numeric_limits<float>::max();
  for (std::size_t i = 1; i < names.size(); ++i)
    least = std::min(least, names[i].x - names[i - 1].x);
  return least;
}

} // namespace

std::vector<PlacedName> placeNames(const std::vector<AxisName>& names, float pageWidth,
                                   const Measure& widthOf)
{
  const float room = std::min(distance(names), pageWidth) - gap;
  const bool fits = std::all_of(names.begin(), names.end(),
                                [&](const AxisName& name) { return widthOf(name.text) <= room; });
  std::vector<PlacedName> placed;
  for (std::size_t i = 0; i < names.size(); ++i)
  {
    const std::string text =
        fits ? names[i].text : shortened(names[i].text, 2 * room + gap, widthOf);
    const float half = widthOf(text) / 2 + gap;
    const float x = std::max(half, std::min(names[i].x, pageWidth - half));
    placed.push_back({text, x, fits ? 0 : static_cast<int>(i % 2)});
  }
  return placed;
}

} // namespace Talmesh

#include "vtk/ShortenedText.h"

#include <vtkContext2D.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace Talmesh
{

float widthOf(vtkContext2D* painter, const std::string& text)
{
  float bounds[4] = {};
  painter->ComputeStringBounds(text, bounds);
  return bounds[2];
}

std::string shortened(vtkContext2D* painter, const std::string& text, float width)
{
  std::vector<std::size_t> starts;
  for (std::size_t i = 0; i < text.size(); ++i)
    if ((static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U)
      starts.push_back(i);
  std::string shown = text;
  for (std::size_t kept = starts.size(); kept > 1 && widthOf(painter, shown) > width;)
  {
    // A fraction at a time: each width is found by laying the text out.
    kept -= std::max<std::size_t>(1, kept / 16);
    const std::size_t front = kept - kept / 2;
    const std::size_t back = kept / 2;
    shown = text.substr(0, starts[front]) + "..." +
            (back > 0 ? text.substr(starts[starts.size() - back]) : std::string());
  }
  return shown;
}

} // namespace Talmesh

#ifndef PaintedLines_h
#define PaintedLines_h

#include "vtk/LineCounts.h"

#include <array>
#include <vector>

namespace Talmesh
{
/// Red, green and blue.
using LineColor = std::array<unsigned char, 3>;

/// Draws runs as drawLines() does, each in a colour of its own, with the pen's opacity, over those
/// before it. Pixels of red, green, blue and opacity, row by row from the lowest, colours not
/// multiplied by the opacity.
/// @param colors of the runs, in their order
std::vector<unsigned char> paintLines(const LinesToCount& lines,
                                      const std::vector<LineColor>& colors, const PixelMap& map,
                                      int width, int height, const LinePen& pen);
} // namespace Talmesh

#endif

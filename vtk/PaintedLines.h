#ifndef PaintedLines_h
#define PaintedLines_h

#include "vtk/LineCounts.h"

#include <array>
#include <vector>

namespace Talmesh
{
/// Red, green, blue and opacity.
using LineColor = std::array<unsigned char, 4>;

/// Draws runs as drawLines() does, each in an opaque colour of its own over those before it;
/// weights and the pen's opacity do not matter then. Pixels of four values, row by row from the
/// lowest.
std::vector<unsigned char> paintLines(const LinesToCount& lines,
                                      const std::vector<LineColor>& colors, const PixelMap& map,
                                      int width, int height, const LinePen& pen);
} // namespace Talmesh

#endif

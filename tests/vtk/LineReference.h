#ifndef LineReference_h
#define LineReference_h

#include "vtk/LineCounts.h"

#include <vector>

/// What drawLines() should give, made the slow way: every run is drawn for itself with a round pen,
/// each pixel is looked at in 8 x 8 places, and the layers are blended one after another in
/// floating point, in as many columns of each pixel as the pen's finest. Opacities from 0 to 1, row
/// by row.
std::vector<double> blendedLines(const Talmesh::LinesToCount& lines, const Talmesh::PixelMap& map,
                                 int width, int height, const Talmesh::LinePen& pen);

#endif

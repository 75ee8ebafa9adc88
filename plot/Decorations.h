#ifndef Decorations_h
#define Decorations_h

#include "export/ViewerExport.h"

#include <array>
#include <cstddef>

class vtkPlot;

namespace Talmesh::plot
{

struct PlotState;

/// Red, green, blue and alpha, 0 to 1.
using PaletteColor = std::array<double, 4>;

/// Entry `index` modulo 12 of the palette of decorations and clusters.
TALMESHPLOT_VIEWER_EXPORT const PaletteColor& paletteColor(std::size_t index);

/// Gives `plot` the colour of that entry, with `brightness`, up to 255, for a component of 1 and
/// with `alpha` instead of the entry's own, and the width of the lines of decorations and clusters.
void dressPaletteLine(vtkPlot* plot, std::size_t index, double brightness, unsigned char alpha);

/// Removes the decoration lines drawn so far: not every drawing clears the chart that they went
/// into.
void removeDecorations(PlotState& state);

/// Adds the decoration lines to the XY chart when they are shown and the table holds any.
void drawDecorations(PlotState& state);

} // namespace Talmesh::plot

#endif

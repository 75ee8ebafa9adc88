#ifndef Decorations_h
#define Decorations_h

#include <array>
#include <cstddef>

namespace Talmesh::plot
{

struct PlotState;

/// Red, green, blue and alpha, 0 to 1.
using PaletteColor = std::array<double, 4>;

/// Entry `index` modulo 12 of the palette of decorations and clusters.
const PaletteColor& paletteColor(std::size_t index);

/// Removes the decoration lines drawn so far: not every drawing clears the chart that they went
/// into.
void removeDecorations(PlotState& state);

/// Adds the decoration lines to the XY chart when they are shown and the table holds any.
void drawDecorations(PlotState& state);

} // namespace Talmesh::plot

#endif

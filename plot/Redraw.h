#ifndef Redraw_h
#define Redraw_h

#include <functional>

namespace Talmesh::plot
{

struct PlotState;

/// Builds the chart of the settings' plot style into the scene of the chart now shown. Does not
/// render. First cuts the selection to the table; a drawing that an observer of the selection
/// answers with stands for this one. Without a scene it writes one line to standard output and
/// leaves the settings silenced. Clients' steps run before and after the drawing; called by one of
/// those after it, it draws once more when they are done.
/// @throws whatever the style's builder or a step throws; the settings are then silenced
void redraw(PlotState& state);

/// Asks the clients' conditions whether what the settings say may be drawn, and what a drawing
/// needs computed. The settings speak afterwards if they did before.
bool mayDraw(PlotState& state);

/// Runs a change, during which redraw() draws nothing.
void withoutDrawing(PlotState& state, const std::function<void()>& change);

/// Asks the scene of the chart now shown, if any, to paint again.
void markDirty(PlotState& state);

} // namespace Talmesh::plot

#endif

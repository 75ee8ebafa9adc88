#ifndef SettingsSignals_h
#define SettingsSignals_h

namespace Talmesh::plot
{

struct PlotState;

/// Silences the settings, so that values written while drawing start no redraw.
void blockSettings(PlotState& state);

/// Lets the settings speak again, whatever they did before: not a restore.
void unblockSettings(PlotState& state);

} // namespace Talmesh::plot

#endif

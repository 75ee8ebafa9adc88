#ifndef AxisScales_h
#define AxisScales_h

namespace Talmesh::plot
{

struct PlotState;

/// Makes the XY chart's left axis logarithmic or linear; the settings do not keep it.
void setLogScaleY(PlotState& state, bool log);

/// Makes the XY chart's bottom axis logarithmic exactly when the settings say so.
void applyLogScaleX(PlotState& state);

/// Shows or hides the XY chart's legend.
void setShowLegend(PlotState& state, bool legend);

} // namespace Talmesh::plot

#endif

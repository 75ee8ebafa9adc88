#ifndef AxisScales_h
#define AxisScales_h

namespace Talmesh::plot
{

struct PlotState;

/// What the XY chart is to look like beyond the settings. A style with an XY chart keeps it through
/// all of its drawings and hands it to the next such style; see forgetChartLooks.
struct ChartLooks
{
  bool logLeft = false;
  bool legend = false;
};

/// Makes the XY chart's left axis logarithmic, as far as the data allow it, or linear. The settings
/// do not keep it.
void setLogScaleY(PlotState& state, bool log);

/// Whether the axis of the XY chart at `position` is logarithmic in the picture: that is asked for
/// and nothing plotted along it is 0 or below. False without an XY chart.
bool showsLogScale(const PlotState& state, int position);

/// Makes the XY chart's bottom axis logarithmic exactly when the settings say so.
void applyLogScaleX(PlotState& state);

/// Shows or hides the XY chart's legend.
void setShowLegend(PlotState& state, bool legend);

/// Gives the XY chart, which is a new one, the looks of the one before.
void applyChartLooks(PlotState& state);

/// A linear left axis again: for charts of other quantities, which lie at or around zero. A style
/// whose data merely refuse logarithms keeps the wish for them.
void forgetLogScaleY(PlotState& state);

/// A linear left axis and no legend again: for styles that show no XY chart to which they could
/// apply.
void forgetChartLooks(PlotState& state);

} // namespace Talmesh::plot

#endif

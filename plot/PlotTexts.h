#ifndef PlotTexts_h
#define PlotTexts_h

#include <string>
#include <vector>

class vtkAxis;

namespace Talmesh::plot
{

struct PlotState;

/// Stores the title in the settings and shows it on the XY chart, when there is one.
void setPlotTitle(PlotState& state, const std::string& title);

/// Stores the x label in the settings and shows it on the XY chart's bottom axis.
void setXLabel(PlotState& state, const std::string& label);

/// Stores the y label in the settings and shows it on the XY chart's left axis.
void setYLabel(PlotState& state, const std::string& label);

/// Replaces the labels of the bottom axis; they show at the next drawing.
void setXTickLabels(PlotState& state, const std::vector<std::string>& labels);

/// Replaces the positions of those labels, in units of x.
void setXTickPositions(PlotState& state, const std::vector<double>& positions);

/// Puts the container's labels on `axis`: at the container's positions, or at 0, 1, 2, ... when it
/// has none. Without labels the axis makes its own ticks.
void applyTickLabels(const PlotState& state, vtkAxis* axis);

/// As applyTickLabels, but always at 0, 1, 2, ..., as the charts of categories want it.
void applyTickLabelsByIndex(const PlotState& state, vtkAxis* axis);

} // namespace Talmesh::plot

#endif

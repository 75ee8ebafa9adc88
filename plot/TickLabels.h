#ifndef TickLabels_h
#define TickLabels_h

#include <string>
#include <vector>

class vtkAxis;

namespace Talmesh::plot
{

struct PlotState;

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

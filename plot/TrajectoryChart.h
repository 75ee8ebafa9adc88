#ifndef TrajectoryChart_h
#define TrajectoryChart_h

class vtkPlot;

namespace Talmesh::plot
{

struct PlotState;

/// Fills the XY chart, a cell of the selection page, with the runs of the plot table over their
/// quantile bands, and dresses its axes. Selected and unselected runs are told apart by colour.
/// @return the plot of the runs
vtkPlot* fillTrajectoryChart(PlotState& state);

} // namespace Talmesh::plot

#endif

#ifndef TrajectoryChart_h
#define TrajectoryChart_h

#include "export/ViewerExport.h"

class vtkPlot;

namespace Talmesh::plot
{

struct PlotState;

/// Fills the XY chart, a cell of the selection page, with the runs of the plot table over their
/// quantile bands, and dresses its axes. Selected and unselected runs are told apart by colour.
/// @return the plot of the runs
vtkPlot* fillTrajectoryChart(PlotState& state);

/// Adds the quartile table's bands to the XY chart: the whole range of the runs, the range between
/// their quartiles and their median, in this order. Adds nothing without a quartile table.
TALMESHPLOT_VIEWER_EXPORT void addQuartileBands(PlotState& state);

} // namespace Talmesh::plot

#endif

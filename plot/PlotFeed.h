#ifndef PlotFeed_h
#define PlotFeed_h

#include "export/ViewerExport.h"

#include <string>

class vtkPlot;
class vtkPlotPoints;
class vtkScalarsToColors;
class vtkTable;

namespace Talmesh::plot
{

/// Feeds `plot` from two columns of `table`. Columns that a chart cannot draw (outside the table,
/// unnamed, not numeric) leave the plot without input, because VTK throws or crashes on them; so
/// does a y column without a finite value in a plot over the row index, which would give the chart
/// an infinite axis.
/// @return whether the plot was fed
TALMESHPLOT_VIEWER_EXPORT bool feedPlot(vtkPlot* plot, vtkTable* table, int xColumn, int yColumn);

/// As above for the y column, over the row index as x.
bool feedPlotByIndex(vtkPlot* plot, vtkTable* table, int yColumn);

/// Colours the points of `plot` by a column of its input through `colors`. A plot without input, or
/// whose input has no numeric column of that name, stays as it is.
/// @return whether the plot is coloured
bool colorPoints(vtkPlotPoints* plot, const std::string& column, vtkScalarsToColors* colors);

/// Excludes from selection a plot whose rows are not those of the plot table: the selection speaks
/// of rows of that table, and VTK reads past the end of a shorter one.
TALMESHPLOT_VIEWER_EXPORT void makeUnselectable(vtkPlot* plot);

} // namespace Talmesh::plot

#endif

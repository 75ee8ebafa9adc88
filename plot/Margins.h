#ifndef Margins_h
#define Margins_h

class vtkChartMatrix;

namespace Talmesh::plot
{

struct PlotState;

/// Applies margins and gutters to the chart of the current style, unless it takes them when it is
/// drawn.
void updateMargins(PlotState& state);

/// Applies the margins to the XY chart, when there is one.
void applyXYBorders(PlotState& state);

/// Applies gutter and borders to the chart matrix of the multi-plot page.
void applyMultiPlotBorders(PlotState& state);

/// Applies gutter and borders to the chart matrix of the selection page, with room for the heading
/// of every chart.
void applySelectionPageBorders(PlotState& state);

/// Applies gutter and borders to the matrix of every column against every other or of the fit's
/// parameters, which take the gutters the other way round than the pages above. Clients that gave
/// the two different widths would find their charts moved if they agreed.
void applyTurnedBorders(const PlotState& state, vtkChartMatrix* matrix);

} // namespace Talmesh::plot

#endif

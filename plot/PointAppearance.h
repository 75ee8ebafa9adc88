#ifndef PointAppearance_h
#define PointAppearance_h

#include <string>

class vtkPlot;

namespace Talmesh::plot
{

struct PlotState;

/// Chooses between the settings' solid colour and colouring by column. For the latter the colour
/// column becomes the last table column named `column`, or stays when none is.
void setColorScheme(PlotState& state, const std::string& column, bool solid);

/// Colours `plot`, or the XY chart's first plot when it is null, as the settings say. Plots other
/// than point plots, and a colour column that is not double, has no name or no finite range, or is
/// not in the input of the plot, change nothing.
void useColors(PlotState& state, vtkPlot* plot);

/// Stores the marker style, a value of vtkPlotPoints' marker enumeration, and applies it to the XY
/// chart's first plot.
void setMarkerStyle(PlotState& state, int style);

/// Stores the marker size in pixels and applies it to the charts of the current style.
void setPointSize(PlotState& state, double size);

/// What the marker size is given to: the XY chart's first plot; all pairs of the scatter-plot
/// matrix, with half as much again in the large chart; the first plots of the multi-plot page's
/// pairs, below the anti-diagonal, and of its main chart.
void resizeXYMarkers(PlotState& state, double size);
void resizeScatterMatrixMarkers(PlotState& state, double size);
void resizeMultiPlotMarkers(PlotState& state, double size);

/// Stores the line width in pixels and applies it to lines of the current style that it is meant
/// for at once.
void setLineWidth(PlotState& state, double width);

/// Makes `width` the width of the error bars in the XY chart.
void widenErrorBars(PlotState& state, double width);

} // namespace Talmesh::plot

#endif

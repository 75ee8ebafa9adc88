#ifndef XYChart_h
#define XYChart_h

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Style 0: the first y column over the first x column, as points or, when the settings draw lines,
/// as one polyline per run. A remembered axis window is shown again; otherwise the axes fit the
/// data.
void drawXYChart(PlotState& state, vtkContextScene* scene);

/// The reserved styles and every value that names no chart: the XY chart with nothing but the title
/// "Not yet implemented". A chart built from Sobol results keeps its plots.
void drawReservedStyle(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif

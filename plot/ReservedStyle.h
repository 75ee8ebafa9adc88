#ifndef ReservedStyle_h
#define ReservedStyle_h

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// The reserved styles and every value that names no chart: the XY chart with nothing but the title
/// "Not yet implemented". A chart built from Sobol results keeps its plots.
void drawReservedStyle(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif

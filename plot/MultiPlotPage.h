#ifndef MultiPlotPage_h
#define MultiPlotPage_h

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Style 5: a triangle of small scatter plots, one per pair of parameter columns, and the main
/// chart, first y over first x column, in the upper right. All share the container's selection.
/// Without parameters nothing is drawn.
/// @throws std::out_of_range for a parameter column with a name shorter than 11 characters, before
///   anything changes; not for a single parameter, which has no pair plots and so no title
void drawMultiPlotPage(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif

#ifndef ParallelCoordinatesChart_h
#define ParallelCoordinatesChart_h

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Style 9: one axis per column. With three or more y columns only those, otherwise all; columns
/// that are not numeric, have no name or no finite range are left out. Lines are coloured by the
/// settings' colour column when it is usable.
///
/// A copied container has no such chart: one line on standard error says so and nothing is drawn.
void drawParallelCoordinates(PlotState& state, vtkContextScene* scene);

/// Has the chart, if it is the one now shown, show the present values of columns that it has copies
/// of or needs some of, see withoutInfinities(). To be called when values have changed in place.
void renewLineCopies(PlotState& state);

} // namespace Talmesh::plot

#endif

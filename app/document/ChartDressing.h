#ifndef ChartDressing_h
#define ChartDressing_h

class PlotContainer;

namespace Talmesh::app
{

/// Has every drawing of a container, whoever asks for it, come as the viewer shows it. Before: the
/// quartiles are those of the present columns, tests of an earlier selection are forgotten, and
/// there is room for what the style writes beside its charts. After: further y columns have their
/// series, and the 3-D chart fills the scene, whatever its size becomes, has the names of its
/// columns at its axes, and is tilted once so that its depth is seen.
void dressDrawings(PlotContainer& container);

} // namespace Talmesh::app

#endif

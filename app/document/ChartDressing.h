#ifndef ChartDressing_h
#define ChartDressing_h

class PlotContainer;

namespace Talmesh::app
{

/// Makes room for what the container's next drawing writes beside its charts: the scatter-plot
/// matrix has titles above and tick labels to the right, which the other charts do not.
void makeRoom(PlotContainer& container);

/// Completes the chart that a container has just drawn for the viewer's window: the 3-D chart fills
/// the scene, whatever its size becomes, has the names of its columns at its axes, and is tilted
/// once so that its depth is seen. Other charts stay as they are.
void dressChart(PlotContainer& container);

} // namespace Talmesh::app

#endif

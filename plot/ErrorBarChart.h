#ifndef ErrorBarChart_h
#define ErrorBarChart_h

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Style 7: the first y column over the first x column (or the row index) as points with error
/// bars, whose half-lengths stand in the first z column, a float column. With a second pair of
/// columns it is drawn as a line, from the first derived table when there is one; without input
/// unless both columns are there, even where the row index stands in for x.
void drawErrorBarChart(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif

#ifndef ScatterMatrix_h
#define ScatterMatrix_h

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Style 3: every column against every other. When the settings limit the columns, only the first x
/// column, the first y column and the parameter columns, with (x, y) as the active plot.
/// Columns that are not numeric, have no name or no finite range are left out.
void drawScatterMatrix(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif

#ifndef PointChart3D_h
#define PointChart3D_h

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Style 4: the first x, y and z columns as points in space. Rows with a value that is not finite
/// are left out.
void drawPointChart3D(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif

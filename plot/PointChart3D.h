#ifndef PointChart3D_h
#define PointChart3D_h

#include <vtkSmartPointer.h>

class vtkChartXYZ;
class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// A chart in space whose first painting has all that the next ones have.
vtkSmartPointer<vtkChartXYZ> makeChart3D();

/// Style 4: the first x, y and z columns as points in space. Rows with a value that is not finite
/// are left out.
void drawPointChart3D(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif

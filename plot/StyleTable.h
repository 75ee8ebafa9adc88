#ifndef StyleTable_h
#define StyleTable_h

#include "external/PlotStyles.h"

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Builds the chart of one plot style into `scene`.
using StyleBuilder = void (*)(PlotState& state, vtkContextScene* scene);

/// The builder of `style`. Every value that names no chart gets the reserved style's builder.
StyleBuilder builderOf(plotStyles style);

} // namespace Talmesh::plot

#endif

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

/// Whether the style shows an XY chart, alone or as the main one of a page: one whose left axis can
/// be logarithmic and which can have a legend.
bool showsXYChart(plotStyles style);

} // namespace Talmesh::plot

#endif

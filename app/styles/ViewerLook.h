#ifndef ViewerLook_h
#define ViewerLook_h

#include "plot/PlotLook.h"

namespace Talmesh::app
{

/// What the charts of the viewer look like: several series in colours that the colour-blind tell
/// apart, selected runs not wider than needed to see them among the others, and axes labelled at
/// round numbers with as many labels as there is room for.
PlotLook viewerLook();

} // namespace Talmesh::app

#endif

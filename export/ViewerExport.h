#ifndef ViewerExport_h
#define ViewerExport_h

#include "export/TalmeshPlotExport.h"

/// Stands in the declaration of each function and class of the library's inside that the viewer
/// calls although no client may. Their headers are listed in app/library-internals.txt, and are not
/// installed.
#define TALMESHPLOT_VIEWER_EXPORT TALMESHPLOT_EXPORT

#endif

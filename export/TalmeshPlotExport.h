#ifndef TalmeshPlotExport_h
#define TalmeshPlotExport_h

/// Stands in the declaration of each class and function that programs which link the library call.
/// Nothing else is visible outside of it, apart from what export/ViewerExport.h names.
#define TALMESHPLOT_EXPORT __attribute__((visibility("default")))

#endif

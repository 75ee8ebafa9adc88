#ifndef DumpLayout_h
#define DumpLayout_h

#include "export/ViewerExport.h"

#include <QtGlobal>

class QIODevice;

namespace Talmesh::plot
{

/// Whether the next bytes of a device that can be sought in are laid out as `writeDump` does and
/// end where the last column does. Only counts, names and kinds are read, so it is known at once
/// however many values there are. Leaves the device somewhere in them.
TALMESHPLOT_VIEWER_EXPORT bool isWholeDump(QIODevice& device, qint64 size);

} // namespace Talmesh::plot

#endif

#ifndef FileWriter_h
#define FileWriter_h

#include "export/ViewerExport.h"

#include <QString>

#include <functional>

class QIODevice;

namespace Talmesh
{

/// Writes into a device, which takes bytes in order and cannot be read.
/// @return whether the device took all of it
using FileContent = std::function<bool(QIODevice&)>;

/// Writes a file. An older one of the name stays whole until the new one is on the disk, or, where
/// its folder takes no new files, until all of the content has been made. Links are followed. Into
/// what is no regular file, as a device or a pipe, the bytes are written; a pipe must have a reader
/// within five seconds, who must not pause for longer.
/// @return why not all of it was written, in one line; empty on success
TALMESHPLOT_VIEWER_EXPORT QString writeFile(const QString& path, const FileContent& content);

/// The same for bytes.
TALMESHPLOT_VIEWER_EXPORT QString writeFile(const QString& path, const char* bytes, qint64 size);

} // namespace Talmesh

#endif

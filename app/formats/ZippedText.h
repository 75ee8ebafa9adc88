#ifndef ZippedText_h
#define ZippedText_h

#include "app/formats/FileFormats.h"

namespace Talmesh::app
{

/// Whether a file is a ZIP file, also a damaged one.
bool isZip(const FileStart& start);

/// Reads the only file in a ZIP file, or the one whose name is asked for, as text.
Result<FileContent> readZippedText(const QString& path, const FormatRequest& request,
                                   const ImportProgress& progress);

} // namespace Talmesh::app

#endif

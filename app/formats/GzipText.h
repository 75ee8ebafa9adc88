#ifndef GzipText_h
#define GzipText_h

#include "app/formats/FileContent.h"
#include "app/formats/FileFormats.h"

namespace Talmesh::app
{

/// Whether a file is one that gzip has compressed.
bool isGzip(const FileStart& start);

/// Reads a text that gzip has compressed, of one part or of several behind each other. Zeros behind
/// it are padding. Reading ends at a zero byte of the text, as no table has one.
Result<FileContent> readGzipText(const QString& path, const FormatRequest& request,
                                 const ImportProgress& progress);

} // namespace Talmesh::app

#endif

#ifndef NumpyFiles_h
#define NumpyFiles_h

#include "app/formats/FileFormats.h"

namespace Talmesh::app
{

/// Whether a file is one array of NumPy.
bool isNpy(const FileStart& start);
/// Whether a file is an archive of arrays.
bool isNpz(const FileStart& start);

Result<FileContent> readNpy(const QString& path, const FormatRequest& request,
                            const ImportProgress& progress);
/// An archive is read as docs/file-formats.md says; the part that is asked for is an array.
Result<FileContent> readNpz(const QString& path, const FormatRequest& request,
                            const ImportProgress& progress);

} // namespace Talmesh::app

#endif

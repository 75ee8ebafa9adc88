#ifndef OdsSheets_h
#define OdsSheets_h

#include "app/formats/FileFormats.h"

namespace Talmesh::app
{

bool isOds(const FileStart& start);

/// Reads a sheet of an OpenDocument spreadsheet: the one that is asked for, else the first one that
/// is a table.
Result<FileContent> readOds(const QString& path, const FormatRequest& request,
                            const ImportProgress& progress);

} // namespace Talmesh::app

#endif

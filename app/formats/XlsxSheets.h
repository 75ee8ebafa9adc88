#ifndef XlsxSheets_h
#define XlsxSheets_h

#include "app/formats/FileFormats.h"

namespace Talmesh::app
{

bool isXlsx(const FileStart& start);

/// Reads a sheet of an Excel workbook: the one that is asked for, else the first one that is
/// visible and a table.
Result<FileContent> readXlsx(const QString& path, const FormatRequest& request,
                             const ImportProgress& progress);

} // namespace Talmesh::app

#endif

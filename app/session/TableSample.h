#ifndef TableSample_h
#define TableSample_h

#include "app/formats/FileContent.h"
#include "app/import/FirstRows.h"
#include "app/import/ImportProgress.h"
#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"
#include "app/import/Result.h"

#include <QStringList>

#include <string>

namespace Talmesh::app
{

/// The start of a file, from which its first rows are shown.
struct TableSample
{
  /// Whole lines of text, or the first rows of columns.
  FileContent start;
  /// Whether the file holds nothing else.
  bool isWhole = false;
};

/// Whether the first of these files may hold several tables: sheets, arrays, groups. May run in any
/// thread.
bool mayHaveParts(const QStringList& paths);

/// Reads the start of the first of these files, or of the tables of a folder or pattern. Long texts
/// are not read to their end. May run in any thread.
/// @param sheet which table of the file; empty for the first one
Result<TableSample> readTableSample(const QStringList& paths, const std::string& sheet,
                                    const ImportProgress& progress = {});

/// The rows of a sample as a request has them read.
Result<FirstRows> firstRowsOf(const TableSample& sample, const ImportRequest& request);

/// What is understood of a sample of text, as if it were the whole table.
ImportReport reportOf(const TableSample& sample, const ImportRequest& request);

} // namespace Talmesh::app

#endif

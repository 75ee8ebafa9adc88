#ifndef RunFiles_h
#define RunFiles_h

#include "app/import/RunTableImport.h"

#include <QStringList>

namespace Talmesh::app
{

/// The files that the user means: of a folder those whose names end as readable ones do, of a
/// pattern (*.csv) that is no file itself those that fit it, in the order of the numbers in their
/// names. What does not exist stays as it is.
QStringList namedFiles(const QStringList& paths);

/// Imports files that belong together as one table (see joinFiles()).
/// @param paths at least one
Result<ImportedTable> importFiles(const QStringList& paths, const ImportTask& task,
                                  ImportReport& report);

} // namespace Talmesh::app

#endif

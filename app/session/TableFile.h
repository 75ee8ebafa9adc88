#ifndef TableFile_h
#define TableFile_h

#include "app/formats/FileContent.h"
#include "app/import/ImportProgress.h"
#include "app/import/ImportRequest.h"
#include "app/import/Result.h"

#include <QString>

namespace Talmesh::app
{

/// Reads the text or the columns of a file of any format.
Result<FileContent> readTableFile(const QString& path, const ImportRequest& request,
                                  const ImportProgress& progress);

} // namespace Talmesh::app

#endif

#ifndef ArrayLayout_h
#define ArrayLayout_h

#include "app/formats/ArraySource.h"
#include "app/formats/FileContent.h"
#include "app/import/Result.h"

namespace Talmesh::app
{

/// Makes columns of the arrays of a file: of records, of arrays of one axis, or of arrays of runs,
/// times and items. Which array means what, docs/file-formats.md says.
Result<FileContent> arrangeArrays(ArraySource& source, const FormatRequest& request,
                                  const ImportProgress& progress);

} // namespace Talmesh::app

#endif

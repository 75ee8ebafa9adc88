#ifndef TextRuns_h
#define TextRuns_h

#include "app/import/CategoryColumns.h"
#include "app/import/ImportProgress.h"
#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"
#include "app/import/Result.h"
#include "app/import/RunTableImport.h"
#include "app/import/TableText.h"

#include <vector>

namespace Talmesh::app
{

/// Makes the runs of a table whose rows are points of runs: groups them, gives them common times
/// where theirs differ, and tells what there is.
/// @param text is emptied on the way
/// @param levels the columns of categories
/// @param progress only asked whether to go on
Result<ImportedTable> buildRuns(TableText& text, const std::vector<ColumnLevels>& levels,
                                const ImportRequest& request, const ImportProgress& progress,
                                ImportReport& report);

} // namespace Talmesh::app

#endif

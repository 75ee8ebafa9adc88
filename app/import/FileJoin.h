#ifndef FileJoin_h
#define FileJoin_h

#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"
#include "app/import/NamedColumn.h"
#include "app/import/Result.h"

#include <optional>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// One of several files that are opened together.
struct JoinedFile
{
  /// Without its folder.
  std::string name;
  std::vector<NamedColumn> columns;
};

/// Makes one table of the files: a run each, or an item each whose columns are runs. Which it is,
/// the numbers in the names of files and columns tell, or the request. A table of parameters, given
/// or the one file that is other than the rest, is joined by a column that names the runs or files.
/// What would be joined by the order of rows alone is refused unless the request says so.
/// @param files at least one
Result<std::vector<NamedColumn>> joinFiles(std::vector<JoinedFile> files,
                                           std::optional<JoinedFile> parameters,
                                           const ImportRequest& request, ImportReport& report);

} // namespace Talmesh::app

#endif

#ifndef ParameterJoin_h
#define ParameterJoin_h

#include "app/import/FileJoin.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// What a run is called, and how many rows it has in the table of all runs.
struct RunKey
{
  std::string name;
  /// The file that it comes from, or its column.
  std::string source;
  std::size_t rows = 0;
};

/// Adds the columns of a table of parameters to those of the runs, which stand there in the order
/// of their keys: by the column that names each run or its file or, where the request says so, in
/// order.
/// @return why they cannot be added, in one line; empty on success
std::string joinParameters(const JoinedFile& table, const std::vector<RunKey>& runs,
                           const ImportRequest& request, std::vector<NamedColumn>& columns,
                           ImportReport& report);

} // namespace Talmesh::app

#endif

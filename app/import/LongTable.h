#ifndef LongTable_h
#define LongTable_h

#include "app/import/ImportProgress.h"
#include "app/import/ImportReport.h"
#include "app/import/Result.h"
#include "app/import/TableText.h"

#include <cstddef>
#include <vector>

namespace Talmesh::app
{

/// Which columns of a table with a row per value say what.
struct LongColumns
{
  std::size_t item = 0;
  std::size_t value = 0;
  /// Whether values of the same run, time and item are of different replicates, as they stand one
  /// after another; otherwise there must be one.
  bool repeatsAreReplicates = false;
};

/// Makes a column of each item of a table with a row per value: a row per run and time, where the
/// runs and times are those that the table has got. Columns that say something of the whole point
/// come along; those that differ between its items are left out, and said so. The time it takes is
/// linear in the rows.
/// @param progress only asked whether to go on
Result<TableText> pivotLong(TableText text, const LongColumns& columns,
                            const ImportProgress& progress, ImportReport& report);

/// Forgets the names of runs that have no rows any more.
void forgetEmptyRuns(TableText& table);

} // namespace Talmesh::app

#endif

#ifndef RunTableBuilder_h
#define RunTableBuilder_h

#include "app/import/ImportProgress.h"
#include "app/import/RunGrouping.h"
#include "app/import/TableText.h"
#include "external/LinePlotTable.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// The runs of a table.
struct BuiltRuns
{
  /// Null where that was given up.
  boost::shared_ptr<LinePlotTable> runs;
  /// Names of the parameters that plots leave out because they are the same in all runs.
  std::vector<std::string> unvariedParameters;
  /// The labels that columns of the text have got.
  std::map<std::size_t, std::string> labels;
};

/// Stacks the columns of a text run after run, gives each its kind and its label, and adds the run
/// index that a table of plain headers lacks.
/// @param text is emptied on the way, so that no column is in memory twice.
/// @param progress asked behind each column whether to go on
BuiltRuns buildRunTable(TableText& text, const RunGrouping& grouping,
                        const ImportProgress& progress = {});

} // namespace Talmesh::app

#endif

#ifndef RunConditions_h
#define RunConditions_h

#include "app/document/TableRuns.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

/// The runs that meet any of the conditions in words; or which of these is wrong and where, in one
/// line.
/// @param progress as of `RunFilter::select`
Result<std::vector<bool>> runsWhere(const TableRuns& runs,
                                    const std::vector<std::string>& conditions,
                                    const ImportProgress& progress = {});

/// What is wrong with words, and at which of their characters, in one line.
std::string describe(const FilterFault& fault, const std::string& words);

} // namespace Talmesh::app

#endif

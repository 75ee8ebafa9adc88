#ifndef SettledRequest_h
#define SettledRequest_h

#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

/// What the user would have to say for a table to be read as it was, whatever its cells suggest:
/// what was said, and the layout and roles that were found out.
/// @param headers the names of the table's columns in the file
/// @param separator, decimalMark found out of a text, and already in the report's request
ImportRequest settledRequest(const ImportRequest& said, const ImportReport& report,
                             const std::vector<std::string>& headers);

} // namespace Talmesh::app

#endif

#ifndef Batch_h
#define Batch_h

#include "app/CommandLine.h"
#include "app/import/ImportReport.h"
#include "app/import/Result.h"

#include <string>

namespace Talmesh::app
{

/// Writes what the command line asks for, exports and gallery, without a window. Needs a
/// QApplication. Nothing is written when the file cannot be opened or a column is not there. What
/// the user should know of the file although it could be opened goes to standard error.
/// @return why something could not be done, in one line; empty on success
std::string runBatch(const CommandLineOptions& options);

/// Reads the table of the command line without showing it. Needs no QApplication.
/// @param report gets what was understood of it, and the candidates where that is unsure
/// @return the report as JSON, or why the table is not read
Result<std::string> describeFile(const CommandLineOptions& options, ImportReport& report);

} // namespace Talmesh::app

#endif

#ifndef Batch_h
#define Batch_h

#include "app/CommandLine.h"

#include <string>

namespace Talmesh::app
{

/// Writes what the command line asks for, exports and gallery, without a window. Needs a
/// QApplication. Nothing is written when the file cannot be opened or a column is not there. What
/// the user should know of the file although it could be opened goes to standard error.
/// @return why something could not be done, in one line; empty on success
std::string runBatch(const CommandLineOptions& options);

/// What was understood of a file.
struct Description
{
  /// The report as JSON; empty of what is refused.
  std::string json;
  /// Why it is refused or unsure, in one line.
  std::string error;
  /// Of the program: 0 understood, 1 refused, 3 unsure.
  int status = 0;
};

/// Reads the table of the command line without showing it. Needs no QApplication.
Description describeFile(const CommandLineOptions& options);

} // namespace Talmesh::app

#endif

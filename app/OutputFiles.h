#ifndef OutputFiles_h
#define OutputFiles_h

#include "app/CommandLine.h"

#include <string>

namespace Talmesh::app
{

/// Which of the files that the command line names would be lost, because the study is read from it
/// or because something else is written there, in one line; empty for none. Pipes and devices take
/// anything.
std::string lostFile(const CommandLineOptions& options);

} // namespace Talmesh::app

#endif

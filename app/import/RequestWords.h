#ifndef RequestWords_h
#define RequestWords_h

#include "app/import/ImportRequest.h"

#include <string>

namespace Talmesh::app
{

/// What a request says, as the options of the command line that say it, in one line; quoted as a
/// shell needs it. Empty for one that leaves all open.
std::string optionsOf(const ImportRequest& request);

/// A word of a command line, in quotes where a shell would not take it as it is.
std::string quotedForShell(const std::string& word);

} // namespace Talmesh::app

#endif

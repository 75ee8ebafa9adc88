#ifndef CommandLineHelp_h
#define CommandLineHelp_h

#include <string>

namespace Talmesh::app
{

/// The text of `--help`, several lines, the last one ended.
std::string commandLineHelp();

} // namespace Talmesh::app

#endif

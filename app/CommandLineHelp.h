#ifndef CommandLineHelp_h
#define CommandLineHelp_h

#include <string>

namespace Talmesh::app
{

/// The text of `--help`, several lines, the last one ended.
std::string commandLineHelp();

/// One line of a list in it; what long names mean follows after one space.
std::string helpEntry(const std::string& name, const std::string& meaning);

} // namespace Talmesh::app

#endif

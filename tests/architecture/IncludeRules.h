#ifndef IncludeRules_h
#define IncludeRules_h

#include <map>
#include <set>
#include <string>
#include <vector>

/// The rules that keep the source tree one-way, checked on the text of the files:
/// external, stats <- vtk <- plot <- widgets <- app, an arrow pointing at what may be included.
namespace Talmesh::architecture
{

using Reach = std::map<std::string, std::set<std::string>>;

/// The viewer's rooms, and what each may include, itself among them. What lies in no room puts the
/// program together and reaches all.
const Reach& reachableRooms();

/// What is wrong with the includes of one source file.
/// @param path the file's path relative to the root of the tree, with forward slashes
/// @param text the file's whole text
/// @return one line per offending include, "path:line: reason"; empty for a clean file and for a
///   file outside the layers
std::vector<std::string> includeViolations(const std::string& path, const std::string& text);

/// What is wrong with the include guard of a header: it is the file name with "_h" for ".h".
/// @return one line, or nothing for a right guard and for files that are no headers
std::vector<std::string> guardViolations(const std::string& path, const std::string& text);

/// The file names that occur more than once in different folders, one line each, naming the paths.
std::vector<std::string> duplicateNames(const std::vector<std::string>& paths);

} // namespace Talmesh::architecture

#endif

#ifndef PublicRules_h
#define PublicRules_h

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

/// The rules that keep apart what clients of the library include and what is its inside, checked on
/// the text of the files. Paths are relative to the root of the tree, with forward slashes.
namespace Talmesh::architecture
{

using Paths = std::set<std::string>;
/// The text of each file by its path.
using Files = std::map<std::string, std::string>;

/// The headers named in a list, one on each line; lines that start with # name none.
Paths listedHeaders(const std::string& list);

/// A public header includes our own as "../folder/Name.h", which works in the tree and wherever it
/// is installed, and only public ones; every other file writes "folder/Name.h".
/// @return one line per offending include, "path:line: reason"
std::vector<std::string> spellingViolations(const std::string& path, const std::string& text,
                                            const Paths& publicHeaders);

/// The headers and all of ours that they include, directly or through others.
Paths withIncluded(Paths headers, const std::function<std::string(const std::string&)>& textOf);

/// TALMESHPLOT_EXPORT stands in public headers, TALMESHPLOT_VIEWER_EXPORT in those of the
/// library's inside that reach the viewer's sources, and neither anywhere else.
std::vector<std::string> exportViolations(const std::string& path, const std::string& text,
                                          const Paths& publicHeaders, const Paths& internals);

/// Compares the headers of the library's inside that the viewer's files include with the list of
/// those that it may.
/// @return one line per include that is not listed and per entry that is not included
std::vector<std::string> viewerViolations(const Files& viewer, const Paths& publicHeaders,
                                          const Paths& internals);

} // namespace Talmesh::architecture

#endif

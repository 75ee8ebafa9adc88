#ifndef ExportedNames_h
#define ExportedNames_h

#include <set>
#include <string>
#include <vector>

/// What headers say that the library shows, and what its symbol table shows.
namespace Talmesh::exports
{

using Names = std::set<std::string>;

/// The qualified names of the classes, functions and variables that `macro` stands in front of.
/// @param header the text of a header
Names exportedNames(const std::string& header, const std::string& macro);

/// The qualified name of what a demangled symbol belongs to: without return type, parameters and
/// template arguments, and of tables and type information the class that they describe.
std::string nameOfSymbol(std::string symbol);

/// @param listing as `nm -D --defined-only -C` writes it
/// @param shown what may be visible; members belong to their class
/// @param own the first parts of names that only this library defines: another library's templates
///   leave weak symbols in every library that uses them
/// @return the lines that show something else
std::vector<std::string> unexpectedSymbols(const std::string& listing, const Names& shown,
                                           const Names& own);

} // namespace Talmesh::exports

#endif

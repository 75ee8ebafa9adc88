#ifndef DelimitedFiles_h
#define DelimitedFiles_h

#include <vtkSmartPointer.h>

#include <cstddef>
#include <functional>
#include <string>

class vtkTable;

namespace Talmesh::plot
{

/// Reads a comma-separated file: names in the first line, numeric columns as doubles. A quote
/// doubled within quotes is one quote, a backslash is a backslash.
/// @return what the reader delivers, for an unreadable file an empty table
vtkSmartPointer<vtkTable> readDelimited(const std::string& fileName);

/// Writes `table` comma-separated to `fileName`, or, when it is empty, into a string. Names and
/// texts stand between quotes, quotes in them are doubled.
/// @return that string, allocated with new[] and the caller's to free; null when a file was written
char* writeDelimited(vtkTable* table, const std::string& fileName);

/// Writes the same text in pieces of some thousand rows, as PlotContainer::writeTable() says.
bool writeDelimitedInPieces(
    vtkTable* table,
    const std::function<bool(const char* bytes, std::size_t size, double done)>& take);

} // namespace Talmesh::plot

#endif

#ifndef NameParts_h
#define NameParts_h

#include <string>
#include <vector>

namespace Talmesh::app
{

/// A file's name without its ending: "run01" of "run01.csv.gz".
std::string stemOf(const std::string& fileName);

/// The parts in which names differ, without cutting a number: "01" and "12" of "run01.csv" and
/// "run12.csv". A single name is its own part.
std::vector<std::string> distinctParts(const std::vector<std::string>& names);

/// Whether names differ by a number only, which may be all of them: "run1", "run2".
bool areNumbered(const std::vector<std::string>& names);

/// The order of names in which numbers count as such: "run2" before "run10".
bool comesBeforeInNumbers(const std::string& a, const std::string& b);

} // namespace Talmesh::app

#endif

#ifndef PartNames_h
#define PartNames_h

#include "app/import/Result.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

/// The parts of a file (sheets, arrays, groups) for a message: the first few, in quotes.
std::string listOfParts(const std::vector<std::string>& names);

/// The part that is asked for, letters of either case alike where none has exactly that name; the
/// first one when nothing is asked for. There must be one.
Result<std::string> chosenPart(const std::vector<std::string>& names, const std::string& wanted);

} // namespace Talmesh::app

#endif

#ifndef HeaderSearch_h
#define HeaderSearch_h

#include "app/import/TextSample.h"
#include "app/import/TextShape.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// Finds the names of the columns among the first records of a table.
/// @param usual the number of fields that most records have
/// @param shape gets header, units, row names and where the rows begin
/// @return why there is no header, in one line; empty on success
std::string findHeader(const std::vector<SampledRecord>& head,
                       const std::vector<SampledRecord>& places, std::size_t usual,
                       TextShape& shape);

} // namespace Talmesh::app

#endif

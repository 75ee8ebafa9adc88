#ifndef PetabConditions_h
#define PetabConditions_h

#include "app/import/ImportReport.h"
#include "app/import/Layouts.h"
#include "app/import/TableText.h"

#include <string>

namespace Talmesh::app
{

/// Adds what conditions.tsv beside a table says of the conditions of its rows: columns of numbers,
/// or of texts, which become categories. Cells that are names of parameters get the nominal values
/// of parameters.tsv, where it has them.
/// @param condition the column of the conditions' names
/// @return why these tables cannot be read, in one line; empty on success, also without them
std::string joinConditions(TableText& text, std::size_t condition, const FileBeside& beside,
                           ImportReport& report);

} // namespace Talmesh::app

#endif

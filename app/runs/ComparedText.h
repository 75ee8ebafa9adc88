#ifndef ComparedText_h
#define ComparedText_h

#include "app/runs/FilterSyntax.h"

#include <cstddef>
#include <optional>

namespace Talmesh::app
{

class FilteredRuns;

/// What a text means that is compared with the column that holds it, as in drug = aspirin: its
/// number. None of anything else, also of what asks for less or more; names of columns go first.
/// @param at the text among what is compared
std::optional<double> textBesideColumn(const FilterNode& comparison, std::size_t at,
                                       const FilteredRuns& runs);

} // namespace Talmesh::app

#endif

#ifndef DesignOption_h
#define DesignOption_h

#include "stats/ParameterComparison.h"

#include <optional>
#include <string_view>

namespace Talmesh::app
{

/// Reads what the command line says of a design: "saltelli", or "saltelli:K" for K parameters.
/// @return nothing for any other text
std::optional<stats::KnownDesign> readDesignOption(std::string_view text);

} // namespace Talmesh::app

#endif

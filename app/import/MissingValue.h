#ifndef MissingValue_h
#define MissingValue_h

#include <limits>

namespace Talmesh::app
{

/// What stands where a table has no number.
inline constexpr double missing = std::numeric_limits<double>::quiet_NaN();

} // namespace Talmesh::app

#endif

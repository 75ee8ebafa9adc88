#ifndef ImportProgress_h
#define ImportProgress_h

#include <functional>

namespace Talmesh::app
{

/// Told the part done, from 0 to 1, every now and then; returning false cancels. Empty to hear
/// nothing.
using ImportProgress = std::function<bool(double)>;

} // namespace Talmesh::app

#endif

#ifndef SystemMemory_h
#define SystemMemory_h

#include <cstddef>

namespace Talmesh::app
{

/// Whether the system would give that many bytes now: within the bounds of this process, and
/// without taking them from other programs.
bool hasMemory(std::size_t bytes);

} // namespace Talmesh::app

#endif

#ifndef ParallelParts_h
#define ParallelParts_h

#include <cstddef>
#include <functional>

namespace Talmesh::stats
{
/// Numbers to copy or count that are worth a thread.
inline constexpr std::size_t numbersOfPart = 65536;

/// Calls `work(first, last)` for consecutive parts of [0, count), `size` items each but the last
/// one, on as many threads as the machine has cores; the caller's is one of them. Returns when all
/// parts are done.
///
/// Parts are the same whatever the number of threads, so results that depend on one part each do
/// not depend on the machine. Where no thread can be started the caller does everything itself.
/// @param size at least 1
/// @throws what `work` throws; parts that were not begun are left out then
void inParallelParts(std::size_t count, std::size_t size,
                     const std::function<void(std::size_t first, std::size_t last)>& work);
} // namespace Talmesh::stats

#endif

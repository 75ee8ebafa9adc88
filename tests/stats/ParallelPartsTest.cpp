#include "stats/ParallelParts.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <thread>

namespace
{
/// Allocations of this thread that still succeed; negative for all.
thread_local int allocationsLeft = -1;
} // namespace

void* operator new(std::size_t size)
{
  if (allocationsLeft == 0)
    throw std::bad_alloc();
  if (allocationsLeft > 0)
    --allocationsLeft;
  if (void* memory = std::malloc(size > 0 ? size : 1))
    return memory;
  throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
  try
  {
    return operator new(size);
  }
  catch (const std::bad_alloc&)
  {
    return nullptr;
  }
}

void operator delete(void* memory) noexcept
{
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
  std::free(memory);
}

namespace
{
using Talmesh::stats::inParallelParts;

TEST(ParallelParts, AreDoneByFewerThreadsWhereMemoryForThemIsShort)
{
  constexpr std::size_t count = 1000;
  std::atomic<std::size_t> done{0};
  const std::function<void(std::size_t, std::size_t)> work =
      [&done](std::size_t first, std::size_t last) { done += last - first; };
  // One for the list of threads, and one for each thread but the last.
  const int threads = static_cast<int>(std::thread::hardware_concurrency()) - 1;
  for (int allocations = 1; allocations <= threads; ++allocations)
  {
    done = 0;
    allocationsLeft = allocations;
    try
    {
      inParallelParts(count, 1, work);
    }
    catch (const std::bad_alloc&)
    {
      allocationsLeft = -1;
      ADD_FAILURE() << "after " << allocations << " allocations";
    }
    const int left = allocationsLeft;
    allocationsLeft = -1;
    EXPECT_EQ(left, 0) << "memory was short";
    EXPECT_EQ(done, count);
  }
}
} // namespace

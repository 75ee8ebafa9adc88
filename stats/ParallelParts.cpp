#include "stats/ParallelParts.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace Talmesh::stats
{
void inParallelParts(std::size_t count, std::size_t size,
                     const std::function<void(std::size_t first, std::size_t last)>& work)
{
  const std::size_t parts = count / size + (count % size != 0 ? 1 : 0);
  std::atomic<std::size_t> next{0};
  std::exception_ptr failure;
  std::mutex failureAccess;
  const auto takeParts = [&]
  {
    try
    {
      for (std::size_t part = next++; part < parts; part = next++)
        work(part * size, std::min(count, (part + 1) * size));
    }
    catch (...)
    {
      const std::lock_guard<std::mutex> lock(failureAccess);
      failure = std::current_exception();
      next = parts;
    }
  };
  const std::size_t cores = std::max(std::thread::hardware_concurrency(), 1U);
  std::vector<std::thread> helpers;
  helpers.reserve(cores);
  try
  {
    while (helpers.size() + 1 < std::min(cores, parts))
      helpers.emplace_back(takeParts);
  }
  catch (const std::exception&)
  {
    // No thread to be had, or no memory for one: the threads there are share the work.
  }
  takeParts();
  for (std::thread& helper : helpers)
    helper.join();
  if (failure)
    std::rethrow_exception(failure);
}
} // namespace Talmesh::stats

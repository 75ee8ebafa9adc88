#include "ProcessMemory.h"

#include <benchmark/benchmark.h>
#include <fstream>
#include <string>

namespace
{

/// Bytes of a line of /proc/self/status.
double statusOf(const std::string& name)
{
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word)
  {
    double kilobytes = 0.0;
    if (word == name + ":" && status >> kilobytes)
      return 1024.0 * kilobytes;
  }
  return 0.0;
}

} // namespace

ProcessMemory::ProcessMemory()
    : before(statusOf("VmRSS"))
{
  // Begins the peak anew.
  std::ofstream("/proc/self/clear_refs") << 5;
}

void ProcessMemory::report(benchmark::State& state, std::size_t doubles) const
{
  const double bytes = statusOf("VmHWM") - before;
  state.counters["bytes"] = bytes;
  state.counters["tables"] = bytes / (static_cast<double>(doubles) * sizeof(double));
}

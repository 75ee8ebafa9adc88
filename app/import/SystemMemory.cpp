#include "app/import/SystemMemory.h"

#include <fstream>
#include <limits>
#include <string>
#include <sys/mman.h>

namespace Talmesh::app
{

namespace
{

/// What programs may still take before the system must take it from others, in bytes; without
/// bound where the system does not tell.
std::size_t availableMemory()
{
  constexpr std::size_t unit = 1024;
  std::ifstream file("/proc/meminfo");
  std::size_t bytes = 0;
  bool told = false;
  std::string name;
  for (std::size_t number = 0; file >> name >> number; file.ignore(unit, '\n'))
  {
    if (name == "MemAvailable:" || name == "SwapFree:")
      bytes += number * unit;
    told = told || name == "MemAvailable:";
  }
  return told ? bytes : std::numeric_limits<std::size_t>::max();
}

} // namespace

bool hasMemory(std::size_t bytes)
{
  if (bytes == 0)
    return true;
  if (bytes > availableMemory())
    return false;
  void* probe = ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (probe == MAP_FAILED)
    return false;
  ::munmap(probe, bytes);
  return true;
}

} // namespace Talmesh::app

#include "support/DiskFaults.h"

#include <atomic>
#include <cerrno>
#include <new>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

std::atomic<int> failing{-1};
std::atomic<int> failure{0};
std::atomic<int> made{0};

bool fails(DiskCall call)
{
  if (failing != static_cast<int>(call))
    return false;
  ++made;
  if (failure == outOfMemory)
    throw std::bad_alloc();
  errno = failure;
  return true;
}

} // namespace

// A program's own functions take the place of the C library's, also for the libraries it uses.
extern "C" int fdatasync(int descriptor)
{
  return fails(DiskCall::Sync) ? -1 : static_cast<int>(syscall(SYS_fdatasync, descriptor));
}

extern "C" int linkat(int fromFolder, const char* from, int toFolder, const char* to,
                      int flags) noexcept
{
  return fails(DiskCall::Link)
             ? -1
             : static_cast<int>(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

DiskFault::DiskFault(DiskCall call, int error)
{
  made = 0;
  failure = error;
  failing = static_cast<int>(call);
}

DiskFault::~DiskFault()
{
  failing = -1;
}

int DiskFault::calls() const
{
  return made;
}

#ifndef TightMemory_h
#define TightMemory_h

#include <fstream>
#include <sys/resource.h>
#include <unistd.h>

/// While it lives, the program gets no more than some memory beyond what it has.
class TightMemory
{
public:
  explicit TightMemory(rlim_t more)
  {
    getrlimit(RLIMIT_AS, &before);
    std::ifstream statm("/proc/self/statm");
    rlim_t pages = 0;
    statm >> pages;
    const rlimit tight = {pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + more,
                          before.rlim_max};
    setrlimit(RLIMIT_AS, &tight);
  }
  ~TightMemory() { setrlimit(RLIMIT_AS, &before); }
  TightMemory(const TightMemory&) = delete;
  TightMemory& operator=(const TightMemory&) = delete;

private:
  rlimit before = {};
};

#endif

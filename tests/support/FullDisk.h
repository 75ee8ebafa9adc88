#ifndef FullDisk_h
#define FullDisk_h

#include <csignal>
#include <sys/resource.h>

/// While it lives no file can grow beyond a few bytes, as on a full disk.
class FullDisk
{
public:
  explicit FullDisk(rlim_t bytes)
  {
    getrlimit(RLIMIT_FSIZE, &before);
    handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight = {bytes, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
  }

  ~FullDisk()
  {
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

private:
  rlimit before = {};
  void (*handler)(int) = nullptr;
};

#endif

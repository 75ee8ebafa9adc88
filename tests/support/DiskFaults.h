#ifndef DiskFaults_h
#define DiskFaults_h

/// What the system is told instead of doing it.
enum class DiskCall
{
  Sync, ///< fdatasync
  Link  ///< linkat
};

/// In place of an error number: memory runs out, which callers learn of by an exception. Only calls
/// that may throw, as Sync.
inline constexpr int outOfMemory = -1;

/// While it lives, every call of a kind in this program fails with an error number.
class DiskFault
{
public:
  DiskFault(DiskCall call, int error);
  ~DiskFault();
  DiskFault(const DiskFault&) = delete;
  DiskFault& operator=(const DiskFault&) = delete;

  /// How often it was called.
  int calls() const;
};

#endif

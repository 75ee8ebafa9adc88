#ifndef ProcessMemory_h
#define ProcessMemory_h

#include <cstddef>

namespace benchmark
{
class State;
}

/// The most memory that the process has held since this began, above what it held then.
class ProcessMemory
{
public:
  ProcessMemory();

  /// Adds the counters "bytes" and "tables", of which one has that many doubles.
  void report(benchmark::State& state, std::size_t doubles) const;

private:
  double before;
};

#endif

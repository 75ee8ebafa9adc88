#ifndef IntervalSink_h
#define IntervalSink_h

#include <cstdint>

namespace Talmesh
{
/// Takes what shapes cover of the columns of a grid.
class IntervalSink
{
public:
  virtual ~IntervalSink() = default;

  /// What a shape covers of the columns from @p first to @p end, in pixels: from low[i] to high[i]
  /// of column i, nothing where that is not higher or no number.
  virtual void add(int first, int end, const float* low, const float* high,
                   std::int32_t weight) = 0;
};
} // namespace Talmesh

#endif

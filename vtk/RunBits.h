#ifndef RunBits_h
#define RunBits_h

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Talmesh
{
/// The pixels of one run that passes a column more than once, a bit for each quarter of a pixel, so
/// that what it covers twice is counted once. An interval costs a word per 16 pixels of its height,
/// however steep the line.
class RunBits
{
public:
  RunBits(int columns, int rows)
      : bitCount(rows * perPixel)
      , pitch(static_cast<std::size_t>(bitCount) / 64 + 1)
      , words(pitch * static_cast<std::size_t>(columns), 0)
      , ranges(static_cast<std::size_t>(columns))
  {
  }

  void set(int column, float low, float high)
  {
    const int first = std::clamp(toBit(low), 0, bitCount);
    const int end = std::clamp(std::max(toBit(high), toBit(low) + 1), 0, bitCount);
    if (first >= end)
      return;
    Range& range = ranges[static_cast<std::size_t>(column)];
    if (range.first > range.last)
      touched.push_back(column);
    const int lastWord = (end - 1) / 64;
    range.first = std::min(range.first, first / 64);
    range.last = std::max(range.last, lastWord);
    std::uint64_t* const bits = column0(column);
    for (int word = first / 64; word <= lastWord; ++word)
      bits[word] |= from(first - 64 * word) & ~from(end - 64 * word);
  }

  /// Calls @p sink with column, low and high of every interval and forgets them.
  template <typename Sink>
  void take(Sink&& sink)
  {
    for (const int column : touched)
    {
      Range& range = ranges[static_cast<std::size_t>(column)];
      std::uint64_t* const bits = column0(column);
      const int end = std::min(64 * (range.last + 1), bitCount);
      for (int first = next(bits, 64 * range.first, end, 0); first < end;)
      {
        const int last = next(bits, first, end, ~std::uint64_t(0));
        sink(column, static_cast<float>(first) / perPixel, static_cast<float>(last) / perPixel);
        first = next(bits, last, end, 0);
      }
      std::fill(bits + range.first, bits + range.last + 1, 0);
      range = Range();
    }
    touched.clear();
  }

private:
  static constexpr int perPixel = 4;

  struct Range
  {
    int first = 1 << 30;
    int last = -1;
  };

  static int toBit(float pixel)
  {
    return static_cast<int>(std::lround(std::clamp(pixel, -1.0e6f, 1.0e6f) * perPixel));
  }

  /// The bits of a word from @p bit on.
  static std::uint64_t from(int bit)
  {
    if (bit >= 64)
      return 0;
    return ~std::uint64_t(0) << std::max(bit, 0);
  }

  /// The next bit that is set, or clear with all bits of @p flip set; at most @p end.
  static int next(const std::uint64_t* bits, int bit, int end, std::uint64_t flip)
  {
    while (bit < end)
    {
      const std::uint64_t left = (bits[bit / 64] ^ flip) & from(bit % 64);
      if (left != 0)
        return std::min(end, bit / 64 * 64 + __builtin_ctzll(left));
      bit = (bit / 64 + 1) * 64;
    }
    return end;
  }

  std::uint64_t* column0(int column)
  {
    return words.data() + pitch * static_cast<std::size_t>(column);
  }

  int bitCount;
  std::size_t pitch;
  std::vector<std::uint64_t> words;
  std::vector<Range> ranges;
  std::vector<int> touched;
};
} // namespace Talmesh

#endif

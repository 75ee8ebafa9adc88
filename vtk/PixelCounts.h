#ifndef PixelCounts_h
#define PixelCounts_h

#include "vtk/IntervalSink.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Talmesh
{
/// Shapes of one opacity a that lie over each other: a pixel that m of them cover has the opacity
/// 1 - (1 - a)^m in whatever order they were drawn. One that covers only the part c of the pixel
/// counts log(1 - a c) / log(1 - a), with which the formula stays exact. Counts are in units, so
/// many to a whole shape that neither sums nor tables overflow.
class CoverageScale
{
public:
  /// @param totalWeight of all shapes that may come to lie over one pixel
  CoverageScale(double opacity, std::int64_t totalWeight);

  std::int32_t full() const { return perCoverage.back(); }
  std::int32_t units(float coverage) const
  {
    return perCoverage[static_cast<std::size_t>(coverage * steps + 0.5f)];
  }
  /// A shape drawn this often cannot be told from one drawn more often.
  std::int64_t mostRepeats() const { return repeats; }
  /// Of a pixel with that many units, 0 to 65535.
  std::uint32_t opacity(std::int32_t count) const
  {
    if (count <= 0)
      return 0;
    const auto index = static_cast<std::size_t>(count);
    return index < opacities.size() ? opacities[index] : opacities.back();
  }

private:
  static constexpr int steps = 256;

  std::array<std::int32_t, steps + 1> perCoverage{};
  std::vector<std::uint16_t> opacities;
  std::int64_t repeats = 1;
};

/// Counts for the pixels of a grid, columns of `rows` pixels. What is added is an interval of a
/// column: its ends are noted, and a running sum up the column gives the counts.
class PixelCounts : public IntervalSink
{
public:
  /// @param scale must outlive this object
  PixelCounts(int columns, int rows, const CoverageScale& scale);

  /// Adds what covers @p low to @p high of @p column, in pixels, @p weight times.
  void add(int column, float low, float high, std::int32_t weight);
  void add(int first, int end, const float* low, const float* high, std::int32_t weight) override;

  /// What was added to a column, as differences from each pixel to the one above it.
  const std::int32_t* column(int index) const
  {
    return differences.data() + pitch * static_cast<std::size_t>(index);
  }

private:
  std::size_t pitch;
  float top;
  const CoverageScale* scale;
  std::vector<std::int32_t> differences;
};
} // namespace Talmesh

#endif

#include "vtk/PixelCounts.h"

#include <algorithm>
#include <cmath>

namespace Talmesh
{
namespace
{
/// What is left to see through where shapes pass for opaque: less than half of one of 255 levels.
constexpr double unseen = 1.0 / 1024.0;
constexpr double largestTable = 1 << 17;
constexpr double largestSum = 1 << 30;
constexpr double finestUnits = 1024.0;
} // namespace

CoverageScale::CoverageScale(double opacity, std::int64_t totalWeight)
{
  const double a = std::clamp(opacity, 1.0 / 4096.0, 1.0 - unseen);
  const double saturation = std::log(unseen) / std::log1p(-a);
  repeats = static_cast<std::int64_t>(std::ceil(saturation));
  const double weight = static_cast<double>(std::max<std::int64_t>(totalWeight, 1));
  const double whole = std::floor(
      std::clamp(std::min(largestTable / saturation, largestSum / weight), 1.0, finestUnits));
  for (int step = 0; step <= steps; ++step)
    perCoverage[static_cast<std::size_t>(step)] = static_cast<std::int32_t>(
        std::lround(whole * std::log1p(-a * step / steps) / std::log1p(-a)));
  opacities.resize(static_cast<std::size_t>(std::ceil(saturation * whole)) + 1);
  const double light = std::exp(std::log1p(-a) / whole);
  double left = 65535.0;
  for (std::uint16_t& value : opacities)
  {
    value = static_cast<std::uint16_t>(65535.5 - left);
    left *= light;
  }
}

PixelCounts::PixelCounts(int columns, int rows, const CoverageScale& coverage)
    : pitch(static_cast<std::size_t>(rows) + 2)
    , top(static_cast<float>(rows))
    , scale(&coverage)
    , differences(pitch * static_cast<std::size_t>(columns), 0)
{
}

void PixelCounts::add(int column, float low, float high, std::int32_t weight)
{
  low = low > 0.0f ? low : 0.0f;
  high = high < top ? high : top;
  if (!(low < high))
    return;
  const int first = static_cast<int>(low);
  const int last = static_cast<int>(high);
  std::int32_t* const ends = differences.data() + pitch * static_cast<std::size_t>(column) + first;
  if (first == last)
  {
    const std::int32_t part = weight * scale->units(high - low);
    ends[0] += part;
    ends[1] -= part;
    return;
  }
  const std::int32_t whole = weight * scale->full();
  const std::int32_t lowest = weight * scale->units(static_cast<float>(first + 1) - low);
  const std::int32_t highest = weight * scale->units(high - static_cast<float>(last));
  ends[0] += lowest;
  ends[1] += whole - lowest;
  ends[last - first] += highest - whole;
  ends[last - first + 1] -= highest;
}

void PixelCounts::add(int first, int end, const float* low, const float* high, std::int32_t weight)
{
  for (int column = first; column < end; ++column)
  {
    if (low[column] < high[column])
      add(column, low[column], high[column], weight);
  }
}
} // namespace Talmesh

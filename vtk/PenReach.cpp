#include "vtk/PenReach.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh
{
namespace
{
constexpr float infinity = std::numeric_limits<float>::infinity();

float greater(float candidate, float best)
{
  return candidate > best ? candidate : best;
}

float smaller(float candidate, float best)
{
  return candidate < best ? candidate : best;
}
} // namespace

// Taps are seen from the middle of a column. Samples count as lying in the middle of their
// elements.
PenReach::PenReach(double penWidth, int columnsPerPixel)
    : width(penWidth)
    , taps(std::max(1, static_cast<int>(std::lround(penWidth * columnsPerPixel))))
{
  if (taps == 1)
    return;
  const bool even = taps % 2 == 0;
  const int half = taps / 2;
  const int start = padding() + (even ? 1 : 0);
  for (int step = -half; step <= (even ? half : half + 1); ++step)
    borderTaps.push_back({start + step, heightAt(even ? step : step - 0.5)});
  for (int step = -half; step <= (even ? half - 1 : half); ++step)
    sampleTaps.push_back({start + step, heightAt(even ? step + 0.5 : step)});
}

float PenReach::heightAt(double distance) const
{
  const double part = 2.0 * distance / taps;
  return static_cast<float>(0.5 * width * std::sqrt(std::max(0.0, 1.0 - part * part)));
}

void PenReach::cover(const Stretch& stretch, int first, int end, float* low, float* high) const
{
  if (taps == 1)
    return coverThin(stretch, first, end, low, high);
  coverWide(stretch, first, end, low, high);
  if (taps % 2 != 0)
    coverMiddle(stretch, first, end, low, high);
}

// A line of slope s that crosses a column covers a height of width * sqrt(1 + s^2) there.
void PenReach::coverThin(const Stretch& stretch, int first, int end, float* low, float* high) const
{
  const auto radius = static_cast<float>(0.5 * width);
  const float* const left = stretch.border + padding();
  const float* const bottom = stretch.lowest + padding();
  const float* const top = stretch.highest + padding();
  for (int column = first; column < end; ++column)
  {
    const float least = smaller(left[column], smaller(left[column + 1], bottom[column]));
    const float most = greater(left[column], greater(left[column + 1], top[column]));
    const float middle = 0.5f * (least + most);
    const float half = 0.5f * (most - least);
    const float reach = std::sqrt(radius * radius + half * half);
    low[column] = middle - reach;
    high[column] = middle + reach;
  }
}

void PenReach::coverWide(const Stretch& stretch, int first, int end, float* low, float* high) const
{
  std::fill(low + first, low + end, infinity);
  std::fill(high + first, high + end, -infinity);
  for (const Tap& tap : borderTaps)
  {
    const float* const y = stretch.border + tap.offset;
    for (int column = first; column < end; ++column)
    {
      low[column] = smaller(y[column] - tap.height, low[column]);
      high[column] = greater(y[column] + tap.height, high[column]);
    }
  }
  for (const Tap& tap : sampleTaps)
  {
    const float* const bottom = stretch.lowest + tap.offset;
    const float* const top = stretch.highest + tap.offset;
    for (int column = first; column < end; ++column)
    {
      low[column] = smaller(bottom[column] - tap.height, low[column]);
      high[column] = greater(top[column] + tap.height, high[column]);
    }
  }
}

// Between two borders, without a sample, a line is as thick as the pen.
void PenReach::coverMiddle(const Stretch& stretch, int first, int end, float* low,
                           float* high) const
{
  const auto radius = static_cast<float>(0.5 * width);
  const float* const left = stretch.border + padding();
  for (int column = first; column < end; ++column)
  {
    const float middle = 0.5f * (left[column] + left[column + 1]);
    low[column] = smaller(middle - radius, low[column]);
    high[column] = greater(middle + radius, high[column]);
  }
}
} // namespace Talmesh

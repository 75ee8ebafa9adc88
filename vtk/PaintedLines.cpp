#include "vtk/PaintedLines.h"

#include "stats/ParallelParts.h"
#include "vtk/PaintedColumns.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <memory>
#include <thread>

namespace Talmesh
{
namespace
{
/// Columns of pixels that are painted together: few, so that most lines keep to a part of their
/// height there.
constexpr int columnsOfSlice = 32;
/// Lines that pass all slices of a thread before the next ones do, while they are in its cache.
constexpr std::size_t linesOfBlock = 4096;

/// The segments of a line that pass between two places across, and the heights between which they
/// do so.
struct Passage
{
  std::int64_t first = -1; ///< segments, none if negative
  std::int64_t last = -1;
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void include(double height)
  {
    low = std::min(low, height);
    high = std::max(high, height);
  }
};

/// @param left in the coordinates of the points, not beyond @p right
Passage passageOf(const float* points, std::int64_t count, float left, float right)
{
  Passage passage;
  for (std::int64_t i = 0; i + 1 < count; ++i)
  {
    const float* const from = points + 2 * i;
    const float* const to = from + 2;
    // False for what is no number, to which no line leads.
    if (!(std::max(from[0], to[0]) >= left && std::min(from[0], to[0]) <= right))
      continue;
    if (passage.first < 0)
      passage.first = i;
    passage.last = i;
    const double step = static_cast<double>(to[0]) - from[0];
    const double slope = (static_cast<double>(to[1]) - from[1]) / step;
    for (const float place : {left, right})
    {
      const double along = std::clamp<double>(static_cast<double>(place) - from[0],
                                              std::min(step, 0.0), std::max(step, 0.0));
      passage.include(step == 0.0 ? from[1] : from[1] + slope * along);
    }
    if (step == 0.0)
      passage.include(to[1]);
  }
  return passage;
}

/// A few columns of the picture, and what paints them.
struct Slice
{
  Slice(int firstColumn, int columnCount, int parts, int height, const LinePen& pen)
      : first(firstColumn)
      , columns(columnCount)
      , painted(parts * columnCount, height, pen.opacity)
      , tracer(painted, parts * columnCount, height, {pen.width, pen.dotSize, parts})
      , hasDots(pen.dotSize > 0.0)
      , margin(0.5 * pen.width + 2.0)
  {
  }

  void paint(const LinesToCount& lines, std::size_t run, const LineColor& color, PixelMap map)
  {
    map.shiftX -= first;
    CountedRun line = lines.runs[run];
    if (!hasDots && !cut(line, lines.points, map))
      return;
    painted.setColor(color);
    tracer.trace(lines.points, lines.broken, line, map);
  }

  /// Leaves of a line what may pass the columns.
  /// @return whether anything of it can be seen there
  bool cut(CountedRun& line, const float* points, const PixelMap& map)
  {
    const double ends[2] = {(-margin - map.shiftX) / map.scaleX,
                            (columns + margin - map.shiftX) / map.scaleX};
    const Passage passage = passageOf(points + 2 * line.first, line.count,
                                      static_cast<float>(std::min(ends[0], ends[1])),
                                      static_cast<float>(std::max(ends[0], ends[1])));
    if (passage.first < 0)
      return false;
    const double heights[2] = {passage.low * map.scaleY + map.shiftY,
                               passage.high * map.scaleY + map.shiftY};
    if (!painted.isOpen(std::min(heights[0], heights[1]) - margin,
                        std::max(heights[0], heights[1]) + margin))
      return false;
    line.first += passage.first;
    line.count = passage.last - passage.first + 2;
    return true;
  }

  int first;
  int columns;
  PaintedColumns painted;
  RunTracer tracer;
  bool hasDots;
  double margin; ///< pixels that a line reaches beyond where it runs
};

unsigned char levelOf(float part)
{
  return static_cast<unsigned char>(std::lround(255.0f * std::clamp(part, 0.0f, 1.0f)));
}

/// The mean of the columns that make up one of pixels.
void takeMean(const PaintedColumns& columns, int firstPart, int parts, int row,
              unsigned char* pixel)
{
  PaintedColumns::Paint sum{};
  for (int part = firstPart; part < firstPart + parts; ++part)
  {
    const PaintedColumns::Paint& paint = columns.at(part, row);
    for (std::size_t i = 0; i < 3; ++i)
      sum[i] += paint[i];
    sum[3] += 1.0f - paint[3];
  }
  if (sum[3] <= 0.0f)
    return;
  for (std::size_t i = 0; i < 3; ++i)
    pixel[i] = levelOf(sum[i] / sum[3]);
  pixel[3] = levelOf(sum[3] / static_cast<float>(parts));
}

void putInto(std::vector<unsigned char>& image, int width, int height, const Slice& slice,
             int parts)
{
  for (int row = 0; row < height; ++row)
  {
    unsigned char* const pixels =
        image.data() + 4 * (static_cast<std::size_t>(row) * static_cast<std::size_t>(width) +
                            static_cast<std::size_t>(slice.first));
    for (int column = 0; column < slice.columns; ++column)
      takeMean(slice.painted, parts * column, parts, row, pixels + 4 * column);
  }
}
} // namespace

std::vector<unsigned char> paintLines(const LinesToCount& lines,
                                      const std::vector<LineColor>& colors, const PixelMap& map,
                                      int width, int height, const LinePen& pen)
{
  std::vector<unsigned char> image(4 * emptyImage(width, height).values.size(), 0);
  if (image.empty())
    return image;
  const int parts = columnsPerPixel(pen, lines.runs.size(), width, height);
  const int sliceCount = (width - 1) / columnsOfSlice + 1;
  const auto cores = std::max(1u, std::thread::hardware_concurrency());
  const auto paintSlices = [&](std::size_t firstSlice, std::size_t endSlice)
  {
    std::vector<std::unique_ptr<Slice>> slices;
    for (std::size_t i = firstSlice; i < endSlice; ++i)
    {
      const int first = static_cast<int>(i) * columnsOfSlice;
      slices.push_back(std::make_unique<Slice>(first, std::min(columnsOfSlice, width - first),
                                               parts, height, pen));
    }
    for (std::size_t end = lines.runs.size(); end > 0;)
    {
      const std::size_t begin = end - std::min(end, linesOfBlock);
      for (const auto& slice : slices)
      {
        for (std::size_t run = end; run-- > begin;)
          slice->paint(lines, run, colors[run], map);
      }
      end = begin;
    }
    for (const auto& slice : slices)
      putInto(image, width, height, *slice, parts);
  };
  // Neighbours are often alike: small parts leave no thread without work.
  stats::inParallelParts(static_cast<std::size_t>(sliceCount),
                         static_cast<std::size_t>(sliceCount) / (4 * cores) + 1, paintSlices);
  return image;
}
} // namespace Talmesh

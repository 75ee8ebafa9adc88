#include "vtk/PaintedLines.h"

#include "stats/ParallelParts.h"
#include "vtk/IntervalSink.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <thread>

namespace Talmesh
{
namespace
{
/// Pixels that are painted together, of 16 bytes each: few enough for a cache, and many enough to
/// make up for each slice's following all lines for itself.
constexpr int pixelsOfSlice = 1 << 16;

std::size_t columnsOfSlice(int width, int rows, int parts)
{
  const int cores = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  return static_cast<std::size_t>(std::clamp(pixelsOfSlice / (rows * parts), 1, width / cores + 1));
}

/// Of no colour at all, so that thousands of lines do not blend what was there before them to
/// numbers so small that processors take a hundred times as long over them.
constexpr float darkest = 1.0e-6f;

/// Red, green, blue and opacity, 0 to 1, colours multiplied by the opacity.
using Paint = std::array<float, 4>;

/// Pixels in columns, painted over with one colour after another.
class PaintedColumns : public IntervalSink
{
public:
  PaintedColumns(int columns, int rowCount, double lineOpacity)
      : rows(rowCount)
      , opacity(static_cast<float>(lineOpacity))
      , pixels(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rowCount), Paint{})
  {
  }

  void setColor(const LineColor& next)
  {
    for (std::size_t i = 0; i < next.size(); ++i)
      color[i] = std::max(static_cast<float>(next[i]) / 255.0f, darkest);
    color[3] = 1.0f;
  }

  void add(int first, int end, const float* low, const float* high, std::int32_t weight) override
  {
    repeats = weight;
    whole = opacityOf(1.0f);
    for (int column = first; column < end; ++column)
    {
      const float bottom = std::max(low[column], 0.0f);
      const float top = std::min(high[column], static_cast<float>(rows));
      if (low[column] < high[column] && bottom < top)
        addTo(column, bottom, top);
    }
  }

  const Paint& at(int column, int row) const
  {
    return pixels[static_cast<std::size_t>(column) * static_cast<std::size_t>(rows) +
                  static_cast<std::size_t>(row)];
  }

private:
  /// Of lines that cover a part of a pixel.
  float opacityOf(float part) const
  {
    const float once = opacity * part;
    return repeats == 1 ? once : 1.0f - std::pow(1.0f - once, static_cast<float>(repeats));
  }

  void addTo(int column, float low, float high)
  {
    Paint* const pixel =
        pixels.data() + static_cast<std::size_t>(column) * static_cast<std::size_t>(rows);
    const int first = static_cast<int>(low);
    const int last = static_cast<int>(high);
    // No pixel can be thought to lie over a copy, which so stays in registers.
    const Paint over = color;
    if (first == last)
      return cover(pixel[first], over, opacityOf(high - low));
    cover(pixel[first], over, opacityOf(static_cast<float>(first + 1) - low));
    const float inner = whole;
    for (int row = first + 1; row < last; ++row)
      cover(pixel[row], over, inner);
    if (last < rows)
      cover(pixel[last], over, opacityOf(high - static_cast<float>(last)));
  }

  static void cover(Paint& pixel, const Paint& over, float part)
  {
    for (std::size_t i = 0; i < pixel.size(); ++i)
      pixel[i] += part * (over[i] - pixel[i]);
  }

  int rows;
  float opacity;
  Paint color{};
  std::int32_t repeats = 1;
  float whole = 0.0f; ///< opacity of a pixel that is covered entirely
  std::vector<Paint> pixels;
};

unsigned char levelOf(float part)
{
  return static_cast<unsigned char>(std::lround(255.0f * std::clamp(part, 0.0f, 1.0f)));
}

/// The mean of the columns that make up one of pixels.
void takeMean(const PaintedColumns& columns, int firstPart, int parts, int row,
              unsigned char* pixel)
{
  Paint sum{};
  for (int part = firstPart; part < firstPart + parts; ++part)
  {
    const Paint& paint = columns.at(part, row);
    for (std::size_t i = 0; i < sum.size(); ++i)
      sum[i] += paint[i];
  }
  if (sum[3] <= 0.0f)
    return;
  for (std::size_t i = 0; i < 3; ++i)
    pixel[i] = levelOf(sum[i] / sum[3]);
  pixel[3] = levelOf(sum[3] / static_cast<float>(parts));
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
  const auto paintSlice = [&](std::size_t first, std::size_t end)
  {
    const int columns = static_cast<int>(end - first);
    PaintedColumns painted(parts * columns, height, pen.opacity);
    RunTracer tracer(painted, parts * columns, height, {pen.width, pen.dotSize, parts});
    PixelMap moved = map;
    moved.shiftX -= static_cast<double>(first);
    for (std::size_t run = 0; run < lines.runs.size(); ++run)
    {
      painted.setColor(colors[run]);
      tracer.trace(lines.points, lines.broken, lines.runs[run], moved);
    }
    for (int row = 0; row < height; ++row)
    {
      unsigned char* const pixels =
          image.data() +
          4 * (static_cast<std::size_t>(row) * static_cast<std::size_t>(width) + first);
      for (int column = 0; column < columns; ++column)
        takeMean(painted, parts * column, parts, row, pixels + 4 * column);
    }
  };
  stats::inParallelParts(static_cast<std::size_t>(width), columnsOfSlice(width, height, parts),
                         paintSlice);
  return image;
}
} // namespace Talmesh

#include "vtk/PaintedLines.h"

#include "stats/ParallelParts.h"
#include "vtk/IntervalSink.h"

#include <algorithm>
#include <cstddef>
#include <thread>

namespace Talmesh
{
namespace
{
/// Columns of pixels that are painted together. Each slice follows all lines for itself.
std::size_t sliceOf(int width)
{
  const std::size_t cores = std::max(1u, std::thread::hardware_concurrency());
  return static_cast<std::size_t>(width) / cores + 1;
}

/// Pixels in columns, painted over with one colour after another.
class ColorColumns : public IntervalSink
{
public:
  ColorColumns(int columns, int rowCount)
      : rows(rowCount)
      , pixels(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rowCount))
  {
  }

  void setColor(const LineColor& next) { color = next; }

  void add(int first, int end, const float* low, const float* high, std::int32_t) override
  {
    for (int column = first; column < end; ++column)
    {
      const float bottom = std::max(low[column], 0.0f);
      const float top = std::min(high[column], static_cast<float>(rows));
      if (low[column] < high[column] && bottom < top)
        addTo(column, bottom, top);
    }
  }

  const LineColor& at(int column, int row) const
  {
    return pixels[static_cast<std::size_t>(column) * static_cast<std::size_t>(rows) +
                  static_cast<std::size_t>(row)];
  }

private:
  void addTo(int column, float low, float high)
  {
    LineColor* const pixel =
        pixels.data() + static_cast<std::size_t>(column) * static_cast<std::size_t>(rows);
    const int first = static_cast<int>(low);
    const int last = static_cast<int>(high);
    if (first == last)
      return cover(pixel[first], high - low);
    cover(pixel[first], static_cast<float>(first + 1) - low);
    std::fill(pixel + first + 1, pixel + last, color);
    if (last < rows)
      cover(pixel[last], high - static_cast<float>(last));
  }

  /// Lays the colour over a part of a pixel.
  void cover(LineColor& pixel, float part) const
  {
    if (pixel[3] == 255)
    {
      const int weight = static_cast<int>(256.0f * part + 0.5f);
      for (std::size_t i = 0; i < 3; ++i)
        pixel[i] = static_cast<unsigned char>((color[i] * weight + pixel[i] * (256 - weight)) >> 8);
      return;
    }
    const float below = static_cast<float>(pixel[3]) / 255.0f * (1.0f - part);
    const float opacity = part + below;
    if (opacity <= 0.0f)
      return;
    for (std::size_t i = 0; i < 3; ++i)
      pixel[i] =
          static_cast<unsigned char>(std::lround((color[i] * part + pixel[i] * below) / opacity));
    pixel[3] = static_cast<unsigned char>(std::lround(255.0f * opacity));
  }

  int rows;
  LineColor color{};
  std::vector<LineColor> pixels;
};

/// The mean of the columns that make up one of pixels.
void takeMean(const ColorColumns& columns, int firstPart, int parts, int row, unsigned char* pixel)
{
  unsigned opacity = 0;
  unsigned sums[3] = {0, 0, 0};
  for (int part = firstPart; part < firstPart + parts; ++part)
  {
    const LineColor& color = columns.at(part, row);
    opacity += color[3];
    for (std::size_t i = 0; i < 3; ++i)
      sums[i] += color[i] * color[3];
  }
  for (std::size_t i = 0; i < 3; ++i)
    pixel[i] = static_cast<unsigned char>(opacity == 0 ? 0 : (sums[i] + opacity / 2) / opacity);
  pixel[3] = static_cast<unsigned char>(opacity / static_cast<unsigned>(parts));
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
    ColorColumns painted(parts * columns, height);
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
  stats::inParallelParts(static_cast<std::size_t>(width), sliceOf(width), paintSlice);
  return image;
}
} // namespace Talmesh

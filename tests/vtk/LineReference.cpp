#include "LineReference.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
constexpr int places = 8; // per pixel and direction

struct Surface
{
  int width;
  int height;
  std::vector<unsigned char> covered;

  Surface(int columns, int rows)
      : width(columns * places)
      , height(rows * places)
      , covered(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0)
  {
  }

  // Everything within radius of the segment from a to b, in pixels.
  void draw(const double a[2], const double b[2], double radius)
  {
    const auto bound = [](double value, int end)
    { return static_cast<int>(std::clamp(std::floor(value * places), 0.0, double(end))); };
    const double dx = b[0] - a[0];
    const double dy = b[1] - a[1];
    const double square = dx * dx + dy * dy;
    const int right = bound(std::max(a[0], b[0]) + radius + 1, width);
    const int top = bound(std::max(a[1], b[1]) + radius + 1, height);
    for (int j = bound(std::min(a[1], b[1]) - radius - 1, height); j < top; ++j)
    {
      for (int i = bound(std::min(a[0], b[0]) - radius - 1, width); i < right; ++i)
      {
        const double x = (i + 0.5) / places - a[0];
        const double y = (j + 0.5) / places - a[1];
        const double t = square > 0 ? std::clamp((x * dx + y * dy) / square, 0.0, 1.0) : 0.0;
        if ((x - t * dx) * (x - t * dx) + (y - t * dy) * (y - t * dy) <= radius * radius)
          covered[static_cast<std::size_t>(j * width + i)] = 1;
      }
    }
  }

  // Of the columns of places from first to end.
  double coverage(int first, int end, int row) const
  {
    int count = 0;
    for (int j = row * places; j < (row + 1) * places; ++j)
    {
      for (int i = first; i < end; ++i)
        count += covered[static_cast<std::size_t>(j * width + i)];
    }
    return static_cast<double>(count) / (places * (end - first));
  }
};
} // namespace

std::vector<double> blendedLines(const Talmesh::LinesToCount& lines, const Talmesh::PixelMap& map,
                                 int width, int height, const Talmesh::LinePen& pen)
{
  const int columns = width * pen.finest;
  const int step = places / pen.finest;
  std::vector<double> light(static_cast<std::size_t>(columns * height), 1.0);
  for (const Talmesh::CountedRun& run : lines.runs)
  {
    Surface surface(width, height);
    const auto isPoint = [&](std::int64_t i)
    {
      return i >= run.first && i < run.first + run.count &&
             std::isfinite(lines.points[2 * i] + lines.points[2 * i + 1]);
    };
    const auto place = [&](std::int64_t i)
    {
      return std::array<double, 2>{lines.points[2 * i] * map.scaleX + map.shiftX,
                                   lines.points[2 * i + 1] * map.scaleY + map.shiftY};
    };
    for (auto i = run.first; i < run.first + run.count; ++i)
    {
      if (isPoint(i) && isPoint(i + 1))
        surface.draw(place(i).data(), place(i + 1).data(), 0.5 * pen.width);
      else if (isPoint(i) && !isPoint(i - 1))
        surface.draw(place(i).data(), place(i).data(), 0.5 * pen.dotSize);
    }
    for (int row = 0; row < height; ++row)
    {
      for (int column = 0; column < columns; ++column)
        light[static_cast<std::size_t>(row * columns + column)] *=
            std::pow(1.0 - pen.opacity * surface.coverage(step * column, step * (column + 1), row),
                     double(run.weight));
    }
  }
  std::vector<double> opacities(static_cast<std::size_t>(width * height), 1.0);
  for (std::size_t i = 0; i < light.size(); ++i)
    opacities[i / static_cast<std::size_t>(pen.finest)] -= light[i] / pen.finest;
  return opacities;
}

#include "vtk/MarkerCounts.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace Talmesh
{
namespace
{
/// The lower left pixels of markers, from the first that still reaches into an image.
class Anchors
{
public:
  Anchors(const PixelMap& map, int width, int height, int size)
      : toPixels(map)
      , margin(size - 1)
      , columns(width + margin)
      , rows(height + margin)
      , offset(0.5 * size - margin + 0.5)
  {
  }

  std::size_t count() const
  {
    return static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows);
  }

  /// The anchor of a point's marker, count() if none of it is in the image.
  std::size_t of(const float* point) const
  {
    // As a screen does, a marker takes the pixels whose middles it covers.
    const double x = std::ceil(point[0] * toPixels.scaleX + toPixels.shiftX - offset);
    const double y = std::ceil(point[1] * toPixels.scaleY + toPixels.shiftY - offset);
    if (!(x >= 0.0 && y >= 0.0 && x < columns && y < rows))
      return count();
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(columns) +
           static_cast<std::size_t>(x);
  }

  int column(std::size_t anchor) const
  {
    return static_cast<int>(anchor % static_cast<std::size_t>(columns)) - margin;
  }
  int row(std::size_t anchor) const
  {
    return static_cast<int>(anchor / static_cast<std::size_t>(columns)) - margin;
  }

private:
  PixelMap toPixels;
  int margin;
  int columns;
  int rows;
  double offset;
};

/// A stretch of a sprite's column.
struct Span
{
  int column;
  int low;
  int high;
};

std::vector<Span> spansOf(const MarkerSprite& sprite)
{
  std::vector<Span> spans;
  const int size = sprite.size();
  const auto isSet = [&](int column, int row)
  { return row < size && sprite.mask()[static_cast<std::size_t>(row * size + column)] != 0; };
  for (int column = 0; column < size; ++column)
  {
    for (int row = 0; row < size; ++row)
    {
      if (!isSet(column, row))
        continue;
      const int low = row;
      while (isSet(column, row))
        ++row;
      spans.push_back({column, low, row});
    }
  }
  return spans;
}

bool isLeftOut(const MarkersToCount& markers, std::int64_t i)
{
  return markers.broken && markers.broken[i];
}
} // namespace

MarkerSprite::MarkerSprite(int shape, int size, bool highlighted, int stroke)
    : across(std::max(size, 1))
    , pixels(static_cast<std::size_t>(across) * static_cast<std::size_t>(across), 0)
{
  const int thickness = highlighted ? 3 * stroke : stroke;
  switch (static_cast<SpriteShape>(shape))
  {
  case SpriteShape::Cross:
    drawCross(thickness);
    break;
  case SpriteShape::Square:
  case SpriteShape::Circle:
  case SpriteShape::Diamond:
    drawFilled(shape);
    break;
  default:
    drawPlus(thickness);
  }
}

// Rows are given from the top, as images of sprites have them.
void MarkerSprite::set(int row, int column)
{
  if (row >= 0 && column >= 0 && row < across && column < across)
    pixels[static_cast<std::size_t>((across - 1 - row) * across + column)] = 1;
}

void MarkerSprite::drawCross(int thickness)
{
  const int below = (thickness - 1) / 2;
  for (int i = 0; i < across; ++i)
  {
    for (int beside = -below; beside < thickness - below; ++beside)
    {
      set(i + beside, i);
      set(i + beside, across - 1 - i);
    }
  }
}

void MarkerSprite::drawPlus(int thickness)
{
  const int middle = (across + 1) / 2 - 1;
  const int below = (thickness - 1) / 2;
  for (int i = 0; i < across; ++i)
  {
    for (int beside = -below; beside < thickness - below; ++beside)
    {
      set(middle + beside, i);
      set(i, middle + beside);
    }
  }
}

void MarkerSprite::drawFilled(int shape)
{
  const double radius = 0.5 * across;
  const int half = across / 2;
  for (int row = 0; row < across; ++row)
  {
    for (int column = 0; column < across; ++column)
    {
      const double x = column - radius;
      const double y = row - radius;
      bool inside = true;
      if (static_cast<SpriteShape>(shape) == SpriteShape::Circle)
        inside = x * x + y * y < radius * radius;
      else if (static_cast<SpriteShape>(shape) == SpriteShape::Diamond)
        inside = half - std::abs(row - half) >= std::abs(column - half);
      if (inside)
        set(row, column);
    }
  }
}

OpacityImage drawMarkers(const MarkersToCount& markers, const PixelMap& map, int width, int height,
                         const MarkerSprite& sprite, double opacity)
{
  OpacityImage image = emptyImage(width, height);
  if (image.values.empty() || opacity <= 0.0)
    return image;
  const Anchors anchors(map, width, height, sprite.size());
  std::vector<std::int32_t> found(anchors.count() + 1, 0);
  for (std::int64_t i = 0; i < markers.count; ++i)
  {
    if (!isLeftOut(markers, i))
      ++found[anchors.of(markers.points + 2 * i)];
  }

  const CoverageScale scale(opacity, markers.count);
  std::vector<PixelCounts> counts;
  counts.emplace_back(width, height, scale);
  const std::vector<Span> spans = spansOf(sprite);
  for (std::size_t anchor = 0; anchor < anchors.count(); ++anchor)
  {
    if (found[anchor] == 0)
      continue;
    const auto weight =
        static_cast<std::int32_t>(std::min<std::int64_t>(found[anchor], scale.mostRepeats()));
    const auto row = static_cast<float>(anchors.row(anchor));
    for (const Span& span : spans)
    {
      const int column = anchors.column(anchor) + span.column;
      const float low = row + static_cast<float>(span.low);
      const float high = row + static_cast<float>(span.high);
      if (column >= 0 && column < width)
        counts[0].add(column, low, high, weight);
    }
  }
  fillColumns(image, counts, scale, 1, 0, width);
  return image;
}

std::vector<unsigned char> drawColoredMarkers(const MarkersToCount& markers,
                                              const unsigned char* colors, const PixelMap& map,
                                              int width, int height, const MarkerSprite& sprite)
{
  std::vector<unsigned char> image(emptyImage(width, height).values.size() * 4, 0);
  if (image.empty())
    return image;
  // Of markers on the same pixels only the last one shows.
  const Anchors anchors(map, width, height, sprite.size());
  std::vector<std::int64_t> last(anchors.count() + 1, -1);
  for (std::int64_t i = 0; i < markers.count; ++i)
  {
    if (!isLeftOut(markers, i))
      last[anchors.of(markers.points + 2 * i)] = i;
  }
  std::vector<std::pair<std::int64_t, std::size_t>> shown;
  for (std::size_t anchor = 0; anchor < anchors.count(); ++anchor)
  {
    if (last[anchor] >= 0)
      shown.emplace_back(last[anchor], anchor);
  }
  std::sort(shown.begin(), shown.end());

  const std::vector<Span> spans = spansOf(sprite);
  for (const auto& [point, anchor] : shown)
  {
    for (const Span& span : spans)
    {
      const int column = anchors.column(anchor) + span.column;
      if (column < 0 || column >= width)
        continue;
      const int end = std::min(height, anchors.row(anchor) + span.high);
      for (int row = std::max(0, anchors.row(anchor) + span.low); row < end; ++row)
        std::copy_n(colors + 4 * point, 4,
                    image.data() + 4 * (static_cast<std::ptrdiff_t>(row) * width + column));
    }
  }
  return image;
}
} // namespace Talmesh

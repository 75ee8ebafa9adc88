#include "app/runs/NearestPlace.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Talmesh::app
{

namespace
{

bool isDrawn(const DrawnPoint& point)
{
  return std::isfinite(point.x) && std::isfinite(point.y);
}

DrawnPoint nearestOfPiece(const DrawnPoint& from, const DrawnPoint& to, const DrawnPoint& point)
{
  const double lengthX = to.x - from.x;
  const double lengthY = to.y - from.y;
  const double square = lengthX * lengthX + lengthY * lengthY;
  const double part =
      square > 0
          ? std::clamp(((point.x - from.x) * lengthX + (point.y - from.y) * lengthY) / square, 0.0,
                       1.0)
          : 0.0;
  return {from.x + lengthX * part, from.y + lengthY * part};
}

double distance(const DrawnPoint& a, const DrawnPoint& b)
{
  return std::hypot(a.x - b.x, a.y - b.y);
}

/// Between places in pixels and values.
class PixelScale
{
public:
  explicit PixelScale(const DrawnManner& drawn)
      : manner(drawn)
  {
  }

  DrawnPoint pixelOf(const DrawnPoint& point) const
  {
    const double x = manner.scale.logX ? std::log10(point.x) : point.x;
    const double y = manner.scale.logY ? std::log10(point.y) : point.y;
    return {x / manner.unitsX, y / manner.unitsY};
  }

  DrawnPoint pointAt(const DrawnPoint& pixel) const
  {
    const double x = pixel.x * manner.unitsX;
    const double y = pixel.y * manner.unitsY;
    return {manner.scale.logX ? std::pow(10.0, x) : x, manner.scale.logY ? std::pow(10.0, y) : y};
  }

  /// The values that lie less than so many pixels from one of them.
  DrawnWindow around(const DrawnPoint& pixel, double within) const
  {
    const DrawnPoint low = pointAt({pixel.x - within, pixel.y - within});
    const DrawnPoint high = pointAt({pixel.x + within, pixel.y + within});
    return {low.x, high.x, low.y, high.y};
  }

private:
  const DrawnManner& manner;
};

/// Whether a piece lies beside a window, above or below it: most do. Missing ones do not.
bool isBeside(const DrawnPoint& a, const DrawnPoint& b, const DrawnWindow& window)
{
  return std::max(a.x, b.x) < window.x0 || std::min(a.x, b.x) > window.x1 ||
         std::max(a.y, b.y) < window.y0 || std::min(a.y, b.y) > window.y1;
}

} // namespace

NearestPlace nearestPlace(const RunCourse& course, const DrawnPoint& place,
                          const DrawnManner& manner, double within)
{
  const PixelScale scale(manner);
  const DrawnPoint target = scale.pixelOf(place);
  const DrawnWindow window = scale.around(target, within);
  NearestPlace nearest;
  NearestPlace nearestOwn;
  const auto look = [&](const DrawnPoint& pixel, NearestPlace& best)
  {
    const double away = distance(pixel, target);
    if (away < within && away < best.distance)
      best = {away, pixel};
  };
  for (std::size_t i = 0; i < course.size; ++i)
  {
    const DrawnPoint own{course.x[i], course.y[i]};
    const DrawnPoint before =
        manner.lines && i > 0 ? DrawnPoint{course.x[i - 1], course.y[i - 1]} : own;
    if (isBeside(before, own, window))
      continue;
    const DrawnPoint to = scale.pixelOf(own);
    const DrawnPoint from = scale.pixelOf(before);
    if (isDrawn(to))
      look(to, nearestOwn);
    if (isDrawn(from))
      look(from, nearestOwn);
    if (isDrawn(from) && isDrawn(to))
      look(nearestOfPiece(from, to, target), nearest);
  }
  const bool isOwn = nearestOwn.distance < within;
  const double away = std::min(nearest.distance, nearestOwn.distance);
  return {away, scale.pointAt(isOwn ? nearestOwn.point : nearest.point)};
}

} // namespace Talmesh::app

#include "app/runs/DrawnCourse.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::app
{

namespace
{

double placeOf(double value, bool logarithmic)
{
  if (!logarithmic)
    return value;
  return value > 0 ? std::log10(value) : std::numeric_limits<double>::quiet_NaN();
}

DrawnPoint placeOf(const DrawnPoint& point, const DrawnScale& scale)
{
  return {placeOf(point.x, scale.logX), placeOf(point.y, scale.logY)};
}

/// In places along the axes. A side below all that a logarithmic axis shows lies infinitely far
/// down.
DrawnWindow placeOf(const DrawnWindow& window, const DrawnScale& scale)
{
  const auto side = [](double value, bool logarithmic)
  {
    return logarithmic && value <= 0 ? -std::numeric_limits<double>::infinity()
                                     : placeOf(value, logarithmic);
  };
  const auto [x0, x1] = std::minmax({side(window.x0, scale.logX), side(window.x1, scale.logX)});
  const auto [y0, y1] = std::minmax({side(window.y0, scale.logY), side(window.y1, scale.logY)});
  return {x0, x1, y0, y1};
}

bool isDrawn(const DrawnPoint& point)
{
  return std::isfinite(point.x) && std::isfinite(point.y);
}

/// Calls `meets(from, to)` for each piece of the line, in places, until it answers true. A point
/// with nothing on either side is a piece of no length.
template <typename Meets>
bool anyPiece(const RunCourse& course, const DrawnScale& scale, const Meets& meets)
{
  DrawnPoint before{0, 0};
  bool hasBefore = false;
  for (std::size_t i = 0; i < course.size; ++i)
  {
    const DrawnPoint point = placeOf(DrawnPoint{course.x[i], course.y[i]}, scale);
    const bool drawn = isDrawn(point);
    if (drawn && meets(hasBefore ? before : point, point))
      return true;
    before = point;
    hasBefore = drawn;
  }
  return false;
}

/// Whether no line is drawn somewhere between two places along x, or a point there is missing.
bool hasGapBetween(const RunCourse& course, double x0, double x1, const DrawnScale& scale)
{
  DrawnPoint before{std::numeric_limits<double>::quiet_NaN(), 0};
  for (std::size_t i = 0; i < course.size; ++i)
  {
    const DrawnPoint point = placeOf(DrawnPoint{course.x[i], course.y[i]}, scale);
    if (x0 <= point.x && point.x <= x1 && !isDrawn(point))
      return true;
    const auto [left, right] = std::minmax(before.x, point.x);
    const bool isJoined = isDrawn(before) && isDrawn(point);
    if (!isJoined && left < x1 && right > x0)
      return true;
    before = point;
  }
  return false;
}

/// The part of a piece, from 0 to 1 along it, in which one coordinate lies between two limits.
struct Part
{
  double begin = 0;
  double end = 1;
  bool isEmpty() const { return !(begin <= end); }

  void clip(double from, double to, double low, double high)
  {
    if (from == to)
    {
      if (from < low || from > high)
        end = -1;
      return;
    }
    // A piece from or to infinity is nowhere in between.
    const double length = to - from;
    const auto [first, last] = std::minmax({(low - from) / length, (high - from) / length});
    begin = std::max(begin, first);
    end = std::min(end, last);
  }
};

double along(double from, double to, double part)
{
  return part <= 0 ? from : part >= 1 ? to : from + (to - from) * part;
}

/// Positive where `point` lies left of the way from `from` to `to`.
double sideOf(const DrawnPoint& from, const DrawnPoint& to, const DrawnPoint& point)
{
  return (to.x - from.x) * (point.y - from.y) - (to.y - from.y) * (point.x - from.x);
}

bool isBetween(const DrawnPoint& from, const DrawnPoint& to, const DrawnPoint& point)
{
  return std::min(from.x, to.x) <= point.x && point.x <= std::max(from.x, to.x) &&
         std::min(from.y, to.y) <= point.y && point.y <= std::max(from.y, to.y);
}

bool areOpposite(double left, double right)
{
  return (left > 0 && right < 0) || (left < 0 && right > 0);
}

bool meet(const DrawnPoint& a, const DrawnPoint& b, const DrawnPoint& c, const DrawnPoint& d)
{
  const double sideA = sideOf(c, d, a);
  const double sideB = sideOf(c, d, b);
  const double sideC = sideOf(a, b, c);
  const double sideD = sideOf(a, b, d);
  if (areOpposite(sideA, sideB) && areOpposite(sideC, sideD))
    return true;
  return (sideA == 0 && isBetween(c, d, a)) || (sideB == 0 && isBetween(c, d, b)) ||
         (sideC == 0 && isBetween(a, b, c)) || (sideD == 0 && isBetween(a, b, d));
}

bool surrounds(const std::vector<DrawnPoint>& corners, const DrawnPoint& point)
{
  bool inside = false;
  for (std::size_t i = 0, before = corners.size() - 1; i < corners.size(); before = i++)
  {
    const DrawnPoint& a = corners[i];
    const DrawnPoint& b = corners[before];
    if ((a.y > point.y) != (b.y > point.y) &&
        point.x < a.x + (b.x - a.x) * ((point.y - a.y) / (b.y - a.y)))
      inside = !inside;
  }
  return inside;
}

/// Whether a straight line, which may be a point, has one in a polygon or on its border.
bool isIn(const std::vector<DrawnPoint>& corners, const DrawnPoint& from, const DrawnPoint& to)
{
  if (surrounds(corners, from) || surrounds(corners, to))
    return true;
  for (std::size_t i = 0, before = corners.size() - 1; i < corners.size(); before = i++)
    if (meet(from, to, corners[before], corners[i]))
      return true;
  return false;
}

/// Whether corners lie on one straight line, as those do that all are one.
bool areOnOneLine(const std::vector<DrawnPoint>& corners)
{
  const auto another = std::find_if(corners.begin(), corners.end(),
                                    [&first = corners[0]](const DrawnPoint& corner)
                                    { return corner.x != first.x || corner.y != first.y; });
  return another == corners.end() || std::all_of(another, corners.end(),
                                                 [&](const DrawnPoint& corner) {
                                                   return sideOf(corners[0], *another, corner) == 0;
                                                 });
}

/// The corners of a polygon that has an inside, in places; else none.
std::vector<DrawnPoint> polygonOf(const std::vector<DrawnPoint>& corners, const DrawnScale& scale)
{
  std::vector<DrawnPoint> places;
  for (const DrawnPoint& corner : corners)
  {
    const DrawnPoint place = placeOf(corner, scale);
    if (isDrawn(place))
      places.push_back(place);
  }
  if (places.size() < 3 || areOnOneLine(places))
    places.clear();
  return places;
}

/// The smallest window around a polygon.
DrawnWindow boundsOf(const std::vector<DrawnPoint>& corners)
{
  DrawnWindow bounds{corners[0].x, corners[0].x, corners[0].y, corners[0].y};
  for (const DrawnPoint& corner : corners)
  {
    bounds.x0 = std::min(bounds.x0, corner.x);
    bounds.x1 = std::max(bounds.x1, corner.x);
    bounds.y0 = std::min(bounds.y0, corner.y);
    bounds.y1 = std::max(bounds.y1, corner.y);
  }
  return bounds;
}

/// Whether a piece lies beside a window on one of its sides.
bool isBeside(const DrawnWindow& window, const DrawnPoint& a, const DrawnPoint& b)
{
  return (a.x < window.x0 && b.x < window.x0) || (a.x > window.x1 && b.x > window.x1) ||
         (a.y < window.y0 && b.y < window.y0) || (a.y > window.y1 && b.y > window.y1);
}

} // namespace

bool passesThrough(const RunCourse& course, const DrawnWindow& window, const DrawnScale& scale)
{
  const DrawnWindow places = placeOf(window, scale);
  return anyPiece(course, scale,
                  [&places](const DrawnPoint& from, const DrawnPoint& to)
                  {
                    Part part;
                    part.clip(from.x, to.x, places.x0, places.x1);
                    part.clip(from.y, to.y, places.y0, places.y1);
                    return !part.isEmpty();
                  });
}

bool staysInside(const RunCourse& course, const DrawnWindow& window, const DrawnScale& scale)
{
  const DrawnWindow places = placeOf(window, scale);
  if (hasGapBetween(course, places.x0, places.x1, scale))
    return false;
  bool covered = false;
  const bool leaves = anyPiece(course, scale,
                               [&places, &covered](const DrawnPoint& from, const DrawnPoint& to)
                               {
                                 Part part;
                                 part.clip(from.x, to.x, places.x0, places.x1);
                                 if (part.isEmpty())
                                   return false;
                                 covered = true;
                                 const auto isOutside = [&](double place)
                                 {
                                   const double y = along(from.y, to.y, place);
                                   return !(places.y0 <= y && y <= places.y1);
                                 };
                                 return isOutside(part.begin) || isOutside(part.end);
                               });
  return covered && !leaves;
}

bool crossesLine(const RunCourse& course, const DrawnPoint& from, const DrawnPoint& to,
                 const DrawnScale& scale)
{
  const DrawnPoint begin = placeOf(from, scale);
  const DrawnPoint end = placeOf(to, scale);
  if (!isDrawn(begin) || !isDrawn(end))
    return false;
  return anyPiece(course, scale,
                  [&](const DrawnPoint& a, const DrawnPoint& b) { return meet(a, b, begin, end); });
}

bool entersPolygon(const RunCourse& course, const std::vector<DrawnPoint>& corners,
                   const DrawnScale& scale)
{
  const std::vector<DrawnPoint> places = polygonOf(corners, scale);
  if (places.empty())
    return false;
  // Most lines pass far from what is drawn around few.
  const DrawnWindow bounds = boundsOf(places);
  return anyPiece(course, scale,
                  [&](const DrawnPoint& from, const DrawnPoint& to)
                  { return !isBeside(bounds, from, to) && isIn(places, from, to); });
}

bool hasPointIn(const RunCourse& course, const DrawnWindow& window, const DrawnScale& scale)
{
  const DrawnWindow places = placeOf(window, scale);
  return anyPiece(course, scale,
                  [&places](const DrawnPoint&, const DrawnPoint& point)
                  {
                    return places.x0 <= point.x && point.x <= places.x1 && places.y0 <= point.y &&
                           point.y <= places.y1;
                  });
}

bool hasPointIn(const RunCourse& course, const std::vector<DrawnPoint>& corners,
                const DrawnScale& scale)
{
  const std::vector<DrawnPoint> places = polygonOf(corners, scale);
  if (places.empty())
    return false;
  const DrawnWindow bounds = boundsOf(places);
  return anyPiece(course, scale,
                  [&](const DrawnPoint&, const DrawnPoint& point)
                  { return !isBeside(bounds, point, point) && isIn(places, point, point); });
}

} // namespace Talmesh::app

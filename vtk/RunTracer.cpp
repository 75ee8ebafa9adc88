#include "vtk/RunTracer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh
{
namespace
{
constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float none = std::numeric_limits<float>::quiet_NaN();
/// Pixels beyond which a height makes no difference; floats are exact to a sixteenth here.
constexpr double farAway = 1.0e6;
/// Elements and pixels within which lines are followed the short way.
constexpr double farthest = 1.0e9;

float heightOf(double y)
{
  return static_cast<float>(std::clamp(y, -farAway, farAway));
}
} // namespace

RunTracer::RunTracer(IntervalSink& target, int columnCount, int rowCount, const Pen& used)
    : sink(target)
    , columns(columnCount)
    , rows(rowCount)
    , pen(used)
    , reach(used.width, used.columnsPerPixel)
    // The middle of an even number of columns is a border between two of them.
    , shift(reach.padding() + (reach.columns() % 2 == 0 ? 0.5 : 0.0))
{
  const auto elements = static_cast<std::size_t>(columns + 2 * reach.padding() + 1);
  border.assign(elements + 1, none);
  lowest.assign(elements, infinity);
  highest.assign(elements, -infinity);
  firstElement = static_cast<int>(elements);
  low.resize(static_cast<std::size_t>(columns));
  high.resize(static_cast<std::size_t>(columns));
}

void RunTracer::trace(const float* points, const unsigned char* broken, const CountedRun& run,
                      const PixelMap& map)
{
  const PixelMap toElements{map.scaleX * pen.columnsPerPixel,
                            map.shiftX * pen.columnsPerPixel + shift, map.scaleY, map.shiftY};
  std::int64_t i = run.first;
  if (!broken)
    i += traceForward(points + 2 * run.first, run.count, toElements);
  for (; i < run.first + run.count; ++i)
  {
    const Position point = positionOf(points + 2 * i, toElements);
    if ((broken && broken[i]) || !std::isfinite(point.x) || !std::isfinite(point.y))
      endPiece();
    else
      addPoint(point);
  }
  endPiece();
  finish(static_cast<std::int32_t>(run.weight));
}

RunTracer::Position RunTracer::positionOf(const float* point, const PixelMap& toElements)
{
  return {point[0] * toElements.scaleX + toElements.shiftX,
          point[1] * toElements.scaleY + toElements.shiftY};
}

// What addPoint() does, for the points of nearly all runs.
std::int64_t RunTracer::traceForward(const float* points, std::int64_t count,
                                     const PixelMap& toElements)
{
  const auto end = static_cast<double>(lowest.size());
  std::int64_t i = 0;
  for (; i < count; ++i)
  {
    const Position point = positionOf(points + 2 * i, toElements);
    if (!(std::abs(point.x) < farthest && std::abs(point.y) < farthest))
      break;
    if (i > 0)
    {
      if (!(point.x >= previous.x))
        break;
      if (i == 1)
        include(previous);
      if (previous.x < 0.0 || point.x >= end)
        segment(previous, point);
      else
        segmentWithin(previous, point);
      include(point);
    }
    previous = point;
  }
  pieceLength = static_cast<int>(std::min<std::int64_t>(i, 2));
  direction = i > 1 ? 1 : 0;
  return i;
}

void RunTracer::segmentWithin(const Position& from, const Position& to)
{
  const int first = static_cast<int>(from.x);
  const int last = static_cast<int>(to.x);
  firstElement = std::min(firstElement, first);
  lastElement = last;
  enter(from, to, first, last);
}

/// The borders of the elements behind `first` up to `last`.
void RunTracer::enter(const Position& from, const Position& to, int first, int last)
{
  if (first == last)
    return;
  const double slope = (to.y - from.y) / (to.x - from.x);
  const double start = from.y - slope * from.x;
  for (int element = first + 1; element <= last; ++element)
    border[static_cast<std::size_t>(element)] = heightOf(start + slope * element);
}

void RunTracer::addPoint(const Position& point)
{
  if (pieceLength > 0)
  {
    const int step = (point.x > previous.x) - (point.x < previous.x);
    if (pieceLength == 1 || step * direction < 0)
    {
      flushToBits();
      include(previous);
    }
    if (step != 0)
      direction = step;
    if (step < 0)
      segment(point, previous);
    else
      segment(previous, point);
    include(point);
  }
  previous = point;
  ++pieceLength;
}

void RunTracer::endPiece()
{
  if (pieceLength == 1 && pen.dotSize > 0.0)
    dot(previous);
  pieceLength = 0;
  direction = 0;
}

void RunTracer::segment(const Position& from, const Position& to)
{
  const auto end = static_cast<double>(lowest.size());
  if (to.x < 0.0 || from.x >= end)
    return;
  const int first = from.x > 0.0 ? static_cast<int>(from.x) : -1;
  const int last = to.x < end ? static_cast<int>(to.x) : static_cast<int>(lowest.size());
  firstElement = std::min(firstElement, std::max(first, 0));
  lastElement = std::max(lastElement, std::min(last, static_cast<int>(lowest.size()) - 1));
  enter(from, to, first, last);
}

void RunTracer::include(const Position& point)
{
  if (!(point.x >= 0.0 && point.x < static_cast<double>(lowest.size())))
    return;
  const auto i = static_cast<std::size_t>(point.x);
  const float y = heightOf(point.y);
  lowest[i] = std::min(lowest[i], y);
  highest[i] = std::max(highest[i], y);
}

void RunTracer::dot(const Position& center)
{
  if (!bits)
    bits.emplace(columns, rows);
  usesBits = true;
  const double radius = 0.5 * pen.dotSize;
  const double middle = center.x - shift;
  const double reachX = radius * pen.columnsPerPixel;
  if (middle + reachX < 0.0 || middle - reachX > columns)
    return;
  const int end = std::min(columns, static_cast<int>(std::lround(middle + reachX)));
  for (int column = std::max(0, static_cast<int>(std::lround(middle - reachX))); column < end;
       ++column)
  {
    const double distance = (column + 0.5 - middle) / pen.columnsPerPixel;
    const double height = std::sqrt(std::max(0.0, radius * radius - distance * distance));
    const double y = std::clamp(center.y, -farAway, farAway);
    bits->set(column, static_cast<float>(y - height), static_cast<float>(y + height));
  }
}

// Runs come back to a column or break there: what they cover twice must count once.
void RunTracer::flushToBits()
{
  int first = 0;
  int end = 0;
  if (!reachColumns(first, end))
    return;
  if (!bits)
    bits.emplace(columns, rows);
  usesBits = true;
  for (int column = first; column < end; ++column)
  {
    const auto i = static_cast<std::size_t>(column);
    if (low[i] < high[i])
      bits->set(column, low[i], high[i]);
  }
  forgetStretch();
}

void RunTracer::finish(std::int32_t weight)
{
  if (usesBits)
  {
    flushToBits();
    bits->take(
        [this, weight](int column, float from, float to)
        {
          low[static_cast<std::size_t>(column)] = from;
          high[static_cast<std::size_t>(column)] = to;
          sink.add(column, column + 1, low.data(), high.data(), weight);
        });
    usesBits = false;
    return;
  }
  int first = 0;
  int end = 0;
  if (!reachColumns(first, end))
    return;
  sink.add(first, end, low.data(), high.data(), weight);
  forgetStretch();
}

bool RunTracer::reachColumns(int& first, int& end)
{
  if (lastElement < firstElement)
    return false;
  first = std::max(0, firstElement - 2 * reach.padding());
  end = std::min(columns, lastElement + 1);
  reach.cover({border.data(), lowest.data(), highest.data()}, first, end, low.data(), high.data());
  return true;
}

void RunTracer::forgetStretch()
{
  std::fill(border.begin() + firstElement, border.begin() + lastElement + 2, none);
  std::fill(lowest.begin() + firstElement, lowest.begin() + lastElement + 1, infinity);
  std::fill(highest.begin() + firstElement, highest.begin() + lastElement + 1, -infinity);
  firstElement = static_cast<int>(lowest.size());
  lastElement = -1;
}
} // namespace Talmesh

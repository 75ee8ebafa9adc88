#include "app/runs/RunCourse.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace Talmesh::app
{

namespace
{

constexpr double undefined = std::numeric_limits<double>::quiet_NaN();

bool isPoint(const RunCourse& course, std::size_t i)
{
  return !std::isnan(course.x[i]) && !std::isnan(course.y[i]);
}

template <typename Better>
double extremeOf(const RunCourse& course, Better better)
{
  double extreme = undefined;
  for (std::size_t i = 0; i < course.size; ++i)
  {
    if (isPoint(course, i) && (std::isnan(extreme) || better(course.y[i], extreme)))
      extreme = course.y[i];
  }
  return extreme;
}

/// A level stretch that is higher than what is beside it.
struct Peak
{
  double time;
  double height;
  /// Its first and its last point, into `Points`.
  std::size_t first;
  std::size_t last;
};

/// A course without its missing points.
struct Points
{
  explicit Points(const RunCourse& course)
  {
    for (std::size_t i = 0; i < course.size; ++i)
    {
      if (!isPoint(course, i))
        continue;
      x.push_back(course.x[i]);
      y.push_back(course.y[i]);
    }
  }

  std::vector<double> x;
  std::vector<double> y;
};

std::vector<Peak> risingAndFalling(const Points& points)
{
  std::vector<Peak> peaks;
  const std::vector<double>& y = points.y;
  for (std::size_t i = 1; i + 1 < y.size(); ++i)
  {
    if (!(y[i] > y[i - 1]))
      continue;
    std::size_t last = i;
    while (last + 1 < y.size() && y[last + 1] == y[i])
      ++last;
    if (last + 1 < y.size() && y[last + 1] < y[i])
      peaks.push_back({points.x[i] + (points.x[last] - points.x[i]) / 2, y[i], i, last});
    i = last;
  }
  return peaks;
}

/// The lowest value on the way from each peak to a higher point before it, or to the start. What a
/// lower peak has seen need not be looked at again, so the way is linear in the points.
std::vector<double> lowestBefore(const std::vector<double>& y, const std::vector<Peak>& peaks)
{
  struct Seen
  {
    double height;
    double lowest;
  };
  std::vector<double> lowest;
  std::vector<Seen> higher;
  std::size_t next = 0;
  for (const Peak& peak : peaks)
  {
    double low = peak.height;
    for (; next < peak.first; ++next)
    {
      double under = y[next];
      while (!higher.empty() && higher.back().height <= y[next])
      {
        under = std::min(under, higher.back().lowest);
        higher.pop_back();
      }
      higher.push_back({y[next], under});
    }
    for (; !higher.empty() && higher.back().height <= peak.height; higher.pop_back())
      low = std::min(low, higher.back().lowest);
    lowest.push_back(low);
    // The peak stands for all that it hides from the following ones.
    higher.push_back({peak.height, low});
    next = peak.last + 1;
  }
  return lowest;
}

std::vector<double> lowestBehind(const std::vector<double>& y, const std::vector<Peak>& peaks)
{
  const std::vector<double> backwards(y.rbegin(), y.rend());
  std::vector<Peak> turned;
  for (auto peak = peaks.rbegin(); peak != peaks.rend(); ++peak)
    turned.push_back(
        {peak->time, peak->height, y.size() - 1 - peak->last, y.size() - 1 - peak->first});
  std::vector<double> lowest = lowestBefore(backwards, turned);
  std::reverse(lowest.begin(), lowest.end());
  return lowest;
}

} // namespace

double smallestOf(const RunCourse& course)
{
  return extremeOf(course, std::less<double>());
}

double largestOf(const RunCourse& course)
{
  return extremeOf(course, std::greater<double>());
}

double meanOf(const RunCourse& course)
{
  const Points points(course);
  if (points.y.empty())
    return undefined;
  const auto count = static_cast<double>(points.y.size());
  const double mean = std::accumulate(points.y.begin(), points.y.end(), 0.0) / count;
  if (std::isfinite(mean))
  {
    // The mean of whole numbers, or of equal ones, shall be the number that a condition names.
    double rest = 0;
    for (const double value : points.y)
      rest += value - mean;
    const double exact = mean + rest / count;
    return std::isfinite(exact) ? exact : mean;
  }
  double sumOfParts = 0;
  for (const double value : points.y)
    sumOfParts += value / count;
  return sumOfParts;
}

double firstOf(const RunCourse& course)
{
  return course.size == 0 ? undefined : course.y[0];
}

double finalOf(const RunCourse& course)
{
  return course.size == 0 ? undefined : course.y[course.size - 1];
}

double valueAt(const RunCourse& course, double time)
{
  for (std::size_t i = 0; i < course.size; ++i)
  {
    if (course.x[i] == time)
      return course.y[i];
    if (i == 0 || !(course.x[i - 1] < time && time < course.x[i]))
      continue;
    if (!std::isfinite(course.y[i - 1]) || !std::isfinite(course.y[i]))
      return undefined;
    const double part = (time - course.x[i - 1]) / (course.x[i] - course.x[i - 1]);
    return course.y[i - 1] * (1 - part) + course.y[i] * part;
  }
  return undefined;
}

std::vector<double> peaksOf(const RunCourse& course, double prominence)
{
  const Points points(course);
  const std::vector<Peak> peaks = risingAndFalling(points);
  const double least = std::isnan(prominence)
                           ? standardProminence * (largestOf(course) - smallestOf(course))
                           : prominence;
  const std::vector<double> before = lowestBefore(points.y, peaks);
  const std::vector<double> behind = lowestBehind(points.y, peaks);
  std::vector<double> times;
  for (std::size_t i = 0; i < peaks.size(); ++i)
  {
    if (peaks[i].height - std::max(before[i], behind[i]) >= least)
      times.push_back(peaks[i].time);
  }
  return times;
}

double periodOf(const RunCourse& course, double prominence)
{
  const std::vector<double> times = peaksOf(course, prominence);
  if (times.size() < 2)
    return undefined;
  std::vector<double> distances;
  for (std::size_t i = 1; i < times.size(); ++i)
    distances.push_back(times[i] - times[i - 1]);
  const auto middle = distances.begin() + static_cast<std::ptrdiff_t>(distances.size() / 2);
  std::nth_element(distances.begin(), middle, distances.end());
  if (distances.size() % 2 == 1)
    return *middle;
  return (*std::max_element(distances.begin(), middle) + *middle) / 2;
}

} // namespace Talmesh::app

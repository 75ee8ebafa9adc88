#ifndef RunCourse_h
#define RunCourse_h

#include <cstddef>
#include <vector>

/// What can be said of one run's course of one item, in numbers. A point with a missing (NaN)
/// coordinate counts for nothing; the line between its neighbours is not drawn.
namespace Talmesh::app
{

/// The points of one run in the order in which they are joined. Refers to memory of others.
struct RunCourse
{
  /// Times, or the values of the item on the x axis.
  const double* x = nullptr;
  const double* y = nullptr;
  std::size_t size = 0;
};

/// Features. NaN where there is none.

double smallestOf(const RunCourse& course);
double largestOf(const RunCourse& course);
/// The arithmetic mean of the points, whatever their distance in time.
double meanOf(const RunCourse& course);
/// The value of the first and the last point, NaN if it is missing.
double firstOf(const RunCourse& course);
double finalOf(const RunCourse& course);
/// The value at a time, linear between the points around it; NaN outside of the course and beside a
/// missing or an infinite value. Times ascend.
double valueAt(const RunCourse& course, double time);

/// The part of its own range that a peak must stand out by where nothing else is asked.
constexpr double standardProminence = 0.1;

/// The times of the peaks, ascending: a peak is higher than what is beside it, at both ends of a
/// level stretch, whose middle is its time; the first and the last point are none. Its prominence
/// is its height above the higher one of the two lowest points between it and the next higher
/// point, or the end, on either side.
/// @param prominence the least that counts, in units of the values; NaN for `standardProminence` of
/// the range
std::vector<double> peaksOf(const RunCourse& course, double prominence);
/// The median distance of neighbouring peaks; NaN with fewer than two.
double periodOf(const RunCourse& course, double prominence);

} // namespace Talmesh::app

#endif

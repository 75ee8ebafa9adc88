#ifndef NearestPlace_h
#define NearestPlace_h

#include "app/runs/DrawnCourse.h"

#include <limits>

namespace Talmesh::app
{

/// How a chart draws courses.
struct DrawnManner
{
  DrawnScale scale;
  /// How much of each axis, or of its decades, is as long as 1: a pixel.
  double unitsX = 1;
  double unitsY = 1;
  /// Whether the points are joined.
  bool lines = true;
};

/// What is nearest to a place in a chart.
struct NearestPlace
{
  double distance = std::numeric_limits<double>::infinity();
  DrawnPoint point{0, 0};
};

/// The point of the line, or of the points alone, that is nearest to `place`, if it is nearer than
/// `within`. One of the course's own points goes before others of the line.
NearestPlace nearestPlace(const RunCourse& course, const DrawnPoint& place,
                          const DrawnManner& manner, double within);

} // namespace Talmesh::app

#endif

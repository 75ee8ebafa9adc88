#ifndef DrawnCourse_h
#define DrawnCourse_h

#include "app/runs/RunCourse.h"

#include <vector>

/// Where the line of a run lies in a chart. All coordinates are those of the data; a scale says
/// which axes are logarithmic, as there the line between two points is another one. What such an
/// axis cannot show is missing.
namespace Talmesh::app
{

struct DrawnScale
{
  bool logX = false;
  bool logY = false;
};

struct DrawnPoint
{
  double x;
  double y;
};

/// A rectangle, its sides included; whichever side is named first.
struct DrawnWindow
{
  double x0;
  double x1;
  double y0;
  double y1;
};

/// Whether the line has a point in the window.
bool passesThrough(const RunCourse& course, const DrawnWindow& window, const DrawnScale& scale);
/// Whether the line has a part between the window's left and right side, and no part there that is
/// above or below it, and no gap there.
bool staysInside(const RunCourse& course, const DrawnWindow& window, const DrawnScale& scale);
/// Whether the line crosses or touches the straight line between two points.
bool crossesLine(const RunCourse& course, const DrawnPoint& from, const DrawnPoint& to,
                 const DrawnScale& scale);
/// Whether the line has a point within a polygon or on its border. The last corner is joined to the
/// first one; where the border crosses itself, what is surrounded twice is outside. A polygon of
/// less than three corners has no inside.
bool entersPolygon(const RunCourse& course, const std::vector<DrawnPoint>& corners,
                   const DrawnScale& scale);
/// Whether a point of the course, whatever is drawn between them, is in the window or the polygon,
/// or on the border of it.
bool hasPointIn(const RunCourse& course, const DrawnWindow& window, const DrawnScale& scale);
bool hasPointIn(const RunCourse& course, const std::vector<DrawnPoint>& corners,
                const DrawnScale& scale);
} // namespace Talmesh::app

#endif

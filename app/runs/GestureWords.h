#ifndef GestureWords_h
#define GestureWords_h

#include "app/runs/DrawnCourse.h"

#include <string>
#include <vector>

namespace Talmesh::app
{

/// What was pointed at in a chart, in units of the data.
struct DrawnGesture
{
  enum class Kind
  {
    /// Two opposite corners.
    Rectangle,
    /// Two ends.
    Line,
    /// Corners of a polygon.
    Lasso
  };
  Kind kind = Kind::Rectangle;
  std::vector<DrawnPoint> points;
  DrawnScale scale;
  /// What of each axis, or of its decades, a pixel covers. Numbers are rounded to a tenth of it.
  double unitsX = 0;
  double unitsY = 0;
};

/// What a gesture selects.
enum class GestureRule
{
  /// Runs with a part of their line in it.
  Through,
  /// Runs whose line is in it at every time that it covers. Only rectangles tell these apart.
  Inside,
  /// Runs with a point in it, where no lines are drawn. Of a line, those that would cross it.
  Points
};

/// The condition, in words, that a gesture over these items stands for: met by any of them.
/// @param items the names of what is drawn, not empty
/// @param over the name of what they are drawn over; empty for time
std::string gestureWords(const DrawnGesture& gesture, GestureRule rule,
                         const std::vector<std::string>& items, const std::string& over);

/// A place on an axis as these words write it.
/// @param units what a pixel covers of the axis, or of its decades
std::string placeWords(double value, double units, bool logarithmic);

} // namespace Talmesh::app

#endif

#ifndef CoordinateWindow_h
#define CoordinateWindow_h

/// The visible axis ranges of an XY chart, in the units of the plotted columns.
struct CoordinateWindow
{
  double xMin = 0.0;
  double yMin = 0.0;
  double xMax = 1.0;
  double yMax = 1.0;
  /// False until a real window was stored.
  bool valid = false;
};

#endif

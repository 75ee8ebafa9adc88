#ifndef PainterShapes_h
#define PainterShapes_h

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <QRectF>

class vtkImageData;
class vtkPen;

/// What VTK's painting devices are given, as Qt's painters take it.
namespace Talmesh
{
QColor colorOf(const unsigned char* color, int components);

/// The colour between those of so many points.
QColor meanColor(const unsigned char* colors, int n, int components);

/// A pen without ends beyond those of a line, of the same width and pattern of strokes.
QPen penLike(vtkPen* pen);

/// One of VTK's markers around the origin; a plus for a number that is none of them.
struct MarkerShape
{
  /// @param highlight with thick strokes, for crosses and pluses
  MarkerShape(int shape, bool highlight, double size);

  QPainterPath path;
  /// How wide the path is drawn; areas are filled and have 0.
  double stroke = 0.0;
};

/// A line of fewer points, which passes none of those left out further than a tolerance away.
QPolygonF simplified(const QPolygonF& line, double tolerance);

/// The part of a polygon that is inside of a rectangle.
QPolygonF cutAt(const QRectF& rectangle, QPolygonF polygon);

/// The picture of 1 to 4 components of one byte, grey, grey and opacity, red, green and blue, or
/// those and opacity, of which the first row is the lowest; null for another.
QImage imageOf(vtkImageData* image);
} // namespace Talmesh

#endif

#include "widgets/PainterShapes.h"

#include <vtkImageData.h>
#include <vtkPen.h>
#include <vtkRenderingCoreEnums.h>

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <new>

namespace Talmesh
{
namespace
{
/// Lengths of strokes and gaps in units, as the screen has them.
QVector<qreal> strokesOf(int type)
{
  switch (type)
  {
  case vtkPen::DASH_LINE:
    return {8.0, 8.0};
  case vtkPen::DOT_LINE:
    return {1.0, 7.0};
  case vtkPen::DASH_DOT_LINE:
    return {4.0, 6.0, 2.0, 4.0};
  case vtkPen::DASH_DOT_DOT_LINE:
    return {3.0, 3.0, 1.0, 3.0, 3.0, 3.0};
  case vtkPen::DENSE_DOT_LINE:
    return {1.0, 3.0};
  default:
    return {};
  }
}

/// The directions from a point that pass near enough to others. Every direction at first.
class Cone
{
public:
  Cone(const QPointF& apex_, double tolerance_)
      : apex(apex_)
      , tolerance(tolerance_)
  {
  }

  /// Whether a line from the apex to this point passes all points before, which lie between.
  bool takes(const QPointF& point) const
  {
    const QPointF way = point - apex;
    const double distance = std::hypot(way.x(), way.y());
    if (!narrowed)
      return true;
    const double turn = std::remainder(std::atan2(way.y(), way.x()) - middle, 2.0 * M_PI);
    return distance >= farthest && turn >= lowest && turn <= highest;
  }

  void narrowTo(const QPointF& point)
  {
    const QPointF way = point - apex;
    const double distance = std::hypot(way.x(), way.y());
    farthest = std::max(farthest, distance);
    if (distance <= tolerance)
      return;
    const double angle = std::atan2(way.y(), way.x());
    const double half = std::asin(tolerance / distance);
    if (!narrowed)
    {
      middle = angle;
      lowest = -half;
      highest = half;
      narrowed = true;
      return;
    }
    const double turn = std::remainder(angle - middle, 2.0 * M_PI);
    lowest = std::max(lowest, turn - half);
    highest = std::min(highest, turn + half);
  }

private:
  QPointF apex;
  double tolerance;
  double farthest = 0.0;
  double middle = 0.0;
  double lowest = 0.0;
  double highest = 0.0;
  bool narrowed = false;
};

void addLine(QPainterPath& path, const QPointF& from, const QPointF& to)
{
  path.moveTo(from);
  path.lineTo(to);
}
} // namespace

QColor colorOf(const unsigned char* color, int components)
{
  switch (components)
  {
  case 1:
  case 2:
    return {color[0], color[0], color[0], components == 2 ? color[1] : 255};
  default:
    return {color[0], color[1], color[2], components == 4 ? color[3] : 255};
  }
}

QColor meanColor(const unsigned char* colors, int n, int components)
{
  int sums[4] = {0, 0, 0, 0};
  for (int i = 0; i < n; ++i)
  {
    const QColor color = colorOf(colors + i * components, components);
    const int parts[] = {color.red(), color.green(), color.blue(), color.alpha()};
    for (int part = 0; part < 4; ++part)
      sums[part] += parts[part];
  }
  return {sums[0] / n, sums[1] / n, sums[2] / n, sums[3] / n};
}

QPen penLike(vtkPen* pen)
{
  // A width of 0, which VTK draws one pixel wide, means a line as thin as the device can to Qt.
  const double width = pen->GetWidth() > 0.0f ? pen->GetWidth() : 1.0;
  QPen made(colorOf(pen->GetColor(), 4), width, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin);
  QVector<qreal> strokes = strokesOf(pen->GetLineType());
  for (qreal& stroke : strokes)
    stroke /= width;
  if (!strokes.isEmpty())
    made.setDashPattern(strokes);
  return made;
}

MarkerShape::MarkerShape(int shape, bool highlight, double size)
{
  const double half = 0.5 * size;
  switch (shape)
  {
  case VTK_MARKER_SQUARE:
    path.addRect(-half, -half, size, size);
    return;
  case VTK_MARKER_CIRCLE:
    path.addEllipse(QPointF(0.0, 0.0), half, half);
    return;
  case VTK_MARKER_DIAMOND:
    path.addPolygon(QPolygonF({{half, 0.0}, {0.0, half}, {-half, 0.0}, {0.0, -half}}));
    path.closeSubpath();
    return;
  case VTK_MARKER_CROSS:
    addLine(path, {-half, -half}, {half, half});
    addLine(path, {-half, half}, {half, -half});
    // The screen's are steps of pixels, which are thinner across than along the axes.
    stroke = std::sqrt(0.5);
    break;
  default:
    addLine(path, {-half, 0.0}, {half, 0.0});
    addLine(path, {0.0, -half}, {0.0, half});
    stroke = 1.0;
  }
  if (highlight)
    stroke *= 3.0;
}

QPolygonF simplified(const QPolygonF& line, double tolerance)
{
  if (line.size() < 3)
    return line;
  QPolygonF kept;
  kept.append(line.first());
  Cone cone(line.first(), tolerance);
  for (int i = 1; i < line.size(); ++i)
  {
    if (!cone.takes(line[i]))
    {
      kept.append(line[i - 1]);
      cone = Cone(line[i - 1], tolerance);
    }
    cone.narrowTo(line[i]);
  }
  kept.append(line.last());
  return kept;
}

QPolygonF cutAt(const QRectF& rectangle, QPolygonF polygon)
{
  const auto inside = [&rectangle](const QPointF& point, int edge)
  {
    const double distances[] = {point.x() - rectangle.left(), rectangle.right() - point.x(),
                                point.y() - rectangle.top(), rectangle.bottom() - point.y()};
    return distances[edge];
  };
  for (int edge = 0; edge < 4; ++edge)
  {
    QPolygonF left;
    for (int i = 0; i < polygon.size(); ++i)
    {
      const QPointF corner = polygon[i];
      const QPointF next = polygon[(i + 1) % polygon.size()];
      const double a = inside(corner, edge);
      const double b = inside(next, edge);
      if (a >= 0.0)
        left.append(corner);
      if ((a < 0.0) != (b < 0.0))
        left.append(corner + (next - corner) * (a / (a - b)));
    }
    polygon.swap(left);
  }
  return polygon;
}

QImage imageOf(vtkImageData* image)
{
  if (!image || image->GetScalarType() != VTK_UNSIGNED_CHAR)
    return {};
  int size[3];
  image->GetDimensions(size);
  const int components = image->GetNumberOfScalarComponents();
  QImage made(size[0], size[1], QImage::Format_RGBA8888);
  if (made.isNull() && size[0] > 0 && size[1] > 0)
    throw std::bad_alloc();
  const auto* from = static_cast<const unsigned char*>(image->GetScalarPointer());
  for (int row = size[1] - 1; row >= 0; --row)
  {
    uchar* to = made.scanLine(row);
    if (components == 4)
    {
      std::copy_n(from, 4 * size[0], to);
      from += 4 * static_cast<std::ptrdiff_t>(size[0]);
      continue;
    }
    for (int i = 0; i < size[0]; ++i, from += components, to += 4)
    {
      const QColor color = colorOf(from, components);
      to[0] = static_cast<uchar>(color.red());
      to[1] = static_cast<uchar>(color.green());
      to[2] = static_cast<uchar>(color.blue());
      to[3] = static_cast<uchar>(color.alpha());
    }
  }
  return made;
}
} // namespace Talmesh

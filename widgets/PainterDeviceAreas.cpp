// VTK 9.1 deprecates functions that a device must nevertheless define.
#define VTK_DEPRECATION_LEVEL 0

#include "widgets/PainterDevice.h"
#include "widgets/PainterShapes.h"

#include <vtkBrush.h>
#include <vtkImageData.h>
#include <vtkPen.h>
#include <vtkRect.h>

#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <vector>

void PainterDevice::Fill(const QPolygonF& polygon, const QColor& color)
{
  QPainter& painter = this->Painter();
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawPolygon(polygon, Qt::WindingFill);
}

void PainterDevice::DrawQuad(float* points, int n)
{
  for (int first = 0; first + 4 <= n; first += 4)
    this->DrawColoredPolygon(points + 2 * first, 4);
}

/// The quads together are one area: each for itself would leave a light line between them.
void PainterDevice::DrawQuadStrip(float* points, int n)
{
  std::vector<float> around;
  for (int i = 0; i + 1 < n; i += 2)
    around.insert(around.end(), points + 2 * i, points + 2 * i + 2);
  for (int i = n - n % 2 - 1; i > 0; i -= 2)
    around.insert(around.end(), points + 2 * i, points + 2 * i + 2);
  this->DrawColoredPolygon(around.data(), static_cast<int>(around.size() / 2));
}

void PainterDevice::DrawColoredPolygon(float* points, int n, unsigned char* colors, int components)
{
  if (!colors && this->Brush->GetOpacity() == 0)
    return;
  QPolygonF polygon;
  for (int i = 0; i < n; ++i)
    polygon.append(this->OnPage(points[2 * i], points[2 * i + 1]));
  const bool finite = std::all_of(
      polygon.begin(), polygon.end(),
      [](const QPointF& corner) { return std::isfinite(corner.x()) && std::isfinite(corner.y()); });
  if (!finite)
    return;
  QColor color = Talmesh::colorOf(this->Brush->GetColor(), 4);
  if (colors)
    color = Talmesh::meanColor(colors, n, components);
  constexpr double more = 4.0;
  this->Fill(Talmesh::cutAt(this->ClippedArea().adjusted(-more, -more, more, more), polygon),
             color);
}

QPolygonF PainterDevice::Arc(float x, float y, float rX, float rY, float startAngle,
                             float stopAngle) const
{
  constexpr int sides = 90;
  QPolygonF arc;
  for (int i = 0; i <= sides; ++i)
  {
    const double angle = qDegreesToRadians(startAngle + (stopAngle - startAngle) * i / sides);
    arc.append(this->OnPage(x + rX * std::cos(angle), y + rY * std::sin(angle)));
  }
  return arc;
}

void PainterDevice::DrawEllipseWedge(float x, float y, float outRx, float outRy, float inRx,
                                     float inRy, float startAngle, float stopAngle)
{
  const QPolygonF outside = this->Arc(x, y, outRx, outRy, startAngle, stopAngle);
  const QPolygonF inside = this->Arc(x, y, inRx, inRy, stopAngle, startAngle);
  this->Fill(outside + inside, Talmesh::colorOf(this->Brush->GetColor(), 4));
}

void PainterDevice::DrawEllipticArc(float x, float y, float rX, float rY, float startAngle,
                                    float stopAngle)
{
  const QPolygonF arc = this->Arc(x, y, rX, rY, startAngle, stopAngle);
  this->Fill(arc, Talmesh::colorOf(this->Brush->GetColor(), 4));
  if (!this->DrawsLines(nullptr))
    return;
  this->Painter().setPen(Talmesh::penLike(this->Pen));
  this->Painter().drawPolyline(arc);
}

void PainterDevice::DrawImage(float p[2], float scale, vtkImageData* image)
{
  int size[3];
  image->GetDimensions(size);
  this->DrawImage(vtkRectf(p[0], p[1], scale * static_cast<float>(size[0]),
                           scale * static_cast<float>(size[1])),
                  image);
}

void PainterDevice::DrawImage(const vtkRectf& position, vtkImageData* image)
{
  const QPointF lowerLeft = this->OnPage(position.GetX(), position.GetY());
  const QPointF upperRight = this->OnPage(double(position.GetX()) + position.GetWidth(),
                                          double(position.GetY()) + position.GetHeight());
  const QImage picture = Talmesh::imageOf(image);
  if (!picture.isNull())
    Talmesh::drawPixels(this->Painter(), QRectF(lowerLeft, upperRight).normalized(), picture);
}

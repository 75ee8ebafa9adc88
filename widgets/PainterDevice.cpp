// VTK 9.1 deprecates functions that a device must nevertheless define.
#define VTK_DEPRECATION_LEVEL 0

#include "widgets/PainterDevice.h"

#include "widgets/PainterShapes.h"

#include <vtkImageData.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkRect.h>
#include <vtkRenderingCoreEnums.h>
#include <vtkTextProperty.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

vtkStandardNewMacro(PainterDevice);

namespace
{
/// The pixel at the lower left corner is centred at 1, 1 to VTK.
constexpr double pixelCentre = 0.5;
/// A seventh of a pixel at 600 dots per inch.
constexpr double indiscernible = 0.02;

/// The colour between those of two points.
QColor colorBetween(const Talmesh::ClippedPoints& piece, int a, int b, int components)
{
  const QColor from =
      Talmesh::colorOf(&piece.colors[static_cast<std::size_t>(a * components)], components);
  const QColor to =
      Talmesh::colorOf(&piece.colors[static_cast<std::size_t>(b * components)], components);
  return {(from.red() + to.red()) / 2, (from.green() + to.green()) / 2,
          (from.blue() + to.blue()) / 2, (from.alpha() + to.alpha()) / 2};
}

/// Whether a line keeps its colour from one point to the next.
bool sameColor(const Talmesh::ClippedPoints& piece, int a, int b, int components)
{
  const auto color = [&](int i) { return piece.colors.begin() + i * components; };
  return std::equal(color(a), color(a) + components, color(b));
}
} // namespace

PainterDevice::PainterDevice()
    : Matrices{{1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0}}
{
  // The chart of three dimensions labels its ticks as it labelled its axes in the picture before.
  this->TextProp->SetColor(0.0, 0.0, 0.0);
  this->TextProp->SetFontSize(14);
  this->TextProp->SetJustificationToCentered();
  this->TextProp->SetVerticalJustificationToCentered();
}

PainterDevice::~PainterDevice() = default;

void PainterDevice::Use(QPainter* painter, const QSize& scene, double resolution)
{
  this->Page = painter;
  this->Scene = scene;
  this->Resolution = resolution;
  this->Geometry[0] = scene.width();
  this->Geometry[1] = scene.height();
  this->SetViewportSize(vtkVector2i(scene.width(), scene.height()));
  this->SetViewportRect(vtkRecti(0, 0, scene.width(), scene.height()));
}

vtkIdType PainterDevice::mostShapes(Shapes kind) const
{
  switch (kind)
  {
  case Shapes::Bundle:
    return this->Limits.bundle;
  case Shapes::Highlights:
    return this->Limits.highlights;
  default:
    return this->Limits.points;
  }
}

Talmesh::PixelGrid PainterDevice::pixelGrid() const
{
  const auto pixels = [this](int units)
  { return static_cast<int>(std::ceil(units * this->Resolution - 1e-6)); };
  return {pixelCentre,
          pixelCentre,
          this->Resolution,
          this->Resolution,
          pixels(this->Scene.width()),
          pixels(this->Scene.height())};
}

QPainter& PainterDevice::Painter()
{
  this->EndMarkers();
  return this->Surface();
}

QPainter& PainterDevice::Surface()
{
  return this->Layer ? this->Layer->painter() : *this->Page;
}

void PainterDevice::EndMarkers()
{
  this->MarkersInARow = 0;
  if (this->MarkersInLayer)
    this->EndLayer();
}

QPointF PainterDevice::OnPage(double x, double y) const
{
  const std::array<double, 9>& m = this->Matrices.back();
  return {m[0] * x + m[1] * y + m[2] - pixelCentre,
          this->Scene.height() + pixelCentre - (m[3] * x + m[4] * y + m[5])};
}

QPolygonF PainterDevice::OnPage(const Talmesh::ClippedPoints& piece) const
{
  QPolygonF polygon;
  polygon.reserve(piece.size());
  for (std::size_t i = 0; i + 1 < piece.points.size(); i += 2)
    polygon.append(this->OnPage(piece.points[i], piece.points[i + 1]));
  return polygon;
}

Talmesh::ClipRegion PainterDevice::Region(double more)
{
  const Talmesh::ClipRectangle page = {0.0, 0.0, double(this->Scene.width()),
                                       double(this->Scene.height())};
  Talmesh::ClipRectangle seen = this->Clips ? this->Clip : page;
  seen = {seen.left - more, seen.bottom - more, seen.right + more, seen.top + more};
  vtkNew<vtkMatrix3x3> matrix;
  this->GetMatrix(matrix);
  return {seen, matrix};
}

QRectF PainterDevice::ClippedArea() const
{
  if (!this->Clips)
    return QRectF(QPointF(0.0, 0.0), QSizeF(this->Scene));
  return {this->Clip.left, this->Scene.height() - this->Clip.top,
          this->Clip.right - this->Clip.left, this->Clip.top - this->Clip.bottom};
}

bool PainterDevice::DrawsLines(const unsigned char* colors)
{
  return this->Pen->GetLineType() != vtkPen::NO_PEN && (colors || this->Pen->GetOpacity() > 0);
}

void PainterDevice::DrawPoly(float* points, int n, unsigned char* colors, int components)
{
  if (!this->DrawsLines(colors))
    return;
  const QPen pen = Talmesh::penLike(this->Pen);
  for (const Talmesh::ClippedPoints& piece :
       this->Region(pen.widthF()).polyLine(points, n, colors, components))
    this->Stroke(piece, components, pen);
}

void PainterDevice::Stroke(const Talmesh::ClippedPoints& piece, int components, QPen pen)
{
  QPainter& painter = this->Painter();
  const QPolygonF line = this->OnPage(piece);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(pen);
  if (piece.colors.empty())
  {
    painter.drawPolyline(Talmesh::simplified(line, indiscernible));
    return;
  }
  for (int first = 0; first + 1 < line.size();)
  {
    int last = first + 1;
    while (last + 1 < line.size() && sameColor(piece, first, last, components) &&
           sameColor(piece, last, last + 1, components))
      ++last;
    pen.setColor(colorBetween(piece, first, last, components));
    painter.setPen(pen);
    painter.drawPolyline(line.data() + first, last - first + 1);
    first = last;
  }
}

void PainterDevice::DrawLines(float* points, int n, unsigned char* colors, int components)
{
  if (!this->DrawsLines(colors))
    return;
  QPen pen = Talmesh::penLike(this->Pen);
  QPainter& painter = this->Painter();
  const Talmesh::ClippedPoints left =
      this->Region(pen.widthF()).lines(points, n, colors, components);
  const QPolygonF ends = this->OnPage(left);
  painter.setPen(pen);
  for (int i = 0; i + 1 < ends.size(); i += 2)
  {
    if (!left.colors.empty())
    {
      pen.setColor(colorBetween(left, i, i + 1, components));
      painter.setPen(pen);
    }
    painter.drawLine(ends[i], ends[i + 1]);
  }
}

void PainterDevice::DrawPoints(float* points, int n, unsigned char* colors, int components)
{
  this->DrawMarkers(VTK_MARKER_SQUARE, false, points, n, colors, components);
}

void PainterDevice::DrawMarkers(int shape, bool highlight, float* points, int n,
                                unsigned char* colors, int components)
{
  if (!colors && this->Pen->GetOpacity() == 0)
    return;
  const double size = std::max(this->Pen->GetWidth(), 1.0f);
  const Talmesh::ClippedPoints left = this->Region(0.0).points(points, n, colors, components, size);
  // Items draw their markers stretch by stretch between the points that they leave out.
  this->MarkersInARow += static_cast<vtkIdType>(left.size());
  if (!this->Layer && this->MarkersInARow > this->Limits.points)
  {
    this->BeginLayer();
    this->MarkersInLayer = true;
  }
  this->DrawShapes({shape, highlight, size}, left, components);
}

void PainterDevice::DrawShapes(const Talmesh::MarkerShape& marker,
                               const Talmesh::ClippedPoints& places, int components)
{
  QPainter& painter = this->Surface();
  const QPolygonF centres = this->OnPage(places);
  QColor color = Talmesh::colorOf(this->Pen->GetColor(), 4);
  for (int i = 0; i < centres.size(); ++i)
  {
    if (!places.colors.empty())
      color = colorBetween(places, i, i, components);
    const bool filled = marker.stroke == 0.0;
    painter.setPen(filled ? QPen(Qt::NoPen)
                          : QPen(color, marker.stroke, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(filled ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawPath(marker.path.translated(centres[i]));
  }
}

void PainterDevice::DrawPointSprites(vtkImageData* sprite, float* points, int n,
                                     unsigned char* colors, int components)
{
  const QImage picture = Talmesh::imageOf(sprite);
  if (picture.isNull())
    return this->DrawMarkers(VTK_MARKER_SQUARE, false, points, n, colors, components);
  const double size = this->Pen->GetWidth();
  for (const QPointF& centre : this->OnPage(this->Region(0.0).points(points, n, nullptr, 0, size)))
    this->Painter().drawImage(QRectF(centre - QPointF(0.5 * size, 0.5 * size), QSizeF(size, size)),
                              picture);
}

#include "widgets/PainterLayer.h"

#include <cmath>
#include <new>

namespace Talmesh
{
namespace
{
/// What is not transparent.
QRect paintedPart(const QImage& picture)
{
  QRect painted;
  for (int y = 0; y < picture.height(); ++y)
  {
    const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    int first = 0;
    int end = picture.width();
    while (first < end && qAlpha(row[first]) == 0)
      ++first;
    while (end > first && qAlpha(row[end - 1]) == 0)
      --end;
    if (first < end)
      painted |= QRect(first, y, end - first, 1);
  }
  return painted;
}

bool isWhole(double number)
{
  return std::abs(number - std::round(number)) < 0.01;
}
} // namespace

void drawPixels(QPainter& page, const QRectF& place, const QImage& picture)
{
  const QRectF pixels = page.transform().mapRect(place);
  const bool exact = std::abs(pixels.width() - picture.width()) < 0.01 &&
                     std::abs(pixels.height() - picture.height()) < 0.01 && isWhole(pixels.x()) &&
                     isWhole(pixels.y());
  if (!exact)
  {
    page.drawImage(place, picture);
    return;
  }
  // Even the smallest scaling would double pixels.
  page.save();
  page.resetTransform();
  page.drawImage(pixels.topLeft().toPoint(), picture);
  page.restore();
}

PainterLayer::PainterLayer(const QRectF& area, double resolution, double pageHeight)
{
  const int left = static_cast<int>(std::floor(area.left() * resolution));
  const int right = static_cast<int>(std::ceil(area.right() * resolution));
  const int bottom = static_cast<int>(std::floor((pageHeight - area.bottom()) * resolution));
  const int top = static_cast<int>(std::ceil((pageHeight - area.top()) * resolution));
  empty = right <= left || top <= bottom;
  // Who paints needs something to paint on, also where nothing of it is seen.
  picture = QImage(empty ? QSize(1, 1) : QSize(right - left, top - bottom),
                   QImage::Format_ARGB32_Premultiplied);
  if (picture.isNull())
    throw std::bad_alloc();
  picture.fill(Qt::transparent);
  place = QRectF(left / resolution, pageHeight - top / resolution, picture.width() / resolution,
                 picture.height() / resolution);
  inside.begin(&picture);
  inside.setRenderHint(QPainter::Antialiasing);
  inside.scale(resolution, resolution);
  inside.translate(-place.topLeft());
}

PainterLayer::~PainterLayer() = default;

void PainterLayer::putOn(QPainter& page)
{
  inside.end();
  if (empty)
    return;
  const double unit = place.width() / picture.width();
  const QRect part = paintedPart(picture);
  if (!part.isEmpty())
    drawPixels(page,
               QRectF(place.topLeft() + unit * QPointF(part.topLeft()), unit * QSizeF(part.size())),
               picture.copy(part));
}
} // namespace Talmesh

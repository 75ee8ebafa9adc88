#ifndef PainterLayer_h
#define PainterLayer_h

#include <QImage>
#include <QPainter>
#include <QRect>

namespace Talmesh
{
/// Puts a picture on a part of a page, each pixel as it is.
void drawPixels(QPainter& page, const QRectF& place, const QImage& picture);

/// A part of a page that is painted as a picture first, and as one put on the page in the end.
/// Throws std::bad_alloc if memory is too short for it.
class PainterLayer
{
public:
  /// @param area of the page, in its coordinates
  /// @param resolution how many pixels its unit has
  /// @param pageHeight a whole number of pixels are above its lower edge
  PainterLayer(const QRectF& area, double resolution, double pageHeight);
  ~PainterLayer();
  PainterLayer(const PainterLayer&) = delete;
  PainterLayer& operator=(const PainterLayer&) = delete;

  /// Paints in the coordinates of the page.
  QPainter& painter() { return inside; }
  /// Ends the painting and puts the part of the picture that was painted on the page.
  void putOn(QPainter& page);

private:
  QImage picture;
  QPainter inside;
  QRectF place;
  bool empty = false;
};
} // namespace Talmesh

#endif

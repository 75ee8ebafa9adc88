#include "app/export/ScaledPicture.h"

#include "widgets/VtkPlotWidget.h"

#include <vtkContextScene.h>
#include <vtkContextView.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QPainter>
#include <QPdfWriter>

#include <cmath>
#include <new>

namespace Talmesh::app
{

namespace
{

constexpr double pointsPerInch = 72.0;
/// In which places on a page are counted; pictures have a resolution of their own.
constexpr int unitsPerInch = 1200;

QSize rounded(const QSize& size, double scale)
{
  return {static_cast<int>(std::lround(size.width() * scale)),
          static_cast<int>(std::lround(size.height() * scale))};
}

QImage whitePicture(const QSize& pixels)
{
  QImage picture(pixels, QImage::Format_RGB32);
  if (picture.isNull())
    throw std::bad_alloc();
  picture.fill(Qt::white);
  return picture;
}

/// Lays the widget's plot out for its own size again, also after a failure.
class OwnLayout
{
public:
  explicit OwnLayout(VtkPlotWidget& of)
      : widget(of)
  {
    // A chart that another one has taken the place of would be painted.
    widget.updatePlot(true);
  }
  ~OwnLayout()
  {
    try
    {
      widget.updatePlot(true);
    }
    catch (const std::bad_alloc&)
    {
      // The next painting lays it out, when there is memory again.
      widget.update();
    }
  }
  OwnLayout(const OwnLayout&) = delete;
  OwnLayout& operator=(const OwnLayout&) = delete;

private:
  VtkPlotWidget& widget;
};

void paint(VtkPlotWidget& widget, QPainter& painter, const QSize& size, double resolution,
           Vectors vectors)
{
  const OwnLayout restored(widget);
  paintScene(*widget.contextView()->GetScene(), painter, size, resolution, vectors);
}

} // namespace

QImage paintPicture(VtkPlotWidget& widget, const QSize& size, double scale, const QSize& pixels)
{
  // Of a pixel that the scene fills in part, nothing is painted.
  const QSize filled = pixels.boundedTo(rounded(size, scale));
  QImage picture = whitePicture(filled);
  QPainter painter(&picture);
  // Scenes count rows from the bottom.
  painter.translate(0.0, filled.height() - scale * size.height());
  painter.scale(scale, scale);
  // Pixels are all that there will be: runs are counted in a moment, but stroked for seconds.
  paint(widget, painter, size, scale, Vectors::None);
  painter.end();
  if (filled == pixels)
    return picture;
  QImage paper = whitePicture(pixels);
  painter.begin(&paper);
  painter.drawImage(0, 0, picture);
  painter.end();
  return paper;
}

QImage paintScaled(VtkPlotWidget& widget, double scale)
{
  const QSize size = widget.size();
  return paintPicture(widget, size, scale, rounded(size, scale));
}

QByteArray paintPage(VtkPlotWidget& widget, const QSize& size, double resolution, Vectors vectors)
{
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setCreator(QCoreApplication::applicationName());
  writer.setResolution(unitsPerInch);
  writer.setPageSize(QPageSize(QSizeF(size), QPageSize::Point, {}, QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF());
  QPainter painter;
  if (!painter.begin(&writer))
    return {};
  painter.scale(unitsPerInch / pointsPerInch, unitsPerInch / pointsPerInch);
  paint(widget, painter, size, resolution, vectors);
  painter.end();
  return bytes;
}

} // namespace Talmesh::app

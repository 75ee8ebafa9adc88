#include "app/ScaledPicture.h"

#include "app/ScaledContextDevice.h"
#include "widgets/TemporaryContextDevice.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkNew.h>
#include <vtkRenderWindow.h>

#include <QCoreApplication>
#include <QPainter>
#include <QResizeEvent>

#include <cmath>

namespace Talmesh::app
{

namespace
{

constexpr int pointsPerInch = 72;

/// A hidden widget, for example one under another tab, would hear of its size only when it is
/// shown, and paint with the old one until then.
void resizeAtOnce(VtkPlotWidget& widget, const QSize& size)
{
  QResizeEvent resized(size, widget.size());
  widget.resize(size);
  if (!widget.isVisible())
    QCoreApplication::sendEvent(&widget, &resized);
}

} // namespace

TemporarySize::TemporarySize(VtkPlotWidget& widget_, const QSize& pixels)
    : widget(widget_)
    , size(widget_.size())
    , dotsPerInch(widget_.renderWindow()->GetDPI())
    , updates(widget_.updatesEnabled())
{
  widget.setUpdatesEnabled(false);
  resizeAtOnce(widget, pixels / widget.devicePixelRatioF());
  widget.renderWindow()->SetDPI(pointsPerInch);
}

TemporarySize::~TemporarySize()
{
  resizeAtOnce(widget, size);
  widget.renderWindow()->SetDPI(dotsPerInch);
  widget.setUpdatesEnabled(updates);
  widget.updatePlot(true);
}

QImage paintScaled(VtkPlotWidget& widget, double scale)
{
  widget.updatePlot(true);
  const QImage whole = widget.grabFramebuffer();
  vtkNew<ScaledContextDevice> device;
  device->SetScale(scale);
  const TemporaryContextDevice exchanged(widget, device);
  if (whole.isNull() || !exchanged.exchanged())
    return {};
  const QSize part = whole.size();
  const int width = static_cast<int>(std::lround(part.width() * scale));
  const int height = static_cast<int>(std::lround(part.height() * scale));
  QImage picture(width, height, QImage::Format_RGB32);
  picture.fill(Qt::white);

  const int dotsPerInch = widget.renderWindow()->GetDPI();
  widget.renderWindow()->SetDPI(static_cast<int>(std::lround(dotsPerInch * scale)));
  QPainter painter(&picture);
  for (int x = 0; x < width; x += part.width())
    for (int y = 0; y < height; y += part.height())
    {
      device->SetOffset(x, y);
      widget.updatePlot(false);
      QImage painted = widget.grabFramebuffer();
      painted.setDevicePixelRatio(1.0);
      // The scene counts rows from the bottom.
      painter.drawImage(x, height - y - part.height(), painted);
    }
  widget.renderWindow()->SetDPI(dotsPerInch);
  return picture;
}

} // namespace Talmesh::app

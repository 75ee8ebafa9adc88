#include "app/ScaledPicture.h"

#include "app/ScaledContextDevice.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkContext2D.h>
#include <vtkContextActor.h>
#include <vtkContextView.h>
#include <vtkNew.h>
#include <vtkPropCollection.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkSmartPointer.h>

#include <QPainter>

#include <cmath>

namespace Talmesh::app
{

namespace
{

constexpr int pointsPerInch = 72;

vtkContext2D* contextOf(VtkPlotWidget& widget)
{
  vtkPropCollection* props = widget.contextView()->GetRenderer()->GetViewProps();
  for (int i = 0; i < props->GetNumberOfItems(); ++i)
    if (auto* actor = vtkContextActor::SafeDownCast(props->GetItemAsObject(i)))
      return actor->GetContext();
  return nullptr;
}

/// Exchanges the device of a painter while it lives.
class TemporaryDevice
{
public:
  TemporaryDevice(VtkPlotWidget& widget_, vtkContext2D* context_, ScaledContextDevice* device_)
      : widget(widget_)
      , context(context_)
      , device(device_)
      , before(context_->GetDevice())
  {
    context->Begin(device);
  }

  ~TemporaryDevice()
  {
    widget.makeCurrent();
    device->ReleaseGraphicsResources(widget.renderWindow());
    context->Begin(before);
  }

  TemporaryDevice(const TemporaryDevice&) = delete;
  TemporaryDevice& operator=(const TemporaryDevice&) = delete;

private:
  VtkPlotWidget& widget;
  vtkContext2D* context;
  ScaledContextDevice* device;
  vtkSmartPointer<vtkContextDevice2D> before;
};

} // namespace

TemporarySize::TemporarySize(VtkPlotWidget& widget_, const QSize& pixels)
    : widget(widget_)
    , size(widget_.size())
    , dotsPerInch(widget_.renderWindow()->GetDPI())
    , updates(widget_.updatesEnabled())
{
  widget.setUpdatesEnabled(false);
  widget.resize(pixels / widget.devicePixelRatioF());
  widget.renderWindow()->SetDPI(pointsPerInch);
}

TemporarySize::~TemporarySize()
{
  widget.resize(size);
  widget.renderWindow()->SetDPI(dotsPerInch);
  widget.setUpdatesEnabled(updates);
  widget.updatePlot(true);
}

QImage paintScaled(VtkPlotWidget& widget, double scale)
{
  widget.updatePlot(true);
  const QImage whole = widget.grabFramebuffer();
  vtkContext2D* context = contextOf(widget);
  if (whole.isNull() || !context || !context->GetDevice())
    return {};
  const QSize part = whole.size();
  const int width = static_cast<int>(std::lround(part.width() * scale));
  const int height = static_cast<int>(std::lround(part.height() * scale));
  QImage picture(width, height, QImage::Format_RGB32);
  picture.fill(Qt::white);

  vtkNew<ScaledContextDevice> device;
  device->SetScale(scale);
  const TemporaryDevice exchanged(widget, context, device);
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

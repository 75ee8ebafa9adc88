#include "widgets/TemporaryContextDevice.h"

#include "widgets/VtkPlotWidget.h"

#include <vtkContext2D.h>
#include <vtkContext3D.h>
#include <vtkContextActor.h>
#include <vtkContextView.h>
#include <vtkOpenGLContextDevice2D.h>
#include <vtkOpenGLContextDevice3D.h>
#include <vtkPropCollection.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>

namespace
{

vtkContext2D* contextOf(VtkPlotWidget& widget)
{
  vtkPropCollection* props = widget.contextView()->GetRenderer()->GetViewProps();
  for (int i = 0; i < props->GetNumberOfItems(); ++i)
    if (auto* actor = vtkContextActor::SafeDownCast(props->GetItemAsObject(i)))
      return actor->GetContext();
  return nullptr;
}

/// The painter of three dimensions takes its matrices from the one of two.
void use(VtkPlotWidget& widget, vtkContext2D* context, vtkContextDevice2D* device)
{
  context->Begin(device);
  auto* flat = vtkOpenGLContextDevice2D::SafeDownCast(device);
  auto* deep = context->GetContext3D()
                   ? vtkOpenGLContextDevice3D::SafeDownCast(context->GetContext3D()->GetDevice())
                   : nullptr;
  if (flat && deep)
    deep->Initialize(widget.contextView()->GetRenderer(), flat);
}

} // namespace

TemporaryContextDevice::TemporaryContextDevice(VtkPlotWidget& widget_,
                                               vtkOpenGLContextDevice2D* device_)
    : widget(widget_)
    , context(contextOf(widget_))
    , device(device_)
    , before(context ? context->GetDevice() : nullptr)
{
  if (before)
    use(widget, context, device);
  else
    context = nullptr;
}

TemporaryContextDevice::~TemporaryContextDevice()
{
  if (!exchanged())
    return;
  widget.makeCurrent();
  device->ReleaseGraphicsResources(widget.renderWindow());
  use(widget, context, before);
}

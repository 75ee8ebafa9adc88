#ifndef TemporaryContextDevice_h
#define TemporaryContextDevice_h

#include <vtkSmartPointer.h>

class vtkContext2D;
class vtkContextDevice2D;
class vtkOpenGLContextDevice2D;
class VtkPlotWidget;

/// Exchanges the device with which a plot widget paints while it lives. A widget that was never
/// painted has no device yet and keeps it so.
class TemporaryContextDevice
{
public:
  TemporaryContextDevice(VtkPlotWidget& widget, vtkOpenGLContextDevice2D* device);
  ~TemporaryContextDevice();
  TemporaryContextDevice(const TemporaryContextDevice&) = delete;
  TemporaryContextDevice& operator=(const TemporaryContextDevice&) = delete;

  /// Whether the device is in use.
  bool exchanged() const { return context != nullptr; }

private:
  VtkPlotWidget& widget;
  vtkContext2D* context;
  vtkOpenGLContextDevice2D* device;
  vtkSmartPointer<vtkContextDevice2D> before;
};

#endif

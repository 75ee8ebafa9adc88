#ifndef PlotContextActor_h
#define PlotContextActor_h

#include "vtk/VtkCompat.h"

#include <vtkOpenGLContextActor.h>

#include <exception>
#include <functional>
#include <utility>

/// Paints a scene. When an item throws, for example for want of memory, the actor ends the painting
/// and lets the frame come to its end: windows of VTK and Qt that an exception leaves within a
/// frame paint no more, and crash when they die. The next painting starts anew.
class PlotContextActor : public vtkOpenGLContextActor
{
public:
  static PlotContextActor* New();
  TALMESH_VTK_TYPE(PlotContextActor, vtkOpenGLContextActor);

  int RenderOverlay(vtkViewport* viewport) override;

  /// Called within a frame whose painting has failed.
  void SetFailureHandler(std::function<void()> handler) { this->Handler = std::move(handler); }
  /// Throws what an item has thrown since the last call, if any has. Not to be called within a
  /// frame.
  void ThrowFailure();

protected:
  PlotContextActor() = default;
  ~PlotContextActor() override = default;

private:
  PlotContextActor(const PlotContextActor&) = delete;
  void operator=(const PlotContextActor&) = delete;

  void DropDevices(vtkWindow* window);

  std::exception_ptr Failure;
  std::function<void()> Handler;
};

#endif

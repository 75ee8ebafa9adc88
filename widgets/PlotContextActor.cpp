#include "widgets/PlotContextActor.h"

#include <vtkContext2D.h>
#include <vtkContext3D.h>
#include <vtkContextDevice2D.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLContextDevice2D.h>
#include <vtkOpenGLGL2PSHelper.h>
#include <vtkSmartPointer.h>
#include <vtkViewport.h>

namespace
{

bool writesPage()
{
  vtkOpenGLGL2PSHelper* writer = vtkOpenGLGL2PSHelper::GetInstance();
  return writer && writer->GetActiveState() != vtkOpenGLGL2PSHelper::Inactive;
}

} // namespace

vtkStandardNewMacro(PlotContextActor);

int PlotContextActor::RenderOverlay(vtkViewport* viewport)
{
  // The page is lost. Its exporter asks for more frames, which VTK's own device would write: that
  // of VTK 9.3 ends the program at markers of one colour.
  if (this->Failure && writesPage())
    return 0;
  try
  {
    return this->Superclass::RenderOverlay(viewport);
  }
  catch (...)
  {
    this->Failure = std::current_exception();
  }
  this->DropDevices(viewport->GetVTKWindow());
  if (this->Handler)
    this->Handler();
  return 0;
}

void PlotContextActor::ThrowFailure()
{
  if (this->Failure)
    std::rethrow_exception(std::exchange(this->Failure, nullptr));
}

/// A device that is left within a painting ends it in its destructor, when the window that it
/// painted into is gone. What items have pushed goes with it.
void PlotContextActor::DropDevices(vtkWindow* window)
{
  const vtkSmartPointer<vtkContextDevice2D> device = this->Context->GetDevice();
  if (device)
    device->EnableClipping(false);
  this->Context->End();
  this->Context3D->End();
  if (auto* painted = vtkOpenGLContextDevice2D::SafeDownCast(device))
    painted->ReleaseGraphicsResources(window);
  this->Initialized = false;
}

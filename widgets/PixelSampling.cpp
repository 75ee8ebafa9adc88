#include "widgets/PixelSampling.h"

#include "vtk/SmoothScene.h"

#include <vtkCommand.h>
#include <vtkContextScene.h>
#include <vtkRenderWindow.h>

namespace Talmesh
{
PixelSampling::PixelSampling(vtkRenderWindow* adapted, vtkContextScene* shown)
    : window(adapted)
    , scene(shown)
    , observer(adapted->AddObserver(vtkCommand::StartEvent, this, &PixelSampling::adapt))
{
}

PixelSampling::~PixelSampling()
{
  window->RemoveObserver(observer);
}

void PixelSampling::adapt()
{
  const int samples = window->GetMultiSamples();
  // Somebody has set the window anew.
  if (samples > 0)
    wanted = 0;
  const bool smooth = isSmoothOnScreen(*scene);
  if (smooth && samples > 0)
  {
    wanted = samples;
    window->SetMultiSamples(0);
  }
  else if (!smooth && wanted > 0)
  {
    window->SetMultiSamples(wanted);
    wanted = 0;
  }
}
} // namespace Talmesh

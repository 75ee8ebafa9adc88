#include "widgets/PlotInteractorStyle.h"

#include <vtkContextScene.h>
#include <vtkObjectFactory.h>

vtkStandardNewMacro(PlotInteractorStyle);

void PlotInteractorStyle::RenderNow()
{
  if (!this->GetScene() || this->GetScene()->GetDirty())
    this->Superclass::RenderNow();
}

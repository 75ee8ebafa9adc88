#include "support/PlotScene.h"

#include "plot/PlotContainer.h"

#include <vtkAbstractContextItem.h>
#include <vtkGenericRenderWindowInteractor.h>
#include <vtkInteractorObserver.h>
#include <vtkNew.h>
#include <vtkUnsignedCharArray.h>

PlotScene::PlotScene(int width, int height)
    : view(vtkSmartPointer<vtkContextView>::New())
{
  // The view's own opens a connection to the display that is never closed, and a display has places
  // for a few hundred.
  const vtkSmartPointer<vtkInteractorObserver> style = view->GetInteractor()->GetInteractorStyle();
  const vtkNew<vtkGenericRenderWindowInteractor> interactor;
  view->SetInteractor(interactor);
  interactor->SetInteractorStyle(style);
  view->GetRenderWindow()->SetOffScreenRendering(1);
  view->GetRenderWindow()->SetSize(width, height);
}

void PlotScene::render(const PlotContainer& container)
{
  scene()->ClearItems();
  if (container.getItem())
    scene()->AddItem(container.getItem());
  view->Render();
}

int PlotScene::paintedPixels()
{
  const int* size = view->GetRenderWindow()->GetSize();
  vtkNew<vtkUnsignedCharArray> pixels;
  view->GetRenderWindow()->GetPixelData(0, 0, size[0] - 1, size[1] - 1, 1, pixels);
  int painted = 0;
  for (vtkIdType i = 0; i < pixels->GetNumberOfTuples(); ++i)
  {
    const unsigned char* rgb = pixels->GetPointer(3 * i);
    if (rgb[0] != 255 || rgb[1] != 255 || rgb[2] != 255)
      ++painted;
  }
  return painted;
}

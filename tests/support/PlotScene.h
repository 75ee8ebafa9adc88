#ifndef PlotScene_h
#define PlotScene_h

#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkRenderWindow.h>
#include <vtkSmartPointer.h>

#include <array>
#include <string>

class PlotContainer;

/// A view without a window on the screen, into which a container draws as it would into a widget's.
class PlotScene
{
public:
  explicit PlotScene(int width = 640, int height = 480);

  vtkContextScene* scene() const { return view->GetScene(); }
  /// Makes the container's chart the scene's only item, as the widget does, and renders.
  void render(const PlotContainer& container);
  /// Renders the items that the scene has.
  void renderItems() { view->Render(); }
  /// Number of pixels of the last rendering that are not background white.
  int paintedPixels();

private:
  vtkSmartPointer<vtkContextView> view;
};

#endif

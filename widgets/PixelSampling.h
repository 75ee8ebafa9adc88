#ifndef PixelSampling_h
#define PixelSampling_h

#include <vtkSmartPointer.h>

class vtkContextScene;
class vtkRenderWindow;

namespace Talmesh
{
/// Lets a window take one sample of each pixel while its scene is smooth without more (plot/
/// SmoothScene.h), and as many as the window was set to otherwise. Without a graphics card the
/// samples cost more than all that a chart of lines draws.
class PixelSampling
{
public:
  /// @param window is adapted before each of its frames, while this object lives
  PixelSampling(vtkRenderWindow* window, vtkContextScene* scene);
  ~PixelSampling();
  PixelSampling(const PixelSampling&) = delete;
  PixelSampling& operator=(const PixelSampling&) = delete;

private:
  void adapt();

  vtkSmartPointer<vtkRenderWindow> window;
  vtkSmartPointer<vtkContextScene> scene;
  unsigned long observer;
  int wanted = 0; ///< samples while the window takes one, 0 while it takes its own
};
} // namespace Talmesh

#endif

#ifndef SmoothScene_h
#define SmoothScene_h

class vtkContextScene;

namespace Talmesh
{

/// Whether the edges of all that a scene shows are smooth on the screen without a window that takes
/// several samples of each pixel, or run along its pixels as axes do. What is not known here counts
/// as if they were not.
bool isSmoothOnScreen(vtkContextScene& scene);

} // namespace Talmesh

#endif

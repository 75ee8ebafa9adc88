#ifndef CancelledDrags_h
#define CancelledDrags_h

class vtkContextScene;

namespace Talmesh
{

/// Takes away what the mouse is drawing to select or to enlarge in any chart of a scene: the
/// release of its button then does nothing.
/// @return whether there was anything
bool cancelDrags(vtkContextScene& scene);

} // namespace Talmesh

#endif

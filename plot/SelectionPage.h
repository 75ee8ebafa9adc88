#ifndef SelectionPage_h
#define SelectionPage_h

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Style 6: the trajectories of all runs above one chart per parameter that shows its distribution
/// over all runs and over every further data set. Parameters whose distributions differ
/// significantly come first. The page becomes the scene's only item.
///
/// A pending update of the selection runs in here and may draw the page itself; this drawing then
/// stops. Without parameters only the trajectories are drawn.
/// @throws std::out_of_range for a parameter column with a name shorter than 11 characters, before
///   anything changes
void drawSelectionPage(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif

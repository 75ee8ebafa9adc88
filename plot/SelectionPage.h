#ifndef SelectionPage_h
#define SelectionPage_h

class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// Style 6: the trajectories of all runs above one chart per parameter that shows its distribution
/// over all runs and over every further data set. Parameters whose distributions differ
/// significantly come first, by the client's tests if it has handed over any. The page becomes the
/// scene's only item.
///
/// A pending update of the selection runs in here and may draw the page itself; so may whoever
/// hears that a selection beyond the table is cut. When such a drawing has completed, this one
/// stops; after one that failed it goes on. Without parameters only the trajectories are drawn.
///
/// Slots 0 and 1 of the derived tables belong to the ranks and densities of all runs. What else is
/// in them, for example additional data that came before the first ranking, is replaced.
/// @param scene may be null: the page is then built without becoming an item
/// @throws std::out_of_range for a parameter that would be shown and whose column has a name
///   shorter than 11 characters, before any chart or item changes
void drawSelectionPage(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif

#ifndef RunAxes_h
#define RunAxes_h

#include "app/document/PlotChoice.h"

#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// Whether the charts of a choice draw one point or line per run, and not one per row: on axes that
/// have one value for a run, which some styles always have.
bool drawsRuns(const PlotContainer& container, const PlotChoice& choice);

/// The columns of a choice as such charts show them: an item is shown by its features. Time and
/// what else has no value for a run is left out; -1 for none.
struct RunAxes
{
  int x = -1;
  int y = -1;
  int z = -1;
  /// The series of the XY plot, or the axes of others, in this order.
  std::vector<int> columns;
};
RunAxes axesOfRuns(const PlotContainer& container, const PlotChoice& choice);

} // namespace Talmesh::app

#endif

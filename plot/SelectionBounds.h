#ifndef SelectionBounds_h
#define SelectionBounds_h

namespace Talmesh::plot
{

struct PlotState;

/// Removes from the annotation link's selection the rows that the table does not have: charts look
/// the rows up unchecked. The selection that a client handed in is not changed but replaced, and
/// the container's own reaction to selections does not run.
void cutSelectionToTable(PlotState& state);

} // namespace Talmesh::plot

#endif

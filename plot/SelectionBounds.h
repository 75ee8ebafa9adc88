#ifndef SelectionBounds_h
#define SelectionBounds_h

namespace Talmesh::plot
{

struct PlotState;

/// Makes the annotation link's selection one of rows that the table has: charts look its ids up
/// unchecked, whatever they mean. Values and pedigree ids become the rows that have them, and rows
/// beyond the table go. A selection that VTK cannot find in the table stays. The selection that a
/// client handed in is not changed but replaced, and the container's own reaction to selections
/// does not run. Nothing happens while the table is empty: it draws no rows, and one that has yet
/// to come may have those selected.
void cutSelectionToTable(PlotState& state);

} // namespace Talmesh::plot

#endif

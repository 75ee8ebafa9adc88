#ifndef ColumnReduction_h
#define ColumnReduction_h

class vtkIntArray;

namespace Talmesh::plot
{

struct PlotState;

/// Reduces the plot table, in place, to the columns that the settings use, and renumbers the
/// settings' column lists and the typed items accordingly. List entries outside the table stay as
/// they are. Colouring by a column that is removed is switched off. The window remembered for the
/// current plot moves into the settings and all others are forgotten.
///
/// One line on standard error names a colour column that is 0 or outside the table. Plots that were
/// fed from the table go on showing the columns that they were fed from.
void reduceToUsedColumns(PlotState& state);

/// Makes `flags`, one value per row, the last column of the plot table under the name of selection
/// flags; older columns of flags go. The settings, the remembered windows and the typed items
/// follow the columns that move: entries that named an older column of flags name the new one.
void appendFlagColumn(PlotState& state, vtkIntArray* flags);

} // namespace Talmesh::plot

#endif

#ifndef ColumnScaling_h
#define ColumnScaling_h

namespace Talmesh::plot
{

struct PlotState;

/// Changes of one column of the plot table in place, without undo. Runs are those of the settings'
/// stride; rows behind the last whole run keep their values. A column that is missing, not a
/// vtkDoubleArray, or of several components is left as it is. The arithmetic is plain IEEE.

/// Multiplies run t by factors[t], one factor per whole run; null `factors` scale nothing. Then
/// generates the quartiles and marks the scene for painting, also when there was nothing to scale.
void scaleColumn(PlotState& state, const double* factors, int column);

/// Multiplies each run by the reciprocal of its largest value, which counts as at least 0. Then as
/// above.
void scaleToRunMaximum(PlotState& state, int column);

/// Multiplies, or divides if `divide`, `column` by `byColumn` row by row, and does nothing else.
void scaleColumnByColumn(PlotState& state, int column, int byColumn, bool divide);

} // namespace Talmesh::plot

#endif

#ifndef LineTableInput_h
#define LineTableInput_h

#include <boost/shared_ptr.hpp>

struct LinePlotTable;

namespace Talmesh::plot
{

struct PlotState;

/// Fills the table and `columnItems` from the line-plot table, whose value arrays are used in place
/// and kept alive by the columns. A constant parameter gets no column. The bounds of the other
/// parameters are appended to `parameterBounds`, which is not emptied. Sets the
/// parameter columns.
void fillFromLinePlotTable(PlotState& state, const boost::shared_ptr<LinePlotTable>& lines);

/// Chooses the plotted columns, the colour column and the labels for the table just filled: time
/// goes to x wherever a time or value column tells it.
void chooseLineTableColumns(PlotState& state);

/// Appends a table over the line-plot table's arrays, which stay the caller's, to the derived
/// tables. The container's own table has no typed items afterwards.
void addLinePlotTable(PlotState& state, const LinePlotTable& lines);

} // namespace Talmesh::plot

#endif

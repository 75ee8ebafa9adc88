#ifndef PlotColumns_h
#define PlotColumns_h

#include <string>
#include <vector>

namespace Talmesh::plot
{

struct PlotState;

/// Puts `x` and `y` at position `index` of the x- and y-column lists; a shorter list is extended to
/// it with the same value. A negative column or position, and one beyond any table's columns,
/// changes nothing.
/// @return whether the lists took the columns
bool setPlotColumns(PlotState& state, int x, int y, int index);

/// Adds a double column to the table. A column of another length than the table's is left out.
void addColumn(PlotState& state, const std::vector<double>& values, const std::string& name);

} // namespace Talmesh::plot

#endif

#ifndef PlotColumns_h
#define PlotColumns_h

#include <vtkSmartPointer.h>

#include <string>
#include <vector>

class vtkTable;

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

/// The example of a new plot widget: 400 rows of the single-precision columns x, y and z.
vtkSmartPointer<vtkTable> exampleTable();

/// Replaces the table by single-precision columns "x" and "y", and "error" when it has as many
/// values as x, and chooses style and columns for them: style 7 with errors, style 0 without.
/// When x and y differ in length the table stays empty and the XY chart's title says so.
/// @return whether the lengths agree
bool setSimpleTable(PlotState& state, const std::vector<double>& x, const std::vector<double>& y,
                    const std::vector<double>& error);

} // namespace Talmesh::plot

#endif

#ifndef SimpleTables_h
#define SimpleTables_h

#include <vtkSmartPointer.h>

#include <vector>

class vtkTable;

namespace Talmesh::plot
{

struct PlotState;

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

#ifndef ParameterCells_h
#define ParameterCells_h

#include <string>
#include <vector>

class vtkAxis;
class vtkChart;

namespace Talmesh::plot
{

struct PlotState;

/// Axis titles of the parameter columns: their names without the type word. A parameter column that
/// the table does not have, or that has no name, has an empty title.
/// @throws std::out_of_range for a name shorter than the type word
std::vector<std::string> parameterTitles(const PlotState& state);

/// Takes panning and zooming off the chart's mouse buttons.
void disablePanAndZoom(vtkChart* chart);

/// Shares the container's selection with the chart and binds the selection rectangle to the right
/// mouse button.
void enableSelection(const PlotState& state, vtkChart* chart);

/// Dresses the axis of the parameter in table column `column`: titled and labelled at the edge of
/// the page, bare between charts, logarithmic as the settings say.
void dressParameterAxis(const PlotState& state, vtkAxis* axis, int column, const std::string& title,
                        bool atEdge);

} // namespace Talmesh::plot

#endif

#ifndef ParameterCells_h
#define ParameterCells_h

#include <cstddef>
#include <string>
#include <vector>

class vtkChart;

namespace Talmesh::plot
{

struct PlotState;

/// Axis title of the parameter at position `parameter` of the settings' list: the name of its
/// column without the type word. A parameter column that the table does not have has an empty
/// title.
/// @throws std::out_of_range for a name shorter than the type word; no name counts as an empty one
std::string parameterTitle(const PlotState& state, std::size_t parameter);

/// The titles of all parameters.
/// @throws std::out_of_range as above
std::vector<std::string> parameterTitles(const PlotState& state);

/// Takes panning and zooming off the chart's mouse buttons.
void disablePanAndZoom(vtkChart* chart);

/// Shares the container's selection with the chart and binds the selection rectangle to the right
/// mouse button.
void enableSelection(const PlotState& state, vtkChart* chart);

/// Dresses an axis along which a chart shows a parameter: titled and labelled at the edge of the
/// page, bare between charts, logarithmic as the settings say. The chart must have its plots
/// already, because they decide on the ticks.
/// @param position vtkAxis::BOTTOM or vtkAxis::LEFT
void dressParameterAxis(const PlotState& state, vtkChart* chart, int position,
                        const std::string& title, bool atEdge);

} // namespace Talmesh::plot

#endif

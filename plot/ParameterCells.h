#ifndef ParameterCells_h
#define ParameterCells_h

#include <cstddef>
#include <functional>
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

/// Two parameters and the cell in which a page that shows every pair once shows them: one of the
/// triangle below the diagonal, where rows count from the bottom and run through the parameters
/// backwards.
struct ParameterPair
{
  int column;
  int row;
  std::size_t x; ///< positions in the settings' list
  std::size_t y;
};

/// Visits the pairs of `parameters` parameters, column by column from the bottom.
void forEachPair(std::size_t parameters, const std::function<void(const ParameterPair&)>& visit);

/// The chart of a pair in the chart matrix, which spans its cell only and shares the selection.
vtkChart* pairCell(PlotState& state, const ParameterPair& pair);

/// Dresses both axes of a pair's chart. The page's lower and left edge have the titles, one per
/// parameter.
void dressPairAxes(const PlotState& state, vtkChart* chart, const ParameterPair& pair,
                   const std::vector<std::string>& titles);

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

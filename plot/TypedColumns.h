#ifndef TypedColumns_h
#define TypedColumns_h

#include <cstddef>
#include <string>

namespace Talmesh::plot
{

struct PlotState;

/// Rebuilds the settings' parameter-column list: the positions in `columnItems` of the items of
/// kind Parameter, in order.
void findParameterColumns(PlotState& state);

/// The label, for example "Parameter: k1", by which derived tables know the parameter at position
/// `parameter` of the settings' list; empty when no typed item has that position.
std::string parameterLabel(const PlotState& state, std::size_t parameter);

} // namespace Talmesh::plot

#endif

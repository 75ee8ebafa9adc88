#ifndef TypedColumns_h
#define TypedColumns_h

namespace Talmesh::plot
{

struct PlotState;

/// Rebuilds the settings' parameter-column list: the positions in `columnItems` of the items of
/// kind Parameter, in order.
void findParameterColumns(PlotState& state);

} // namespace Talmesh::plot

#endif

#ifndef TypedColumns_h
#define TypedColumns_h

#include "export/ViewerExport.h"
#include "external/TypedConcentrationName.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::plot
{

struct PlotState;

/// Name of the column that numbers the runs: the label of the item (TimeOrValue, "Run Index").
inline constexpr char runIndexLabel[] = ": Run Index";

/// Rebuilds the settings' parameter-column list: the positions in `columnItems` of the items of
/// kind Parameter, in order.
void findParameterColumns(PlotState& state);

/// The label, for example "Parameter: k1", by which derived tables know the parameter at position
/// `parameter` of the settings' list; empty when no typed item has that position.
TALMESHPLOT_VIEWER_EXPORT std::string parameterLabel(const PlotState& state, std::size_t parameter);

/// Index of the item that gives the time: the first item named "Time [s]", else the last named
/// "Value", else the first, of those of the time or value kind; -1 when there is none of that kind.
TALMESHPLOT_VIEWER_EXPORT int timeItem(const std::vector<Talmesh::TypedConcentrationName>& items);

} // namespace Talmesh::plot

#endif

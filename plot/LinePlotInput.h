#ifndef LinePlotInput_h
#define LinePlotInput_h

#include "external/TypedConcentrationName.h"

#include <vector>

struct LinePlotData;

namespace Talmesh::plot
{

struct PlotState;

/// Replaces the table by one set of time series: the x values, then one column per series named by
/// its label. The series' typed names are appended to `columnItems`, which is not emptied. A series
/// of another length than x, or without values, gets no column; its item is appended all the same.
void setLinePlotData(PlotState& state, const LinePlotData& data);

/// Appends a table built in the same way to the derived tables; nothing else changes.
void addLinePlotData(PlotState& state, const LinePlotData& data);

/// Draws one line per item over the first x column into the XY chart, when there is one. An item
/// without a column gives a plot without data.
void drawLinePlotItems(PlotState& state, const std::vector<Talmesh::TypedConcentrationName>& items);

} // namespace Talmesh::plot

#endif

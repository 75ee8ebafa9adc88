#ifndef SobolChart_h
#define SobolChart_h

namespace Talmesh::plot
{

struct PlotState;

/// Replaces the XY chart by a new one, without scene, that shows the table's sensitivity indices:
/// in style 2 as bands stacked over the column "Time", in style 1 as one stacked bar per row,
/// labelled by the string column "Name". The series are all columns but the last. Any other style
/// gives an empty chart with the title. `total` chooses the left axis: a range from 0 for total
/// indices, 0 to 1 otherwise.
void buildSobolChart(PlotState& state, bool total);

} // namespace Talmesh::plot

#endif

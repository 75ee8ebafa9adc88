#ifndef SobolChart_h
#define SobolChart_h

class vtkChart;
struct PlotLook;

namespace Talmesh::plot
{

struct PlotState;

/// Replaces the XY chart by a new one, without scene, that shows the table's sensitivity indices
/// as the current style does; one that knows no indices gives an empty chart with the title.
/// `total` chooses the left axis: a range from 0 for total indices, 0 to 1 otherwise. The series
/// are all columns but the last.
void buildSobolChart(PlotState& state, bool total);

/// Gives such a chart a look: upright names are written smaller where they are long.
void dressSobolChart(const PlotLook& look, vtkChart* chart);

/// The indices as bands stacked over the column "Time".
void addSobolBands(PlotState& state, bool total);

/// The indices as one stacked bar per row, labelled by the string column "Name".
void addSobolBars(PlotState& state, bool total);

} // namespace Talmesh::plot

#endif

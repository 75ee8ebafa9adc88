#ifndef ChartReuse_h
#define ChartReuse_h

class vtkChartXY;
class vtkContextScene;

namespace Talmesh::plot
{

struct PlotState;

/// The XY chart, shown in `scene` (which may be null) and ready for other data: without plots and
/// with bottom and left axis as a new chart has them, so that nothing of a distribution or of Sobol
/// results shows through. Titles, the legend and the wish for a logarithmic left axis stay.
vtkChartXY* reuseChartXY(PlotState& state, vtkContextScene* scene);

} // namespace Talmesh::plot

#endif

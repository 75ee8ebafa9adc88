#ifndef DistributionCell_h
#define DistributionCell_h

#include <cstddef>
#include <string>

class vtkChart;

namespace Talmesh::plot
{

struct PlotState;

/// "p = " and the p-value with two decimals: in scientific notation below 0.01, but for 0 itself.
std::string pValueLabel(double pValue);

/// Fills `chart` with the distribution of the parameter at position `parameter` over the
/// container's own runs and over every further data set, or over the client's groups, titled with
/// the p-value of its test or as the client's test says.
/// @param title title of the bottom axis
void fillDistributionCell(PlotState& state, vtkChart* chart, std::size_t parameter,
                          const std::string& title);

/// The largest upper y bound of the chart's plots, at least 0.
double highestBound(vtkChart* chart);

/// Fixes the chart's left axis to [0, maximum], unless the maximum is not finite or not above 0.
/// An automatic axis would lose the maximum when it is first painted.
void scaleDensityAxis(vtkChart* chart, double maximum);

} // namespace Talmesh::plot

#endif

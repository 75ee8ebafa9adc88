#ifndef DistributionChart_h
#define DistributionChart_h

#include <vtkSmartPointer.h>

#include <array>
#include <string>
#include <utility>

class Distribution;
class vtkTable;

namespace Talmesh::plot
{

struct PlotState;

/// A distribution as drawn.
struct DensityCurve
{
  /// Single-precision columns "x" and "pdf".
  vtkSmartPointer<vtkTable> table;
  /// Ends of the drawn interval.
  std::pair<double, double> range;
  /// Largest density that is a finite number, at least 0; 0 for a fixed value.
  double maximum = 0.0;
};

/// Positions of the ends of a range on the x axis and their texts in scientific notation.
struct RangeEnds
{
  std::array<double, 2> positions;
  std::array<std::string, 2> labels;
};

/// 50 points from end to end of the distribution's range, or a spike of 5 for a fixed value.
DensityCurve densityCurve(const Distribution& distribution);

/// Shows `curve` as a filled curve without titles on the XY chart, which no longer reacts to the
/// mouse; its table becomes the container's. The density is never on a logarithmic scale.
/// @return the ends of the range, which are not put on the chart: the axis has ticks of its own
RangeEnds drawDensityCurve(PlotState& state, const DensityCurve& curve);

} // namespace Talmesh::plot

#endif

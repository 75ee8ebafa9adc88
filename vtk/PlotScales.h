#ifndef PlotScales_h
#define PlotScales_h

#include <vtkType.h>

#include <array>
#include <vector>

class vtkChart;
class vtkPlot;

namespace Talmesh
{

/// What of their chart the points of its plots depended on when it was noted last.
class PlotScales
{
public:
  void note(vtkChart* chart);
  /// Whether it is the same still for a plot of the chart.
  bool areKnown(vtkChart* chart, vtkIdType plot) const;

private:
  struct Scales
  {
    vtkPlot* plot;
    std::array<double, 4> shiftScale;
    std::array<bool, 4> logarithmic; ///< x, x of magnitudes, and the same of y

    bool operator==(const Scales& other) const
    {
      return plot == other.plot && shiftScale == other.shiftScale &&
             logarithmic == other.logarithmic;
    }
  };

  static Scales scalesOf(vtkPlot* plot);

  std::vector<Scales> noted; ///< of all plots in their order
};

} // namespace Talmesh

#endif

#ifndef vtkPlotShiftedStack_h
#define vtkPlotShiftedStack_h

#include <vtkPlotStacked.h>

/// Stacked areas that stay in place in a chart that shifts and scales its points, as charts do
/// whose axes are far from 1. VTK's own paint their points as they are, outside of such a chart.
/// They go by the name of the class that they stand in for, which clients may ask for.
class vtkPlotShiftedStack : public vtkPlotStacked
{
public:
  static vtkPlotShiftedStack* New();

  bool Paint(vtkContext2D* painter) override;

protected:
  vtkPlotShiftedStack() = default;
  ~vtkPlotShiftedStack() override = default;

private:
  vtkPlotShiftedStack(const vtkPlotShiftedStack&) = delete;
  void operator=(const vtkPlotShiftedStack&) = delete;
};

#endif

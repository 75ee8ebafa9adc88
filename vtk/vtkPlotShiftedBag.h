#ifndef vtkPlotShiftedBag_h
#define vtkPlotShiftedBag_h

#include <vtkPlotFunctionalBag.h>

/// A functional bag that stays in place in a chart that shifts and scales its points, as charts do
/// whose axes are far from 1. VTK's own paints its points as they are, outside of such a chart. It
/// goes by the name of the class that it stands in for, which clients may ask for.
class vtkPlotShiftedBag : public vtkPlotFunctionalBag
{
public:
  static vtkPlotShiftedBag* New();

  bool Paint(vtkContext2D* painter) override;

protected:
  vtkPlotShiftedBag() = default;
  ~vtkPlotShiftedBag() override = default;

private:
  vtkPlotShiftedBag(const vtkPlotShiftedBag&) = delete;
  void operator=(const vtkPlotShiftedBag&) = delete;
};

#endif

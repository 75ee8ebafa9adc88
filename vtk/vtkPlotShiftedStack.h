#ifndef vtkPlotShiftedStack_h
#define vtkPlotShiftedStack_h

#include <vtkPlotStacked.h>

/// Stacked areas that stay in place in a chart that shifts and scales its points, as charts do
/// whose axes are far from 1. VTK's own paint their points as they are, outside of such a chart.
/// Their bounds are those of the areas, where VTK's own reach to zero along x. They go by the name
/// of the class that they stand in for, which clients may ask for.
class vtkPlotShiftedStack : public vtkPlotStacked
{
public:
  static vtkPlotShiftedStack* New();

  bool Paint(vtkContext2D* painter) override;
  void GetBounds(double bounds[4]) override;

  /// @return the index of the area at `point`, and as `location` the upper corner beside it
  vtkIdType GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                            vtkVector2f* location, vtkIdType* segmentId) override;
  using vtkPlotStacked::GetNearestPoint;
  bool SelectPoints(const vtkVector2f& min, const vtkVector2f& max) override;

  /// Names the area that GetNearestPoint() has found, where VTK's own name the first.
  vtkStdString GetTooltipLabel(const vtkVector2d& place, vtkIdType area,
                               vtkIdType segmentId) override;
  /// The name of the first area, but that of the other one within GetTooltipLabel().
  vtkStdString GetLabel() override;

protected:
  vtkPlotShiftedStack() = default;
  ~vtkPlotShiftedStack() override = default;

private:
  vtkPlotShiftedStack(const vtkPlotShiftedStack&) = delete;
  void operator=(const vtkPlotShiftedStack&) = delete;

  vtkIdType NamedArea = 0;
};

#endif

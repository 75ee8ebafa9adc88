#ifndef vtkPlotShiftedBag_h
#define vtkPlotShiftedBag_h

#include <vtkNew.h>
#include <vtkPlotFunctionalBag.h>

class vtkPlotSafeLine;

/// A functional bag that lies where its chart's axes have its values: in a chart that shifts and
/// scales its points, as charts do whose axes are far from 1, and on logarithmic axes also where it
/// is a line only. VTK's own paints its points as they are, takes the logarithms of its bounds
/// twice and those of a line not at all. It goes by the name of the class that it stands in for,
/// which clients may ask for.
class vtkPlotShiftedBag : public vtkPlotFunctionalBag
{
public:
  static vtkPlotShiftedBag* New();

  void Update() override;
  bool Paint(vtkContext2D* painter) override;
  bool PaintLegend(vtkContext2D* painter, const vtkRectf& rect, int legendIndex) override;
  void GetBounds(double bounds[4]) override;
  void GetUnscaledInputBounds(double bounds[4]) override;
  vtkIdType GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                            vtkVector2f* location, vtkIdType* segmentId) override;
  using vtkPlotFunctionalBag::GetNearestPoint;
  bool SelectPoints(const vtkVector2f& min, const vtkVector2f& max) override;
  bool SelectPointsInPolygon(const vtkContextPolygon& polygon) override;

protected:
  vtkPlotShiftedBag() = default;
  ~vtkPlotShiftedBag() override = default;

private:
  vtkPlotShiftedBag(const vtkPlotShiftedBag&) = delete;
  void operator=(const vtkPlotShiftedBag&) = delete;

  bool HasWidth() const;
  void UpdateLine();

  /// What a bag without width is painted as.
  vtkNew<vtkPlotSafeLine> PlacedLine;
};

#endif

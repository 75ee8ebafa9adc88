#ifndef vtkPlotSafeLine_h
#define vtkPlotSafeLine_h

#include "vtk/CurvePicture.h"

#include <vtkPlotLine.h>

/// A line plot that paints a single point without complaint: its marker, if it has one, and no
/// line. VTK's own reports an error at every painting. On logarithmic axes its points lie where the
/// chart's axes have their values (vtk/CachedLogarithms.h). It goes by the name of the class that
/// it stands in for, which clients may ask for. Devices that take pictures of lines
/// (vtk/AggregateDevice.h), as the screen does, get one of it, with smooth edges.
class vtkPlotSafeLine : public vtkPlotLine
{
public:
  static vtkPlotSafeLine* New();

  void Update() override;
  bool Paint(vtkContext2D* painter) override;
  /// As VTK's, with the location right in a chart that scales its points.
  vtkIdType GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                            vtkVector2f* location, vtkIdType* segmentId) override;
  using vtkPlotLine::GetNearestPoint;

protected:
  vtkPlotSafeLine() = default;
  ~vtkPlotSafeLine() override = default;

private:
  vtkPlotSafeLine(const vtkPlotSafeLine&) = delete;
  void operator=(const vtkPlotSafeLine&) = delete;

  Talmesh::CurvePicture Curve;
};

#endif

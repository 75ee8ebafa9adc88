#ifndef PointCloud_h
#define PointCloud_h

#include "vtk/PointInputs.h"
#include "vtk/PointPictures.h"

#include <vtkPlotPoints.h>

namespace Talmesh
{
/// A vtkPlotPoints, by class name too, whose markers go as a picture to devices that take one of so
/// many (vtk/AggregateDevice.h), and which reads its table again only if that has changed.
class PointCloud : public vtkPlotPoints
{
public:
  static PointCloud* New();

  void Update() override;
  bool Paint(vtkContext2D* painter) override;

protected:
  PointCloud() = default;
  ~PointCloud() override = default;

private:
  PointCloud(const PointCloud&) = delete;
  void operator=(const PointCloud&) = delete;

  PointInputs CachedInputs;
  PointPictures Pictures;
};
} // namespace Talmesh

#endif

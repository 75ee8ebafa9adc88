#ifndef PointCloud_h
#define PointCloud_h

#include "vtk/CachedPoints.h"
#include "vtk/PointPictures.h"

namespace Talmesh
{
/// A vtkPlotPoints, by class name too, whose markers go as a picture to devices that take one of so
/// many (vtk/AggregateDevice.h).
class PointCloud : public CachedPoints
{
public:
  static PointCloud* New();

  bool Paint(vtkContext2D* painter) override;

protected:
  PointCloud() = default;
  ~PointCloud() override = default;

  PointCloudLook Look() const;

  PointPictures Pictures;

private:
  PointCloud(const PointCloud&) = delete;
  void operator=(const PointCloud&) = delete;
};
} // namespace Talmesh

#endif

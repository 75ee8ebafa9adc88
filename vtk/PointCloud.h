#ifndef PointCloud_h
#define PointCloud_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/CachedPoints.h"

#include <memory>

namespace Talmesh
{
struct PointCloudLook;
class PointPictures;

/// A vtkPlotPoints, by class name too, whose markers go as a picture to devices that take one of so
/// many (vtk/AggregateDevice.h).
class TALMESHPLOT_EXPORT PointCloud : public CachedPoints
{
public:
  static PointCloud* New();

  bool Paint(vtkContext2D* painter) override;

protected:
  PointCloud();
  ~PointCloud() override;

  PointCloudLook Look() const;

  std::unique_ptr<PointPictures> Pictures;

private:
  PointCloud(const PointCloud&) = delete;
  void operator=(const PointCloud&) = delete;
};
} // namespace Talmesh

#endif

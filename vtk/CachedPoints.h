#ifndef CachedPoints_h
#define CachedPoints_h

#include "../export/TalmeshPlotExport.h"

#include <vtkPlotPoints.h>

#include <vector>

namespace Talmesh
{
/// A vtkPlotPoints, by class name too, that reads its table again only if something has changed
/// that its points are made of. On logarithmic axes its points lie where the chart's axes have
/// their values, whatever shift or magnitude (vtk/CachedLogarithms.h).
class TALMESHPLOT_EXPORT CachedPoints : public vtkPlotPoints
{
public:
  /// Updates the cached points and their colours, without colours if their column is missing.
  /// Does nothing when the item is invisible or has no input table.
  void Update() override;

  /// As VTK's, with the location right in a chart that scales its points.
  vtkIdType GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                            vtkVector2f* location, vtkIdType* segmentId) override;
  using vtkPlotPoints::GetNearestPoint;

  ///@{
  /// Selects the points that VTK selects, in its order, without sorting them first.
  /// @return whether there are any
  bool SelectPoints(const vtkVector2f& min, const vtkVector2f& max) override;
  bool SelectPointsInPolygon(const vtkContextPolygon& polygon) override;
  ///@}

protected:
  CachedPoints() = default;
  ~CachedPoints() override = default;

  /// Reads the points from `table` whether or not they are current.
  void ReadPoints(vtkTable* table);

private:
  CachedPoints(const CachedPoints&) = delete;
  void operator=(const CachedPoints&) = delete;

  std::vector<double> Inputs() const;
  vtkIdTypeArray* OwnSelection();
  void CacheLogarithms();

  std::vector<double> CachedInputs; ///< what the cached points were made of
};
} // namespace Talmesh

#endif

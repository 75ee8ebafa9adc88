#ifndef vtkPlotInvisiblePoints_h
#define vtkPlotInvisiblePoints_h

#include "vtk/PointInputs.h"
#include "vtk/PointPictures.h"
#include "vtk/VtkCompat.h"

#include <vtkPlotPoints.h>

/// A point series for the chart's selection tools to pick from: the points themselves are not
/// drawn, only the selected ones, highlighted. Selected ids outside the points are passed over.
/// Devices that take pictures of many shapes get one for very many markers.
class vtkPlotInvisiblePoints : public vtkPlotPoints
{
public:
  static vtkPlotInvisiblePoints* New();
  TALMESH_VTK_TYPE(vtkPlotInvisiblePoints, vtkPlotPoints);
  void PrintSelf(ostream& os, vtkIndent indent) override;

  /// Updates the cached points as vtkPlotPoints does, if anything has changed that they are made
  /// of, without colours if their column is missing.
  void Update() override;

  /// @return false if the item is invisible or has no points.
  bool Paint(vtkContext2D* painter) override;

  ///@{
  /// Whether only selected points are drawn; if 0, the item paints as vtkPlotPoints. Default 1.
  vtkSetMacro(OnlyShowSelected, int);
  vtkGetMacro(OnlyShowSelected, int);
  vtkBooleanMacro(OnlyShowSelected, int);
  ///@}

protected:
  vtkPlotInvisiblePoints() = default;
  ~vtkPlotInvisiblePoints() override = default;

  int OnlyShowSelected = 1;

private:
  vtkPlotInvisiblePoints(const vtkPlotInvisiblePoints&) = delete;
  void operator=(const vtkPlotInvisiblePoints&) = delete;

  void UpdateSelectedPoints();
  Talmesh::PointCloudLook Look() const;

  Talmesh::PointInputs CachedInputs; ///< of the cached points
  Talmesh::PointPictures Pictures;
};

#endif

#ifndef vtkPlotInvisiblePoints_h
#define vtkPlotInvisiblePoints_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/HighlightColor.h"
#include "../vtk/PointCloud.h"
#include "../vtk/VtkCompat.h"

/// A point series for the chart's selection tools to pick from: the points themselves are not
/// drawn, only the selected ones, highlighted. Selected ids outside the points are passed over.
/// Devices that take pictures of many shapes get one for very many markers.
class TALMESHPLOT_EXPORT vtkPlotInvisiblePoints : public Talmesh::PointCloud
{
public:
  static vtkPlotInvisiblePoints* New();
  TALMESH_VTK_TYPE(vtkPlotInvisiblePoints, Talmesh::PointCloud);
  void PrintSelf(ostream& os, vtkIndent indent) override;

  /// @return false if the item is invisible or has no points.
  bool Paint(vtkContext2D* painter) override;

  ///@{
  /// Whether only selected points are drawn; if 0, the item paints as vtkPlotPoints. Default 1.
  vtkSetMacro(OnlyShowSelected, int);
  vtkGetMacro(OnlyShowSelected, int);
  vtkBooleanMacro(OnlyShowSelected, int);
  ///@}

  /// How the selected points are drawn; at first as everywhere in the library.
  void SetHighlight(const Talmesh::Highlight& highlight);

protected:
  vtkPlotInvisiblePoints() = default;
  ~vtkPlotInvisiblePoints() override = default;

  int OnlyShowSelected = 1;

private:
  vtkPlotInvisiblePoints(const vtkPlotInvisiblePoints&) = delete;
  void operator=(const vtkPlotInvisiblePoints&) = delete;

  void UpdateSelectedPoints();

  Talmesh::Highlight SelectedLook;
};

#endif

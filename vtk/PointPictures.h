#ifndef PointPictures_h
#define PointPictures_h

#include "vtk/CachedPicture.h"

class vtkContext2D;
class vtkIdTypeArray;
class vtkPen;
class vtkPoints2D;
class vtkUnsignedCharArray;

namespace Talmesh
{
class AggregateTarget;

/// What a vtkPlotPoints paints. Pointers are the item's.
struct PointCloudLook
{
  vtkPoints2D* points = nullptr;
  vtkIdTypeArray* badPoints = nullptr; ///< null for none
  vtkIdTypeArray* selection = nullptr; ///< null for none; ids outside of the points are passed over
  vtkUnsignedCharArray* colors = nullptr; ///< of the points; null for the pen's
  vtkPen* pen = nullptr;
  vtkPen* selectionPen = nullptr;
  int markerStyle = 0;
  float markerSize = 0.0f;
};

/// The markers of a vtkPlotPoints and those of its selection as two pictures, for devices that take
/// them of so many.
class PointPictures
{
public:
  /// Paints what vtkPlotPoints::Paint would.
  /// @return false, with nothing painted, if the device wants all of it as shapes, or if markers of
  /// different colours shine through each other
  bool paint(vtkContext2D* painter, const AggregateTarget& target, const PointCloudLook& look);

  /// Paints the markers of the selected points with the painter's pen, which is as wide as they
  /// are, as a picture or as shapes.
  void paintSelected(vtkContext2D* painter, const AggregateTarget& target,
                     const PointCloudLook& look, int style, bool highlighted);

private:
  void paintAll(vtkContext2D* painter, const AggregateTarget& target, const PointCloudLook& look);
  bool areOpaque(vtkUnsignedCharArray* colors);

  CachedPicture all;
  CachedPicture selected;
  std::vector<double> examinedColors;
  bool opaque = false;
};
} // namespace Talmesh

#endif

#ifndef CurvePicture_h
#define CurvePicture_h

#include "vtk/CachedPicture.h"

class vtkAbstractContextItem;
class vtkContext2D;
class vtkIdTypeArray;
class vtkPen;
class vtkPoints2D;

namespace Talmesh
{
/// A single line as a picture for devices that take them (vtk/AggregateDevice.h), the screen above
/// all: its edges are smooth there however few samples of a pixel the window takes.
class CurvePicture
{
public:
  /// Whether lines of a pen can be drawn so.
  static bool suits(vtkPen* pen);

  /// Draws the line through @p points with the painter's pen, in pieces between the bad ones.
  /// @param badPoints null for none
  /// @param key tells these points from others that the curve had before
  /// @return false if nothing was drawn and the line is wanted as a shape
  bool paint(vtkContext2D* painter, vtkAbstractContextItem* item, vtkPoints2D* points,
             vtkIdTypeArray* badPoints, const CachedPicture::Key& key);

private:
  CachedPicture picture;
};
} // namespace Talmesh

#endif

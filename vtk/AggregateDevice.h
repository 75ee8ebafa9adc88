#ifndef AggregateDevice_h
#define AggregateDevice_h

#include <vtkType.h>

namespace Talmesh
{
/// The pixels of a painting surface, seen from the coordinates that its matrix maps to: pixel
/// (i, j) spans originX + i / scaleX to originX + (i + 1) / scaleX, and likewise upwards.
struct PixelGrid
{
  double originX = 0.0;
  double originY = 0.0;
  double scaleX = 1.0; ///< pixels per unit; also turns pen widths and marker sizes into pixels
  double scaleY = 1.0;
  int width = 0; ///< pixels
  int height = 0;
};

/// What a vtkContextDevice2D is besides if an item that would draw thousands of like shapes may
/// hand it the picture of them instead. Any other device gets every shape in the items' documented
/// order. The screen's own device counts as one, see AggregateTarget.
///
/// A picture arrives as one DrawImage(const vtkRectf&, vtkImageData*), after a SetMatrix under
/// which one unit is one pixel of the grid: four components, red, green, blue and opacity, colours
/// not multiplied by the opacity, the first row the lowest, as many values as the rectangle has
/// pixels. What it leaves out is empty. It must be placed without smoothing and cut off where
/// clipping says.
///
/// A highlighted run that stays a shape is drawn once, with the opacity that its repeats would have
/// added up to; highlighted points are drawn as often as they are listed.
class AggregateDevice
{
public:
  enum class Shapes
  {
    Bundle,     ///< the runs of a line set
    Highlights, ///< runs that are drawn again on top
    Points,     ///< markers of a point cloud, highlighted or not
    Corners     ///< of lines across parallel axes, which are short
  };

  virtual ~AggregateDevice() = default;

  /// Up to how many shapes of one item are wanted as shapes; more of them become a picture.
  virtual vtkIdType mostShapes(Shapes kind) const = 0;
  /// Asked for at every painting.
  virtual PixelGrid pixelGrid() const = 0;
};
} // namespace Talmesh

#endif

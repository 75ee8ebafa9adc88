#ifndef AggregateTarget_h
#define AggregateTarget_h

#include "vtk/AggregateDevice.h"
#include "vtk/RunTracer.h"

#include <optional>

class vtkAbstractContextItem;
class vtkContext2D;
class vtkContextDevice2D;
class vtkImageData;

namespace Talmesh
{
/// Where an item's picture goes that stands for its shapes: the pixels of the painter's device that
/// the item may colour now, and where the item's coordinates lie among them.
class AggregateTarget
{
public:
  /// None if the device takes no pictures, or if the item is turned or sheared. The screen's device
  /// takes them unless it is asked for vectors or for what lies under the mouse.
  static std::optional<AggregateTarget> of(vtkContext2D* painter, vtkAbstractContextItem* item);

  /// Whether @p count shapes of a kind are wanted as shapes.
  bool wantsShapes(AggregateDevice::Shapes kind, vtkIdType count) const;

  /// From the item's coordinates to pixels of the picture.
  const PixelMap& map() const { return toPixels; }
  int width() const { return pixelWidth; }
  int height() const { return pixelHeight; }
  /// Turns pen widths and marker sizes into pixels.
  double penScale() const { return grid.scaleX; }

  /// Draws a picture whose lower left pixel is pixel (@p column, @p row) of width() x height().
  void draw(vtkContext2D* painter, vtkImageData* picture, int column, int row) const;

private:
  AggregateTarget() = default;

  AggregateDevice* device = nullptr; ///< null for the screen
  PixelGrid grid;
  PixelMap toPixels;
  int left = 0;
  int bottom = 0;
  int pixelWidth = 0;
  int pixelHeight = 0;
};
} // namespace Talmesh

#endif

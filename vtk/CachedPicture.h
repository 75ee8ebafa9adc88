#ifndef CachedPicture_h
#define CachedPicture_h

#include "vtk/OpacityImage.h"

#include <vtkImageData.h>
#include <vtkSmartPointer.h>

#include <functional>
#include <vector>

class vtkContext2D;
class vtkPen;

namespace Talmesh
{
class AggregateTarget;

/// One layer of an item as a picture, kept until what it shows changes.
class CachedPicture
{
public:
  /// Numbers that tell one content of the layer from all others, time stamps for instance. Where
  /// and how large the picture is, and the painter's pen, need not be among them.
  using Key = std::vector<double>;
  /// Red, green, blue and opacity of each pixel, row by row from the lowest.
  using Pixels = std::vector<unsigned char>;

  /// Draws the layer, as @p make returns it if it is not the one made last.
  void paint(vtkContext2D* painter, const AggregateTarget& target, Key key,
             const std::function<Pixels()>& make);

  /// Pixels of a pen's colour, without its opacity.
  static Pixels tinted(const OpacityImage& opacities, vtkPen* pen);

private:
  void keepInked(const Pixels& pixels, int width, int height);

  Key shown;
  /// What of the layer is not empty, and where that lies; null for nothing.
  vtkSmartPointer<vtkImageData> picture;
  int left = 0;
  int bottom = 0;
};
} // namespace Talmesh

#endif

#ifndef CachedPicture_h
#define CachedPicture_h

#include "vtk/LineCounts.h"

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
  /// and how large the picture is, and its pen, need not be among them.
  using Key = std::vector<double>;

  /// Draws the layer in the colour of @p pen, with what @p make returns as its opacities if they
  /// are not the ones made last.
  void paint(vtkContext2D* painter, const AggregateTarget& target, vtkPen* pen, Key key,
             const std::function<OpacityImage()>& make);

private:
  Key shown;
  vtkSmartPointer<vtkImageData> picture;
};
} // namespace Talmesh

#endif

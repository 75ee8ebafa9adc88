#ifndef CachedPicture_h
#define CachedPicture_h

#include "vtk/OpacityImage.h"
#include "vtk/PictureStore.h"

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

  /// Where a picture may be found that another item has made.
  struct Store
  {
    PictureStore* pictures = nullptr; ///< null for none
    /// The content, told also from that of other items. Asked for only if the layer has changed.
    std::function<PictureStore::Key()> content;
  };

  /// Draws the layer, as @p make returns it if it is not the one made last.
  void paint(vtkContext2D* painter, const AggregateTarget& target, Key key,
             const std::function<Pixels()>& make);
  void paint(vtkContext2D* painter, const AggregateTarget& target, Key key,
             const std::function<Pixels()>& make, const Store& store);

  /// Pixels of a pen's colour, without its opacity.
  static Pixels tinted(const OpacityImage& opacities, vtkPen* pen);

private:
  Key shown;
  PictureStore::Picture picture; ///< null before the first one
};
} // namespace Talmesh

#endif

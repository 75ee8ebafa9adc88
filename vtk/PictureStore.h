#ifndef PictureStore_h
#define PictureStore_h

#include "vtk/PointStore.h"

#include <vtkImageData.h>
#include <vtkSmartPointer.h>

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <vector>

namespace Talmesh
{
/// What of a layer is not empty, and where that lies in it.
struct LayerPicture
{
  vtkSmartPointer<vtkImageData> pixels; ///< null for nothing
  int left = 0;
  int bottom = 0;

  std::size_t bytes() const;
};

/// Pictures, and the points they are of, that outlive the items that made them. A redraw makes new
/// items of mostly the same data: those that share a store with the items before take what has not
/// changed from there.
class PictureStore
{
public:
  /// What a picture shows, how and where, told by content: columns may be changed in place, and
  /// freed ones leave their address to others.
  using Key = std::vector<double>;
  using Picture = std::shared_ptr<const LayerPicture>;

  /// Null if there is none.
  Picture find(const Key& key);
  /// Those used last are kept, of a total size that is bounded.
  void keep(Key key, Picture picture);

  PointStore& points() { return pointsOfItems; }

  /// Notes that a picture was made of so many lines.
  void countLines(std::size_t lines) { counted += static_cast<std::int64_t>(lines); }
  /// Lines that pictures were made of since the store exists.
  std::int64_t countedLines() const { return counted; }

private:
  struct Entry
  {
    Key key;
    Picture picture;
  };

  std::list<Entry> entries; ///< the one used last comes first
  PointStore pointsOfItems;
  std::int64_t counted = 0;
};

/// Appends what tells bytes from other ones: a fingerprint of 64 bits.
void addContent(PictureStore::Key& key, const void* bytes, std::size_t size);
} // namespace Talmesh

#endif

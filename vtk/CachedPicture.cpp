#include "vtk/CachedPicture.h"

#include "vtk/AggregateTarget.h"

#include <vtkContext2D.h>
#include <vtkPen.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

namespace Talmesh
{
namespace
{
void addPlace(CachedPicture::Key& key, const AggregateTarget& target)
{
  const PixelMap& map = target.map();
  key.insert(key.end(), {map.scaleX, map.shiftX, map.scaleY, map.shiftY, double(target.width()),
                         double(target.height()), target.penScale()});
}

void addPen(CachedPicture::Key& key, vtkPen* pen)
{
  unsigned char color[4];
  pen->GetColor(color);
  key.insert(key.end(), {double(color[0]), double(color[1]), double(color[2]),
                         double(pen->GetOpacity()), double(pen->GetWidth())});
}

/// Pixels from (left, bottom) up to but without (right, top).
struct Rectangle
{
  int left;
  int bottom;
  int right;
  int top;
};

Rectangle inkedPart(const CachedPicture::Pixels& pixels, int width, int height)
{
  Rectangle part{width, height, 0, 0};
  const unsigned char* opacity = pixels.data() + 3;
  for (int row = 0; row < height; ++row)
  {
    for (int column = 0; column < width; ++column, opacity += 4)
    {
      if (*opacity == 0)
        continue;
      part.left = std::min(part.left, column);
      part.right = std::max(part.right, column + 1);
      part.bottom = std::min(part.bottom, row);
      part.top = row + 1;
    }
  }
  return part;
}
// Blending costs a software renderer more than everything else about an unchanged picture.
PictureStore::Picture inkedOf(const CachedPicture::Pixels& pixels, int width, int height)
{
  auto picture = std::make_shared<LayerPicture>();
  const Rectangle part = inkedPart(pixels, width, height);
  if (part.left >= part.right)
    return picture;
  picture->left = part.left;
  picture->bottom = part.bottom;
  picture->pixels = vtkSmartPointer<vtkImageData>::New();
  picture->pixels->SetDimensions(part.right - part.left, part.top - part.bottom, 1);
  picture->pixels->AllocateScalars(VTK_UNSIGNED_CHAR, 4);
  auto* to = static_cast<unsigned char*>(picture->pixels->GetScalarPointer());
  const std::ptrdiff_t rowSize = 4 * (part.right - part.left);
  for (int row = part.bottom; row < part.top; ++row, to += rowSize)
    std::copy_n(pixels.data() + 4 * (static_cast<std::ptrdiff_t>(row) * width + part.left), rowSize,
                to);
  return picture;
}

PictureStore::Picture made(const std::function<CachedPicture::Pixels()>& make,
                           const AggregateTarget& target)
{
  return inkedOf(make(), target.width(), target.height());
}

PictureStore::Picture foundOrMade(const CachedPicture::Store& store, vtkPen* pen,
                                  const AggregateTarget& target,
                                  const std::function<CachedPicture::Pixels()>& make)
{
  PictureStore::Key content = store.content();
  addPlace(content, target);
  addPen(content, pen);
  PictureStore::Picture picture = store.pictures->find(content);
  if (!picture)
  {
    picture = made(make, target);
    store.pictures->keep(std::move(content), picture);
  }
  return picture;
}
} // namespace

void CachedPicture::paint(vtkContext2D* painter, const AggregateTarget& target, Key key,
                          const std::function<Pixels()>& make)
{
  paint(painter, target, std::move(key), make, {nullptr, {}});
}

void CachedPicture::paint(vtkContext2D* painter, const AggregateTarget& target, Key key,
                          const std::function<Pixels()>& make, const Store& store)
{
  if (target.width() < 1 || target.height() < 1)
    return;
  addPlace(key, target);
  addPen(key, painter->GetPen());
  if (key != shown)
  {
    // What fails to be made must not be taken for the picture before it.
    shown.clear();
    picture = nullptr;
    picture =
        store.pictures ? foundOrMade(store, painter->GetPen(), target, make) : made(make, target);
    shown = std::move(key);
  }
  if (picture->pixels)
    target.draw(painter, picture->pixels, picture->left, picture->bottom);
}

CachedPicture::Pixels CachedPicture::tinted(const OpacityImage& opacities, vtkPen* pen)
{
  unsigned char color[4];
  pen->GetColor(color);
  Pixels pixels(4 * opacities.values.size());
  unsigned char* pixel = pixels.data();
  for (const unsigned char opacity : opacities.values)
  {
    pixel[0] = color[0];
    pixel[1] = color[1];
    pixel[2] = color[2];
    pixel[3] = opacity;
    pixel += 4;
  }
  return pixels;
}
} // namespace Talmesh

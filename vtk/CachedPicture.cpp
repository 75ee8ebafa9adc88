#include "vtk/CachedPicture.h"

#include "vtk/AggregateTarget.h"

#include <vtkContext2D.h>
#include <vtkPen.h>

#include <algorithm>

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

vtkSmartPointer<vtkImageData> imageOf(const CachedPicture::Pixels& pixels, int width, int height)
{
  auto image = vtkSmartPointer<vtkImageData>::New();
  image->SetDimensions(width, height, 1);
  image->AllocateScalars(VTK_UNSIGNED_CHAR, 4);
  std::copy(pixels.begin(), pixels.end(), static_cast<unsigned char*>(image->GetScalarPointer()));
  return image;
}
} // namespace

void CachedPicture::paint(vtkContext2D* painter, const AggregateTarget& target, Key key,
                          const std::function<Pixels()>& make)
{
  if (target.width() < 1 || target.height() < 1)
    return;
  addPlace(key, target);
  addPen(key, painter->GetPen());
  if (!picture || key != shown)
  {
    picture = imageOf(make(), target.width(), target.height());
    shown = std::move(key);
  }
  target.draw(painter, picture);
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

#include "vtk/CachedPicture.h"

#include "vtk/AggregateTarget.h"

#include <vtkPen.h>

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

void fill(vtkImageData* picture, const OpacityImage& opacities, vtkPen* pen)
{
  picture->SetDimensions(opacities.width, opacities.height, 1);
  picture->AllocateScalars(VTK_UNSIGNED_CHAR, 4);
  unsigned char color[4];
  pen->GetColor(color);
  auto* values = static_cast<unsigned char*>(picture->GetScalarPointer());
  for (const unsigned char opacity : opacities.values)
  {
    values[0] = color[0];
    values[1] = color[1];
    values[2] = color[2];
    values[3] = opacity;
    values += 4;
  }
  picture->Modified();
}
} // namespace

void CachedPicture::paint(vtkContext2D* painter, const AggregateTarget& target, vtkPen* pen,
                          Key key, const std::function<OpacityImage()>& make)
{
  if (target.width() < 1 || target.height() < 1)
    return;
  addPlace(key, target);
  addPen(key, pen);
  if (!picture || key != shown)
  {
    if (!picture)
      picture = vtkSmartPointer<vtkImageData>::New();
    fill(picture, make(), pen);
    shown = std::move(key);
  }
  target.draw(painter, picture);
}
} // namespace Talmesh

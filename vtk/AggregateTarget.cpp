#include "vtk/AggregateTarget.h"

#include <vtkContext2D.h>
#include <vtkContextClip.h>
#include <vtkContextDevice2D.h>
#include <vtkContextScene.h>
#include <vtkImageData.h>
#include <vtkMatrix3x3.h>
#include <vtkMatrix4x4.h>
#include <vtkNew.h>
#include <vtkOpenGLContextDevice2D.h>
#include <vtkOpenGLGL2PSHelper.h>
#include <vtkRect.h>
#include <vtkTransform2D.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace Talmesh
{
namespace
{
/// Markers that the screen draws one by one: more cost more than a picture of a chart.
constexpr vtkIdType mostMarkersOnScreen = 20000;

struct Rectangle
{
  double left;
  double bottom;
  double right;
  double top;
};

/// Subclasses of the screen's device are somebody's own and draw otherwise.
vtkOpenGLContextDevice2D* screenOf(vtkContextDevice2D* device)
{
  if (device->GetClassName() != std::string("vtkOpenGLContextDevice2D"))
    return nullptr;
  vtkOpenGLGL2PSHelper* const vectors = vtkOpenGLGL2PSHelper::GetInstance();
  if (vectors && vectors->GetActiveState() != vtkOpenGLGL2PSHelper::Inactive)
    return nullptr;
  return device->GetBufferIdMode() ? nullptr : static_cast<vtkOpenGLContextDevice2D*>(device);
}

/// VTK 9.1 stretches a viewport of n pixels from 1 / 2 to n - 1 / 2 over all of them, and says so
/// in its projection only.
PixelGrid gridOf(vtkOpenGLContextDevice2D* screen)
{
  vtkMatrix4x4* const projection = screen->GetProjectionMatrix();
  const double across = 2.0 / projection->GetElement(0, 0);
  const double upwards = 2.0 / projection->GetElement(1, 1);
  PixelGrid grid;
  grid.width = static_cast<int>(std::lround(across)) + 1;
  grid.height = static_cast<int>(std::lround(upwards)) + 1;
  grid.scaleX = grid.width / across;
  grid.scaleY = grid.height / upwards;
  grid.originX = grid.originY = 0.5;
  return grid;
}

/// What the chart that holds the item clips to, in the coordinates of the device. The screen's
/// device moves clips to the part of a larger window that it paints, as the transform of the scene
/// moves all items; any other takes them as they are.
Rectangle clipOf(vtkAbstractContextItem* item, const Rectangle& everything, bool onScreen)
{
  vtkAbstractContextItem* holder = item;
  while (holder && !vtkContextClip::SafeDownCast(holder))
    holder = holder->GetParent();
  if (!holder)
    return everything;
  float rect[4];
  vtkContextClip::SafeDownCast(holder)->GetRect(rect);
  double moved[2] = {0.0, 0.0};
  if (onScreen && item->GetScene() && item->GetScene()->HasTransform())
    item->GetScene()->GetTransform()->GetPosition(moved);
  const double x = moved[0] + rect[0];
  const double y = moved[1] + rect[1];
  return {x, y, x + rect[2], y + rect[3]};
}

/// Of a clip, in whole pixels and one more on each side: the device cuts exactly.
int pixelBefore(double edge, double origin, double scale, int end)
{
  return static_cast<int>(std::clamp(std::floor((edge - origin) * scale) - 1.0, 0.0, double(end)));
}

int pixelBehind(double edge, double origin, double scale, int end)
{
  return static_cast<int>(std::clamp(std::ceil((edge - origin) * scale) + 1.0, 0.0, double(end)));
}
} // namespace

std::optional<AggregateTarget> AggregateTarget::of(vtkContext2D* painter,
                                                   vtkAbstractContextItem* item)
{
  AggregateTarget target;
  target.device = dynamic_cast<AggregateDevice*>(painter->GetDevice());
  vtkOpenGLContextDevice2D* const screen = screenOf(painter->GetDevice());
  if (!target.device && !screen)
    return std::nullopt;
  target.grid = target.device ? target.device->pixelGrid() : gridOf(screen);
  vtkNew<vtkMatrix3x3> matrix;
  painter->GetDevice()->GetMatrix(matrix);
  if (matrix->GetElement(0, 1) != 0.0 || matrix->GetElement(1, 0) != 0.0)
    return std::nullopt;

  const PixelGrid& grid = target.grid;
  const Rectangle clip =
      clipOf(item,
             {grid.originX, grid.originY, grid.originX + grid.width / grid.scaleX,
              grid.originY + grid.height / grid.scaleY},
             !target.device);
  target.left = pixelBefore(clip.left, grid.originX, grid.scaleX, grid.width);
  target.bottom = pixelBefore(clip.bottom, grid.originY, grid.scaleY, grid.height);
  target.pixelWidth = pixelBehind(clip.right, grid.originX, grid.scaleX, grid.width) - target.left;
  target.pixelHeight =
      pixelBehind(clip.top, grid.originY, grid.scaleY, grid.height) - target.bottom;
  target.toPixels.scaleX = matrix->GetElement(0, 0) * grid.scaleX;
  target.toPixels.scaleY = matrix->GetElement(1, 1) * grid.scaleY;
  target.toPixels.shiftX = (matrix->GetElement(0, 2) - grid.originX) * grid.scaleX - target.left;
  target.toPixels.shiftY = (matrix->GetElement(1, 2) - grid.originY) * grid.scaleY - target.bottom;
  return target;
}

bool AggregateTarget::wantsShapes(AggregateDevice::Shapes kind, vtkIdType count) const
{
  if (device)
    return count <= device->mostShapes(kind);
  return kind == AggregateDevice::Shapes::Points && count <= mostMarkersOnScreen;
}

void AggregateTarget::draw(vtkContext2D* painter, vtkImageData* picture, int column, int row) const
{
  const double toDevice[9] = {1.0 / grid.scaleX,
                              0.0,
                              grid.originX + (left + column) / grid.scaleX,
                              0.0,
                              1.0 / grid.scaleY,
                              grid.originY + (bottom + row) / grid.scaleY,
                              0.0,
                              0.0,
                              1.0};
  vtkNew<vtkTransform2D> pixels;
  pixels->SetMatrix(toDevice);
  int size[3];
  picture->GetDimensions(size);
  painter->PushMatrix();
  painter->SetTransform(pixels);
  // The screen copies an image that comes with a rectangle into one of a power of two, value by
  // value and across the rows.
  if (device)
    painter->DrawImage(
        vtkRectf(0.0f, 0.0f, static_cast<float>(size[0]), static_cast<float>(size[1])), picture);
  else
    painter->DrawImage(0.0f, 0.0f, picture);
  painter->PopMatrix();
}
} // namespace Talmesh

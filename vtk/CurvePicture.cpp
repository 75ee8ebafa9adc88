#include "vtk/CurvePicture.h"

#include "vtk/AggregateTarget.h"
#include "vtk/LineCounts.h"
#include "vtk/RunPieces.h"

#include <vtkContext2D.h>
#include <vtkIdTypeArray.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>

#include <algorithm>

namespace Talmesh
{
bool CurvePicture::suits(vtkPen* pen)
{
  return pen->GetLineType() == vtkPen::SOLID_LINE;
}

bool CurvePicture::paint(vtkContext2D* painter, vtkAbstractContextItem* item, vtkPoints2D* points,
                         vtkIdTypeArray* badPoints, const CachedPicture::Key& key)
{
  vtkPen* const pen = painter->GetPen();
  if (!suits(pen))
    return false;
  const auto target = AggregateTarget::of(painter, item);
  if (!target || target->wantsShapes(AggregateDevice::Shapes::Bundle, 1))
    return false;
  const auto make = [&]
  {
    const vtkIdType count = points->GetNumberOfPoints();
    std::vector<unsigned char> broken;
    if (badPoints)
      broken = maskOf(count, badPoints->GetPointer(0), badPoints->GetNumberOfValues());
    LinePen used;
    used.width = std::max(1.0, pen->GetWidth() * target->penScale());
    used.opacity = pen->GetOpacity() / 255.0;
    const LinesToCount lines{static_cast<float*>(points->GetVoidPointer(0)),
                             broken.empty() ? nullptr : broken.data(),
                             {{0, count, 1}}};
    return CachedPicture::tinted(
        drawLines(lines, target->map(), target->width(), target->height(), used), pen);
  };
  picture.paint(painter, *target, key, make);
  return true;
}
} // namespace Talmesh

#include "vtk/PointPictures.h"

#include "vtk/AggregateTarget.h"
#include "vtk/MarkerCounts.h"
#include "vtk/PointInputs.h"
#include "vtk/RunPieces.h"

#include <vtkContext2D.h>
#include <vtkIdTypeArray.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkRenderingCoreEnums.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <cmath>

namespace Talmesh
{
namespace
{
using Shapes = AggregateDevice::Shapes;

/// By which the markers of selected points are larger.
constexpr double selectedGrowth = 2.7;

float* pointsOf(const PointCloudLook& look)
{
  return static_cast<float*>(look.points->GetVoidPointer(0));
}

vtkIdType selectedCount(const PointCloudLook& look)
{
  return look.selection ? look.selection->GetNumberOfValues() : 0;
}

std::vector<float> gatherSelected(const PointCloudLook& look)
{
  const float* const points = pointsOf(look);
  const vtkIdType count = look.points->GetNumberOfPoints();
  std::vector<float> gathered;
  for (vtkIdType i = 0; i < selectedCount(look); ++i)
  {
    const vtkIdType id = look.selection->GetValue(i);
    if (id >= 0 && id < count)
      gathered.insert(gathered.end(), points + 2 * id, points + 2 * id + 2);
  }
  return gathered;
}

MarkerSprite spriteOf(vtkContext2D* painter, const AggregateTarget& target, int style,
                      bool highlighted)
{
  // The screen cuts sizes to whole pixels.
  const double pixels = std::floor(painter->GetPen()->GetWidth() * target.penScale());
  // Lines one unit wide, as those of a single marker.
  const int stroke = std::max(1, static_cast<int>(std::lround(target.penScale())));
  return {style, static_cast<int>(pixels), highlighted, stroke};
}
} // namespace

bool PointPictures::paint(vtkContext2D* painter, const AggregateTarget& target,
                          const PointCloudLook& look)
{
  const bool hasMarkers = look.markerStyle != VTK_MARKER_NONE;
  const bool markersAsShapes =
      !hasMarkers || target.wantsShapes(Shapes::Points, look.points->GetNumberOfPoints());
  if (markersAsShapes && target.wantsShapes(Shapes::Points, selectedCount(look)))
    return false;
  if (look.colors && !areOpaque(look.colors))
    return false;
  painter->ApplyPen(look.pen);
  painter->GetPen()->SetWidth(look.markerSize);
  if (hasMarkers)
    paintAll(painter, target, look);
  if (selectedCount(look) == 0)
    return true;
  painter->GetPen()->SetColor(look.selectionPen->GetColor());
  painter->GetPen()->SetOpacity(look.selectionPen->GetOpacity());
  painter->GetPen()->SetWidth(static_cast<float>(look.markerSize + selectedGrowth));
  paintSelected(painter, target, look, hasMarkers ? look.markerStyle : VTK_MARKER_PLUS, hasMarkers);
  return true;
}

bool PointPictures::areOpaque(vtkUnsignedCharArray* colors)
{
  std::vector<double> identity;
  addColumn(identity, colors);
  if (identity == examinedColors)
    return opaque;
  examinedColors = identity;
  opaque = colors->GetNumberOfComponents() == 4;
  const unsigned char* const values = colors->GetPointer(0);
  for (vtkIdType i = 3; opaque && i < colors->GetNumberOfValues(); i += 4)
    opaque = values[i] == 255;
  return opaque;
}

void PointPictures::paintAll(vtkContext2D* painter, const AggregateTarget& target,
                             const PointCloudLook& look)
{
  const auto make = [&]
  {
    const vtkIdType count = look.points->GetNumberOfPoints();
    std::vector<unsigned char> mask;
    if (look.badPoints)
      mask = maskOf(count, look.badPoints->GetPointer(0), look.badPoints->GetNumberOfValues());
    const MarkersToCount markers{pointsOf(look), count, mask.empty() ? nullptr : mask.data()};
    const MarkerSprite sprite = spriteOf(painter, target, look.markerStyle, false);
    if (look.colors)
      return drawColoredMarkers(markers, look.colors->GetPointer(0), target.map(), target.width(),
                                target.height(), sprite);
    return CachedPicture::tinted(drawMarkers(markers, target.map(), target.width(), target.height(),
                                             sprite, painter->GetPen()->GetOpacity() / 255.0),
                                 painter->GetPen());
  };
  CachedPicture::Key key{double(look.points->GetMTime()), double(look.markerStyle)};
  addColumn(key, look.colors);
  all.paint(painter, target, key, make);
}

void PointPictures::paintSelected(vtkContext2D* painter, const AggregateTarget& target,
                                  const PointCloudLook& look, int style, bool highlighted)
{
  if (target.wantsShapes(Shapes::Points, selectedCount(look)))
  {
    std::vector<float> points = gatherSelected(look);
    if (!points.empty())
      painter->DrawMarkers(style, highlighted, points.data(), static_cast<int>(points.size() / 2));
    return;
  }
  CachedPicture::Key key{double(look.points->GetMTime()), double(style), double(highlighted)};
  addColumn(key, look.selection);
  selected.paint(painter, target, key,
                 [&]
                 {
                   const std::vector<float> points = gatherSelected(look);
                   const MarkersToCount markers{
                       points.data(), static_cast<std::int64_t>(points.size() / 2), nullptr};
                   return CachedPicture::tinted(
                       drawMarkers(markers, target.map(), target.width(), target.height(),
                                   spriteOf(painter, target, style, highlighted),
                                   painter->GetPen()->GetOpacity() / 255.0),
                       painter->GetPen());
                 });
}
} // namespace Talmesh

#include "vtk/vtkSelectableChartXY.h"

#include <vtkContextPolygon.h>
#include <vtkContextTransform.h>
#include <vtkIdTypeArray.h>
#include <vtkMatrix3x3.h>
#include <vtkPlot.h>
#include <vtkTable.h>
#include <vtkTransform2D.h>

#include <algorithm>
#include <cmath>

/// Which rows the mouse hits.
namespace
{

/// Pixels; as far as VTK's own charts look for a point.
constexpr float reach = 5.0F;

/// The plot at `index` of a corner if it takes selections, otherwise null.
vtkPlot* selectablePlot(vtkContextTransform* corner, unsigned int index)
{
  auto* plot = vtkPlot::SafeDownCast(corner->GetItem(index));
  return plot && plot->GetVisible() && plot->GetSelectable() && plot->GetInput() ? plot : nullptr;
}

vtkVector2f inCorner(vtkContextTransform* corner, const vtkVector2f& pixel)
{
  vtkVector2f point;
  corner->GetTransform()->InverseTransformPoints(pixel.GetData(), point.GetData(), 1);
  return point;
}

vtkVector2f reachIn(vtkContextTransform* corner)
{
  vtkMatrix3x3* matrix = corner->GetTransform()->GetMatrix();
  return {static_cast<float>(std::fabs(reach / matrix->GetElement(0, 0))),
          static_cast<float>(std::fabs(reach / matrix->GetElement(1, 1)))};
}

} // namespace

void vtkSelectableChartXY::Hits::Add(vtkTable* of, vtkIdType row)
{
  if (!table)
  {
    table = of;
    rows.assign(static_cast<std::size_t>(table->GetNumberOfRows()), false);
  }
  if (row >= 0 && row < static_cast<vtkIdType>(rows.size()))
    rows[static_cast<std::size_t>(row)] = true;
}

/// @param find has a plot, the second argument, select what it has of the shape within a corner
vtkSelectableChartXY::Hits vtkSelectableChartXY::HitsOf(const PointFinder& find) const
{
  Hits hits;
  for (vtkContextTransform* corner : GetTransforms())
  {
    for (unsigned int i = 0; i < corner->GetNumberOfItems(); ++i)
    {
      vtkPlot* plot = selectablePlot(corner, i);
      if (!plot)
        continue;
      // Asked once: it takes longer than all that is done for a row.
      vtkTable* const input = plot->GetInput();
      hits.Add(input, -1);
      // The plot writes into its list, which may be that of the link and of other plots.
      plot->SetSelection(vtkNew<vtkIdTypeArray>());
      find(corner, plot);
      vtkIdTypeArray* rows = plot->GetSelection();
      for (vtkIdType k = 0; k < rows->GetNumberOfValues(); ++k)
        hits.Add(input, rows->GetValue(k));
    }
  }
  return hits;
}

vtkSelectableChartXY::Hits vtkSelectableChartXY::HitsBetween(const vtkVector2f& from,
                                                             const vtkVector2f& to) const
{
  return HitsOf(
      [&](vtkContextTransform* corner, vtkPlot* plot)
      {
        const vtkVector2f a = inCorner(corner, from);
        const vtkVector2f b = inCorner(corner, to);
        plot->SelectPoints({std::min(a.GetX(), b.GetX()), std::min(a.GetY(), b.GetY())},
                           {std::max(a.GetX(), b.GetX()), std::max(a.GetY(), b.GetY())});
      });
}

vtkSelectableChartXY::Hits vtkSelectableChartXY::HitsWithin(const Pixels& corners) const
{
  return HitsOf(
      [&](vtkContextTransform* corner, vtkPlot* plot)
      {
        vtkContextPolygon polygon;
        for (const vtkVector2f& pixel : corners)
          polygon.AddPoint(inCorner(corner, pixel));
        plot->SelectPointsInPolygon(polygon);
      });
}

vtkSelectableChartXY::Hits vtkSelectableChartXY::HitsAt(const vtkVector2f& position) const
{
  Hits hits;
  for (vtkContextTransform* corner : GetTransforms())
  {
    for (unsigned int i = corner->GetNumberOfItems(); i-- > 0;)
    {
      vtkPlot* plot = selectablePlot(corner, i);
      vtkVector2f location;
      vtkIdType segment = -1;
      const vtkIdType row = plot ? plot->GetNearestPoint(inCorner(corner, position),
                                                         reachIn(corner), &location, &segment)
                                 : -1;
      if (row < 0)
        continue;
      hits.Add(plot->GetInput(), row);
      return hits;
    }
  }
  return hits;
}

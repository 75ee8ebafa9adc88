#ifndef PlotItemPainting_h
#define PlotItemPainting_h

#include <vtkRect.h>
#include <vtkSmartPointer.h>
#include <vtkType.h>

class vtkContext2D;
class vtkIdTypeArray;
class vtkPen;

/// What the plot items of this library have in common when they paint.
namespace Talmesh
{
/// Gives the painter's pen the highlight colour (255, 50, 0, 150) and a width of
/// @p width + 2.7 pixels.
void applyHighlightPen(vtkContext2D* painter, float width);

/// Applies @p pen and draws a horizontal line across @p rect at half its height.
void paintLegendLine(vtkContext2D* painter, vtkPen* pen, const vtkRectf& rect);

/// Size of a marker in pixels: @p markerSize if it is set (not negative), else 2.3 times the pen
/// width but at least 8.
float effectiveMarkerSize(float markerSize, vtkPen* pen);

/// Replaces a plot item's selection, while this object lives, by its ids inside
/// [0, pointCount): the painting of vtkPlotPoints reads coordinates for every id it is given. A
/// selection that has no other ids, and a null one, stays as it is.
class SelectionWithin
{
public:
  /// @param selection the item's selection pointer; it must outlive this object.
  SelectionWithin(vtkIdTypeArray*& selection, vtkIdType pointCount);
  ~SelectionWithin();
  SelectionWithin(const SelectionWithin&) = delete;
  SelectionWithin& operator=(const SelectionWithin&) = delete;

private:
  vtkIdTypeArray*& selection;
  vtkIdTypeArray* original;
  vtkSmartPointer<vtkIdTypeArray> inside;
};
} // namespace Talmesh

#endif
